// Where everything on the strip stands, by the strip's width. Pixels of the strip.
#pragma once

#include <QRect>

inline constexpr int ToolbarDesignWidth = 333;
inline constexpr int ToolbarHeight = 20;

// A line from its start up to, and without, its end.
struct LayoutLine {
    int X1 = 0;
    int Y1 = 0;
    int X2 = 0;
    int Y2 = 0;
    bool operator==(const LayoutLine&) const = default;
};

struct ToolbarLayout {
    QRect Shape1;     // outline
    LayoutLine Line1; // highlight along the top
    LayoutLine Line4; // grip
    LayoutLine Line5;
    QRect wbButton2;  // My Links
    QRect wbButton3;  // add reminder
    QRect wbButton5;  // view reminders
    QRect wbButton6;  // view notes
    QRect wbButton4;  // text box
    QRect Shape2;     // frame of the message line
    QRect Picture1;   // message line
    LayoutLine Line2; // shadow under the message line
    LayoutLine Line3; // shadow at its right
    QRect wbButton1;  // close
};

// The buttons at the left stay; all of the width goes to the message line.
ToolbarLayout Layout_At(int width);
