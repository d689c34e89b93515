#include "toolbar/toolbar_layout.h"

#include <algorithm>

ToolbarLayout Layout_At(int width) {
    ToolbarLayout at;
    at.Shape1 = QRect(0, 0, width, ToolbarHeight);
    at.Line1 = {1, 1, width - 2, 1};
    at.Line4 = {2, 3, 2, 18};
    at.Line5 = {3, 3, 3, 18};
    at.wbButton2 = QRect(8, 3, 97, 15);
    at.wbButton3 = QRect(109, 3, 17, 15);
    at.wbButton5 = QRect(129, 3, 19, 15);
    at.wbButton6 = QRect(151, 3, 19, 15);
    at.wbButton4 = QRect(173, 3, 19, 15);
    // A width out of the settings can be too small for any message line.
    at.Shape2 = QRect(195, 3, std::max(width - 219, 0), 15);
    at.Picture1 = QRect(196, 4, std::max(at.Shape2.width() - 2, 0), 13);
    const int line2End = 197 + at.Shape2.width() - 1;
    at.Line2 = {197, 18, line2End, 18};
    at.Line3 = {line2End - 1, 5, line2End - 1, 18};
    at.wbButton1 = QRect(width - 19, 3, 16, 15);
    return at;
}
