#include "toolbar/menu_tables.h"

namespace {

constexpr int Number_Of(OptionsItem item) {
    return static_cast<int>(item);
}

constexpr MenuRow SrOnlyRows[] = {
    {Number_Of(OptionsItem::Ok_GotIt), u"Ok, I got it"},
    {Number_Of(OptionsItem::SR_Separator), u"-"},
};

constexpr MenuRow OptionsRows[] = {
    {0, u"Remind me again in"}, {1, u"-"}, {2, u"Disable for today"}, {3, u"-"}, {4, u"Disable"},
};

constexpr MenuRow HideOptionsRows[] = {
    {0, u"Minimize (Left click)"},
    {1, u"Hide (Shift + Left click)"},
    {2, u"-"},
    {3, u"Unload Toolbar (Ctrl + Left Click)"},
};

constexpr MenuRow TrayRows[] = {
    {0, u"Show Toolbar"},
    {1, u"-"},
    {2, u"Add new reminder..."},
    {3, u"-"},
    {4, u"View Reminders"},
    {5, u"View Notes"},
    {6, u"-"},
    {7, u"Setup..."},
    {8, u"-"},
    {9, u"Exit Tockly"},
};

} // namespace

std::span<const MenuRow> mnuOptions_SR_Only() {
    return SrOnlyRows;
}
std::span<const MenuRow> mnuOptions() {
    return OptionsRows;
}
std::span<const MenuRow> mnuHideOptions() {
    return HideOptionsRows;
}
std::span<const MenuRow> mnuTrayIcon() {
    return TrayRows;
}
