// The one button of the program: a flat coloured rectangle with a border of one pixel, a centred
// caption and an optional picture. All coordinates are pixels.
#pragma once

#include "controls/back_style.h"
#include "controls/input.h"
#include "controls/mouse_watch.h"
#include "controls/palette.h"

#include <QIcon>
#include <QLine>
#include <QRect>
#include <QWidget>

#include <optional>
#include <vector>

enum class ButtonStyle { System = 0, Flat = 1 };

class wbButton : public QWidget {
    Q_OBJECT
public:
    explicit wbButton(QWidget* parent = nullptr);

    const QString& Caption() const { return caption; }
    // Centres the new caption one pixel left of the middle, until the next resize.
    void Set_Caption(const QString& text);
    void Set_BackColor(ColorValue color);
    void Set_ForeColor(ColorValue color);
    void Set_BackStyle(BackStyle value);
    void Set_HLcolor(ColorValue color);
    void Set_bordercolor(ColorValue color);
    void Set_HBorderColor(ColorValue color);
    void Set_HForeColor(ColorValue color);
    ButtonStyle Style() const { return style; }
    void Set_Style(ButtonStyle value);
    void Set_ToolTipTextLabel(const QString& text);
    // A picture and the size it is shown at.
    void Set_Picture(const QIcon& icon, const QSize& size);
    void Set_CenterImage(bool centered);
    void Set_ImageTOP(int top);
    void Set_ImageLEFT(int left);
    // The right button presses and clicks as the left one does.
    void Set_AllowRightClick(bool allowed) { allowRightClick = allowed; }

    // Whether caption and border change their colours while the mouse is over the button.
    bool HMouseover = false;
    // Click and DblClick come as the system counts them; else two quick clicks are two Clicks.
    bool AcceptsDBLClick = false;

    void Refresh() { repaint(); }
    // Marks the focus, once the button has it, as for somebody who came by the keyboard.
    void Mark_Focus();
    // Adds a rectangle, or a line that stops short of its end point, to the face for good.
    void DRAWShape(int shapeTop, int shapeLeft, int shapeWidth, int shapeHeight);
    void DRAWLine(int lineX1, int lineY1, int lineX2, int lineY2);

    // What the face shows now.
    QColor Face_Color() const;
    QColor Caption_Color() const;
    QColor Border_Color() const;
    QRect Caption_Rect() const;
    QRect Picture_Rect() const;

Q_SIGNALS:
    void Click();
    void DblClick();
    // keyCode is the toolkit's key number, shift a sum of ShiftKey.
    void KeyDown(int keyCode, std::int16_t shift);
    void KeyPress(std::int16_t keyAscii);
    void KeyUp(int keyCode, std::int16_t shift);
    // x and y are pixels from the button's corner, outside values while a press lasts included.
    void MouseDown(MouseButton button, std::int16_t shift, float x, float y);
    void MouseMove(MouseButton button, std::int16_t shift, float x, float y);
    void MouseUp(MouseButton button, std::int16_t shift, float x, float y);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool Presses(MouseButton button) const;
    void Set_Highlight(bool on);
    void Press(QMouseEvent* event);
    void Begin_MouseOver(const QPointF& position);
    void End_MouseOver();
    void Let_Go();
    void Paint_SystemFace(QPainter& painter);
    void Paint_Decorations(QPainter& painter);
    QRect Caption_Room() const;
    void Paint_Caption(QPainter& painter);

    QString caption;
    ColorValue backColor = palette::Button_Back;
    ColorValue foreColor = palette::System_ButtonText;
    ColorValue hlColor = palette::Button_Pressed;
    ColorValue borderColor = palette::Button_Border;
    ColorValue hBorderColor = palette::White;
    ColorValue hForeColor = palette::White;
    BackStyle backStyle = BackStyle::Opaque;
    ButtonStyle style = ButtonStyle::Flat;
    QIcon picture;
    QSize pictureSize;
    bool centerImage = false;
    int imageTop = 0;
    int imageLeft = 0;
    bool allowRightClick = false;
    std::vector<QRect> shapes;
    std::vector<QLine> lines;

    // An assigned caption is as wide as its text, around this middle, until the next resize.
    std::optional<int> labelMiddle;
    int labelTop = 0;
    MouseButton lastPressed = MouseButton::None;
    bool highlighted = false;
    bool spaceHeld = false;
    bool doubleClicked = false; // the release that follows belongs to a double click
    bool focusByKey = false;    // only a keyboard user needs the focus mark
    MouseWatch mouseOver;
};
