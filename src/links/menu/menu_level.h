// One level of the links as the menu shows it: rows, captions and layout. Worked out when the level
// is first opened and kept for as long as the tree stands: a menu with a thousand rows then opens
// as fast as one with ten.
#pragma once

#include "links/menu/menu_layout.h"

#include <QFont>
#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

class LinksData;

struct MenuItem {
    bool IsCategory = false;
    std::int32_t Serial = 0; // of a category
    QString URL;             // "-": a separator
    QString Description;
    std::uint8_t StartSize = 0;
    std::shared_ptr<LinksData> Level = {}; // of a category
};

// In all of them the categories come first, then the links.
struct MenuLevel {
    std::vector<MenuItem> Items;
    std::vector<QString> Captions; // as shown
    std::vector<MenuRowKind> Kinds;
    MenuLayout Layout;
};

inline const QString CategoriesText = QStringLiteral("Categories");
inline const QString LinksText = QStringLiteral("Links");
QFont Menu_HeaderFont();

// The levels of a tree that have been opened.
class MenuLevels {
public:
    std::shared_ptr<const MenuLevel> Level_Of(const std::shared_ptr<LinksData>& links);

private:
    // By the level itself, so that its address is not used again meanwhile.
    std::map<std::shared_ptr<LinksData>, std::shared_ptr<const MenuLevel>> known;
};
