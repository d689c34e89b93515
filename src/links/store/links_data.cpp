#include "links/store/links_data.h"

#include "links/store/link_rec.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

std::shared_ptr<LinksData> Global_LinksRoot;

namespace {

constexpr std::size_t Levels = 11; // depths 0 to 10
const QString ErrorText = u"- Error - "_s;

// What a digit says, as far as levels are there to take it.
std::size_t Depth_Of(QChar digit, std::size_t deepest) {
    const int value = digit.digitValue();
    return std::min(static_cast<std::size_t>(std::max(value, 0)), deepest);
}

} // namespace

void LinksData::Add_Link(const QString& URL, const QString& LinkName, const QString& Description,
                         std::int32_t LastVisited, std::uint8_t StartSize) {
    links.push_back({URL, LinkName, Description, LastVisited, StartSize});
}

void LinksData::Add_Category(const QString& CategoryName, std::int32_t CategoryID,
                             std::shared_ptr<LinksData> CategoryClass) {
    categories.push_back({CategoryName, CategoryID, std::move(CategoryClass)});
}

void LinksData::Get_LinkData(std::int32_t ThisCategoryID, QString& URL, QString& LinkName,
                             QString& Description, std::int32_t& LastVisited,
                             std::uint8_t& StartSize) const {
    if (ThisCategoryID < 0 || ThisCategoryID > Get_TotalLinks()) {
        URL = LinkName = Description = ErrorText;
        return;
    }
    const LinkRow& row = links[static_cast<std::size_t>(ThisCategoryID)];
    URL = row.URL;
    LinkName = row.LinkName;
    Description = row.Description;
    LastVisited = row.LastVisited;
    StartSize = row.StartSize;
}

void LinksData::Get_CategoryData(std::int32_t ThisCategoryID, QString& CategoryName,
                                 std::int32_t& CategoryID,
                                 std::shared_ptr<LinksData>& CategoryClass) const {
    if (ThisCategoryID < 0 || ThisCategoryID > Get_TotalCategories())
        return;
    const CategoryRow& row = categories[static_cast<std::size_t>(ThisCategoryID)];
    CategoryName = row.CategoryName;
    CategoryID = row.CategoryID;
    CategoryClass = row.CategoryClass;
}

std::int32_t LinksData::Get_TotalLinks() const {
    return static_cast<std::int32_t>(links.size()) - 1;
}

std::int32_t LinksData::Get_TotalCategories() const {
    return static_cast<std::int32_t>(categories.size()) - 1;
}

void Load_Global_LinksArray() {
    // The program's rows stand behind the user's while the tree is built, and nowhere else.
    std::vector<LinkRec> rows(Global_LinkArray.begin(),
                              Global_LinkArray.begin() +
                                  static_cast<std::ptrdiff_t>(Link_Count(Global_LinkArray)));
    rows.insert(rows.end(), Global_DefaultLinkArray.begin(),
                Global_DefaultLinkArray.begin() +
                    static_cast<std::ptrdiff_t>(Link_Count(Global_DefaultLinkArray)));
    std::array<std::shared_ptr<LinksData>, Levels> stack;
    stack[0] = Global_LinksRoot = std::make_shared<LinksData>();
    std::size_t deepest = 0; // of the levels that there have been: a row may name one that was left
    std::int32_t serial = 0;
    for (const LinkRec& row : rows) {
        if (row.URL.front() != u'@') {
            stack[Depth_Of(row.URL.front(), deepest)]->Add_Link(
                row.URL.mid(1), row.LinkName, row.Description, row.LastVisited, row.StartSize);
            continue;
        }
        const QChar digit = row.URL.size() > 1 ? row.URL[1] : QChar(u'0');
        const std::size_t depth = Depth_Of(digit, std::min(deepest, Levels - 2));
        stack[depth + 1] = std::make_shared<LinksData>();
        stack[depth]->Add_Category(row.LinkName, serial++, stack[depth + 1]);
        deepest = std::max(deepest, depth + 1);
    }
}
