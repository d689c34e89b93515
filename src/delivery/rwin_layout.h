// The measures of the reminder window and the rules that follow from its text and its actions.
// All lengths are pixels of the window.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>
#include <QTextOption>

#include <vector>

namespace rwin {

inline constexpr int Width = 253;
inline constexpr int ButtonHeight = 17;
inline constexpr int ButtonGap = 4;
inline constexpr int FirstRow = 56; // top of the first action button
inline constexpr QRect TextBox(4, 4, 245, 49);
inline constexpr int TextMargin = 2; // left and right of the text
inline constexpr int OptionsLeft = 168;
inline constexpr int OptionsWidth = 58;
inline constexpr int CloseLeft = 232;
inline constexpr int CloseWidth = 15;
// Room for the picture of an action, on both sides of the caption in the middle.
inline constexpr int PictureRoom = 19;

// Rows that n actions take; without any there is one all the same.
constexpr int Rows_For(int actions) {
    return actions < 1 ? 1 : actions;
}
constexpr int Row_Top(int row) {
    return row * (ButtonHeight + ButtonGap) + FirstRow;
}
constexpr int Shape_Height(int rows) {
    return rows * (ButtonHeight + ButtonGap) + FirstRow + 1;
}

// One width for all action buttons, so that they end before the Options button.
int Action_Width(const std::vector<int>& captionWidths);
// Between words; anywhere when the text has words so long that looking for their ends takes time.
QTextOption::WrapMode Wrap_Mode(const QString& text);
// Lines that a text takes in a box of this width; counting ends above "most".
int Line_Count(const QString& text, const QFont& font, int width, int most);
// Whether the text is higher than the box, by the height of a line of capitals.
bool Needs_ScrollBar(const QString& text, const QFont& font);

} // namespace rwin
