// The analogue face of the clock: a dial, and two hands that follow a time.
#pragma once

#include "controls/virtual_dc.h"

#include <QPointF>
#include <QWidget>

#include <array>

// Pixels. The dial's picture is made for these.
inline constexpr int FaceWidth = 116;
inline constexpr int FaceHeight = 127;
inline constexpr QPointF FaceCenter{56.0, 54.0};

struct Hand {
    double BaseWidth = 0;
    double Length = 0;
};
inline constexpr Hand MinuteHand{14, 38};
inline constexpr Hand HourHand{12, 25};

// A thin triangle: both ends of the base, which lies across the centre, and the tip. degrees: from
// 12 o'clock on, clockwise.
std::array<QPointF, 3> Hand_Corners(const Hand& hand, double degrees);

class ClockPicture : public QWidget {
    Q_OBJECT
public:
    explicit ClockPicture(QWidget* parent);
    // Minutes since midnight.
    void DrawTime(int LongMinutes);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Create_Surfaces();
    void Draw_Hands();
    void Draw_Hand(const Hand& hand, double degrees);

    VirtualDC ClockSurface;
    VirtualDC ClockBackground; // the bare dial
    int minutes = 0;
};
