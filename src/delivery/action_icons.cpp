#include "delivery/action_icons.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

// A resource of a static library has to be asked for, from outside any namespace.
static void Init_ActionPictures() {
    Q_INIT_RESOURCE(delivery);
}

using namespace Qt::StringLiterals;

namespace {

constexpr int MostScale = 3; // of a screen; beyond it the largest is stretched

QIcon Drawn_Icon(const QString& file) {
    QIcon icon;
    QSvgRenderer renderer(file);
    for (int scale = 1; scale <= MostScale; ++scale) {
        QPixmap picture(ActionIconSize * scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        renderer.render(&painter, QRectF(QPointF(), QSizeF(picture.size())));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

QIcon Action_Icon(FunctionType kind) {
    Init_ActionPictures();
    switch (kind) {
    case FunctionType::OpenPage:
        return Drawn_Icon(u":/delivery/icons/open_page.svg"_s);
    case FunctionType::OpenFile:
        return Drawn_Icon(u":/delivery/icons/open_file.svg"_s);
    case FunctionType::None:
        break;
    }
    return {};
}
