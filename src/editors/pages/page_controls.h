// The small controls that the pages are made of: rectangles, and fields for times and categories.
#pragma once

#include "controls/palette.h"

#include <QLineEdit>
#include <QWidget>

#include <optional>

class ComboBox;
class QLabel;

namespace pages {
inline constexpr ColorValue Frame_Border = 0xC0C0C0;
inline constexpr ColorValue Error_Red = 0x0000FF;
inline constexpr int FieldHeight = 21;
inline constexpr int ButtonHeight = 23;

// name: what a screen reader says. A longer text than maxLength letters is refused whole.
void Set_UpField(QLineEdit* field, const QString& name, const QRect& place, int maxLength);
// Leaves the cursor where it is when the text is there already.
void Show_Text(QLineEdit* field, const QString& text);
// For the name of a category, taken as it is typed. label: the text before it, if one is seen.
ComboBox* Add_CategoryBox(QWidget* parent, const QRect& place, QLabel* label = nullptr);
} // namespace pages

// A rectangle without input: a group's frame, a highlight behind it, or a mark around a field.
class Shape : public QWidget {
public:
    struct Look {
        std::optional<ColorValue> Fill;
        ColorValue Border = pages::Frame_Border;
        int Thickness = 1; // pixels
    };
    Shape(const QRect& place, const Look& look, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Look look;
};

// A hidden red rectangle two pixels around the place.
Shape* Make_ErrorShape(const QRect& around, QWidget* parent);

// A field that tells of clicks and of the focus: the clock comes and goes by them.
class TimeField : public QLineEdit {
    Q_OBJECT
public:
    explicit TimeField(QWidget* parent) : QLineEdit(parent) {}

Q_SIGNALS:
    void Clicked();
    void Got_Focus();
    // Not when the field's own popup menu takes it.
    void Lost_Focus();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
