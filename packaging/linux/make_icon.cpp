// Draws the program's icon in one size: make_icon SVG SIZE PNG
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 4) {
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    const int size = QByteArray(argv[2]).toInt();
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        drawing.render(&painter);
    }
    if (!drawing.isValid() || !picture.save(QString::fromLocal8Bit(argv[3]), "PNG")) {
        std::fprintf(stderr, "cannot draw %s as %s\n", argv[1], argv[3]);
        return 1;
    }
    return 0;
}
