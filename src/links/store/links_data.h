// One level of the links menu: its links and its categories, in order of their rows.
#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class LinksData {
public:
    void Add_Link(const QString& URL, const QString& LinkName, const QString& Description,
                  std::int32_t LastVisited, std::uint8_t StartSize);
    void Add_Category(const QString& CategoryName, std::int32_t CategoryID,
                      std::shared_ptr<LinksData> CategoryClass);
    // URL without the depth digit. An index outside gives "- Error - " in all three texts.
    void Get_LinkData(std::int32_t ThisCategoryID, QString& URL, QString& LinkName,
                      QString& Description, std::int32_t& LastVisited,
                      std::uint8_t& StartSize) const;
    void Get_CategoryData(std::int32_t ThisCategoryID, QString& CategoryName,
                          std::int32_t& CategoryID,
                          std::shared_ptr<LinksData>& CategoryClass) const;
    // The last used index, -1 = none; not a count.
    std::int32_t Get_TotalLinks() const;
    std::int32_t Get_TotalCategories() const;

private:
    struct LinkRow {
        QString URL;
        QString LinkName;
        QString Description;
        std::int32_t LastVisited = 0;
        std::uint8_t StartSize = 0;
    };
    struct CategoryRow {
        QString CategoryName;
        std::int32_t CategoryID = 0;
        std::shared_ptr<LinksData> CategoryClass;
    };
    std::vector<LinkRow> links;
    std::vector<CategoryRow> categories;
};

extern std::shared_ptr<LinksData> Global_LinksRoot;

// Builds the tree from the user's rows and, behind them, the program's own. A row deeper than the
// tree goes reaches the deepest level there is.
void Load_Global_LinksArray();
