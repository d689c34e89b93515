#include "controls/svg_icon.h"

#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

constexpr double DisabledOpacity = 0.4;

void Turn_Grey(QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int grey = qGray(row[x]);
            row[x] = qRgba(grey, grey, grey, qAlpha(row[x]));
        }
    }
}

class PictureEngine : public QIconEngine {
public:
    PictureEngine(const QString& pictureFile, PictureTint pictureTint)
        : file(pictureFile), tint(pictureTint) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        if (mode == QIcon::Disabled)
            painter->setOpacity(painter->opacity() * DisabledOpacity);
        if (tint == PictureTint::Color) {
            QSvgRenderer(file).render(painter, rect);
            return;
        }
        const qreal scale = painter->device()->devicePixelRatioF();
        QImage picture((QSizeF(rect.size()) * scale).toSize(), QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        QPainter onPicture(&picture);
        QSvgRenderer(file).render(&onPicture, picture.rect());
        onPicture.end();
        Turn_Grey(picture);
        painter->drawImage(rect, picture);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new PictureEngine(file, tint); }

private:
    QString file;
    PictureTint tint;
};

} // namespace

QIcon Svg_Icon(const QString& file, PictureTint tint) {
    return QIcon(new PictureEngine(file, tint));
}
