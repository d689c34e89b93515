#include "accessories/clock/clock_face.h"

#include "controls/aa_line.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

// A resource of a static library has to be asked for, from outside any namespace.
static void Init_Dial() {
    Q_INIT_RESOURCE(clock);
}

using namespace Qt::StringLiterals;

namespace {

constexpr double HalfTurn = 3.1415; // the dial was made with this value, and it is meant
constexpr double Degree = HalfTurn / 180.0;
constexpr double HandDarkness = 0.2;
constexpr ColorValue HandColor = 0x202020;
constexpr QPointF OnePixel{1.0, 1.0};

QPointF Toward(double degrees, double distance) {
    const double angle = degrees * Degree;
    return FaceCenter + QPointF(std::cos(angle), std::sin(angle)) * distance;
}

// The dial's middle is the middle of a pixel, one further than the hands' numbers say. Where the
// pixels of the surface are finer, a line is several of them wide, so that it stays about one
// logical pixel.
void Draw_Side(QImage& surface, const QPointF& from, const QPointF& to) {
    const double scale = surface.devicePixelRatio();
    const int width = std::max(static_cast<int>(std::lround(scale)), 1);
    const QPointF start = (from + OnePixel) * scale;
    const QPointF end = (to + OnePixel) * scale;
    for (int dx = 0; dx < width; ++dx) {
        for (int dy = 0; dy < width; ++dy) {
            DrawAALine(surface, start.x() + dx, start.y() + dy, end.x() + dx, end.y() + dy,
                       HandColor, HandDarkness);
        }
    }
}

} // namespace

std::array<QPointF, 3> Hand_Corners(const Hand& hand, double degrees) {
    const double along = degrees - 90;
    return {Toward(along + 90, hand.BaseWidth / 2), Toward(along + 270, hand.BaseWidth / 2),
            Toward(along, hand.Length)};
}

ClockPicture::ClockPicture(QWidget* parent) : QWidget(parent) {
    Init_Dial();
    setFixedSize(FaceWidth, FaceHeight);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ClockPicture::Create_Surfaces() {
    ClockSurface.Create(this, FaceWidth, FaceHeight);
    ClockBackground.Create(this, FaceWidth, FaceHeight);
    ClockBackground.BackColor = palette::White;
    ClockBackground.Cls();
    QImage dial(ClockBackground.Bitmap().size(), QImage::Format_ARGB32_Premultiplied);
    dial.fill(Qt::transparent);
    QPainter painter(&dial);
    QSvgRenderer(u":/clock/dial.svg"_s).render(&painter, QRectF(dial.rect()));
    painter.end();
    dial.setDevicePixelRatio(ClockBackground.Bitmap().devicePixelRatio());
    ClockBackground.LoadPicture(dial, 0, 0);
}

void ClockPicture::DrawTime(int LongMinutes) {
    minutes = LongMinutes;
    if (ClockSurface.IsCreated())
        Draw_Hands();
    update();
}

void ClockPicture::Draw_Hands() {
    ClockBackground.CopyEntireAreaToHDC(ClockSurface.hdc());
    Draw_Hand(MinuteHand, (minutes % 60) / 60.0 * 360.0);
    Draw_Hand(HourHand, minutes / 720.0 * 360.0);
}

void ClockPicture::Draw_Hand(const Hand& hand, double degrees) {
    const auto corners = Hand_Corners(hand, degrees);
    for (std::size_t i = 0; i < corners.size(); ++i)
        Draw_Side(ClockSurface.Bitmap(), corners[i], corners[(i + 1) % corners.size()]);
}

void ClockPicture::paintEvent(QPaintEvent*) {
    // Also anew on a screen of another density.
    if (!ClockSurface.IsCreated() ||
        !qFuzzyCompare(ClockSurface.Bitmap().devicePixelRatio(), devicePixelRatioF())) {
        Create_Surfaces();
        Draw_Hands();
    }
    ClockSurface.Paint(this, 0, 0, -1, -1, 0, 0);
}
