#include "controls/icons.h"

#include "controls/svg_icon.h"

#include <QString>

// A resource of a static library has to be asked for, from outside any namespace.
static void Init_Pictures() {
    Q_INIT_RESOURCE(controls);
}

using namespace Qt::StringLiterals;

namespace {

// In the order of IconName.
constexpr const char* Files[] = {
    "add_reminder", "view_reminders", "view_notes",  "open_textbox", "program",  "new_item",
    "delete_item",  "copy_item",      "paste_item",  "run_item",     "help",     "tooltip_mark",
    "tick",         "calendar",       "open_folder", "undo",         "apply",    "move_up",
    "move_down",    "move_left",      "move_right",  "link",         "category", "separator",
    "note",         "note_category",
};

QString File_Of(IconName name) {
    return u":/icons/%1.svg"_s.arg(QLatin1String(Files[static_cast<std::size_t>(name)]));
}

} // namespace

QIcon Load_Icon(IconName name) {
    Init_Pictures();
    return Svg_Icon(File_Of(name));
}

QSize Icon_Size(IconName name) {
    if (name == IconName::Program)
        return {48, 48};
    return name < IconName::Program ? QSize(13, 11) : QSize(16, 16);
}
