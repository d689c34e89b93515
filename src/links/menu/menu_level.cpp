#include "links/menu/menu_level.h"

#include "controls/metrics.h"
#include "links/menu/caption_width.h"
#include "links/store/links_data.h"

#include <QFontMetrics>

using namespace Qt::StringLiterals;

namespace {

void Add_Categories(MenuLevel& level, const LinksData& links) {
    for (std::int32_t i = 0; i <= links.Get_TotalCategories(); ++i) {
        MenuItem& item = level.Items.emplace_back();
        item.IsCategory = true;
        QString name;
        links.Get_CategoryData(i, name, item.Serial, item.Level);
        level.Captions.push_back(Shown_Caption(name));
        level.Kinds.push_back(MenuRowKind::Category);
    }
}

void Add_Links(MenuLevel& level, const LinksData& links) {
    for (std::int32_t i = 0; i <= links.Get_TotalLinks(); ++i) {
        MenuItem& item = level.Items.emplace_back();
        QString name;
        std::int32_t lastVisited = 0;
        links.Get_LinkData(i, item.URL, name, item.Description, lastVisited, item.StartSize);
        const bool isLine = item.URL == "-"_L1;
        level.Captions.push_back(isLine ? QString() : Shown_Caption(name));
        level.Kinds.push_back(isLine ? MenuRowKind::Separator : MenuRowKind::Link);
    }
}

// "Categories" is the wider one wherever it stands.
int Widest_Header(const LinksData& links) {
    const bool hasCategories = links.Get_TotalCategories() != -1;
    return QFontMetrics(Menu_HeaderFont())
        .horizontalAdvance(hasCategories ? CategoriesText : LinksText);
}

} // namespace

QFont Menu_HeaderFont() {
    QFont bold = Small_Font();
    bold.setBold(true);
    return bold;
}

std::shared_ptr<const MenuLevel> MenuLevels::Level_Of(const std::shared_ptr<LinksData>& links) {
    std::shared_ptr<const MenuLevel>& one = known[links];
    if (one == nullptr) {
        auto level = std::make_shared<MenuLevel>();
        Add_Categories(*level, *links);
        Add_Links(*level, *links);
        const int widest = Widest_CaptionOf(level->Captions, QFontMetrics(Small_Font()));
        level->Layout =
            Lay_OutMenu(level->Kinds, widest, level->Kinds.empty() ? 0 : Widest_Header(*links));
        one = std::move(level);
    }
    return one;
}
