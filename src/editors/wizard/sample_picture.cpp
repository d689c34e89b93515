#include "editors/wizard/sample_picture.h"

#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;
using palette::To_Color;

namespace {

constexpr qsizetype ShownText = 500; // more than any sample has room for
constexpr int ToolbarHeight = 22;
constexpr int WindowWidth = 254;
constexpr int WindowHeight = 76;
constexpr ColorValue ScreenColor = 0xB08050;

void Paint_Box(QPainter& painter, const QRect& box, ColorValue back, ColorValue frame) {
    painter.fillRect(box, To_Color(back));
    Draw_Frame(painter, box, To_Color(frame));
}

QString One_Line(const QString& message) {
    return message.left(ShownText).replace("\r\n"_L1, ". "_L1);
}

} // namespace

SamplePicture::SamplePicture(const QRect& place, QWidget* parent) : QWidget(parent) {
    setGeometry(place);
    setFont(Small_Font());
    setObjectName(u"samplePicture"_s);
}

void SamplePicture::Show_Sample(ReminderType newType, const QString& newMessage) {
    type = newType;
    message = newMessage;
    setAccessibleName("Preview: "_L1 + One_Line(message));
    update();
}

void SamplePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (type == ReminderType::InsideToolbar)
        Paint_Toolbar(painter);
    else
        Paint_Window(painter);
}

void SamplePicture::Paint_Toolbar(QPainter& painter) const {
    const QRect bar(0, (height() - ToolbarHeight) / 2, width(), ToolbarHeight);
    Paint_Box(painter, bar, palette::Toolbar_Back, palette::Outline);
    constexpr int buttons = 4;
    for (int i = 0; i < buttons; ++i)
        Paint_Box(painter, {bar.x() + 4 + i * 20, bar.y() + 3, 16, 16}, palette::Button_Back,
                  palette::Button_Border);
    const QRect line(bar.x() + 88, bar.y() + 3, bar.width() - 116, 16);
    Paint_Box(painter, line, palette::Message_Back, palette::Message_Frame);
    Paint_Box(painter, {line.right() + 9, bar.y() + 3, 16, 16}, palette::Button_Back,
              palette::Button_Border);
    painter.setPen(To_Color(palette::Message_Text));
    const QRect text = line.adjusted(4, 0, -4, 0);
    painter.drawText(text, Qt::AlignVCenter,
                     fontMetrics().elidedText(One_Line(message), Qt::ElideRight, text.width()));
}

void SamplePicture::Paint_Window(QPainter& painter) const {
    const int windowHeight = std::min(WindowHeight, height());
    const QRect window((width() - WindowWidth) / 2, (height() - windowHeight) / 2, WindowWidth,
                       windowHeight);
    Paint_Box(painter, window, palette::ReminderWindow_Outline_Back, palette::Outline);
    const QRect note = window.adjusted(4, 4, -4, -23);
    Paint_Box(painter, note, palette::ReminderWindow_Text_Back, palette::Outline);
    painter.setPen(To_Color(palette::Black));
    painter.drawText(note.adjusted(4, 3, -4, -3), Qt::TextWordWrap, message.left(ShownText));
    const QRect options(window.right() - 84, window.bottom() - 19, 58, 16);
    const QRect close(window.right() - 20, window.bottom() - 19, 16, 16);
    for (const QRect& button : {options, close})
        Paint_Box(painter, button, palette::Button_Back, palette::Button_Border);
    painter.drawText(options, Qt::AlignCenter, u"Options"_s);
    painter.drawText(close, Qt::AlignCenter, u"x"_s);
}

ModePicture::ModePicture(ReminderType mode, const QPoint& place, QWidget* parent)
    : QWidget(parent), type(mode) {
    setGeometry(QRect(place, Size));
}

void ModePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Paint_Box(painter, rect(), ScreenColor, palette::Outline);
    const bool onToolbar = type == ReminderType::InsideToolbar;
    const QRect toolbar(6, 1, 24, 5);
    painter.fillRect(toolbar, To_Color(palette::Toolbar_Back));
    if (onToolbar) {
        painter.fillRect(toolbar.adjusted(6, 1, -2, -1), To_Color(palette::Message_Frame));
        return;
    }
    const QRect window =
        type == ReminderType::NextToToolbar ? QRect(31, 1, 14, 10) : QRect(13, 10, 22, 14);
    Paint_Box(painter, window, palette::Message_Back, palette::Message_Shadow);
    for (int line = window.y() + 3; line < window.bottom() - 1; line += 3)
        Draw_Line(painter, {window.x() + 3, line}, {window.right() - 2, line},
                  To_Color(palette::Outline));
}
