#include "delivery/action_icons.h"

#include "controls/svg_icon.h"

// A resource of a static library has to be asked for, from outside any namespace.
static void Init_ActionPictures() {
    Q_INIT_RESOURCE(delivery);
}

using namespace Qt::StringLiterals;

QIcon Action_Icon(FunctionType kind) {
    Init_ActionPictures();
    switch (kind) {
    case FunctionType::OpenPage:
        return Svg_Icon(u":/delivery/icons/open_page.svg"_s);
    case FunctionType::OpenFile:
        return Svg_Icon(u":/delivery/icons/open_file.svg"_s);
    case FunctionType::None:
        break;
    }
    return {};
}
