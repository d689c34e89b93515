#include "editors/list/icon_palette.h"

#include "controls/painting.h"
#include "controls/palette.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr ColorValue SelectedBack = 0xDCD6CD;
constexpr int FrameSize = ReminderIconSize + 8;
constexpr int FramePitch = FrameSize + 6;

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

IconSelectPicture::IconSelectPicture(const QString& name, QWidget* parent)
    : QAbstractButton(parent), Tag(name) {
    setCheckable(true);
    setIcon(Reminder_Icon(name, IconTint::Color));
    setAccessibleName(name);
    setToolTip(name);
    setFocusPolicy(Qt::ClickFocus);
    resize(FrameSize, FrameSize);
}

void IconSelectPicture::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return Go(-1, 0);
    case Qt::Key_Right:
        return Go(1, 0);
    case Qt::Key_Up:
        return Go(0, -1);
    case Qt::Key_Down:
        return Go(0, 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return click();
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void IconSelectPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette::To_Color(isChecked() ? SelectedBack : palette::White));
    const int margin = (FrameSize - ReminderIconSize) / 2;
    icon().paint(&painter, rect().adjusted(margin, margin, -margin, -margin));
    Draw_Frame(painter, rect(),
               palette::To_Color(hasFocus() ? palette::Focus_Mark : palette::Outline));
}

IconPalette::IconPalette(QWidget* parent) : QWidget(parent) {
    for (int index = 0; index < ReminderIconCount; ++index) {
        auto* frame = new IconSelectPicture(ReminderIcon_Names()[At(index)], this);
        frame->move(index % Columns * FramePitch, index / Columns * FramePitch);
        connect(frame, &IconSelectPicture::clicked, this,
                [this, frame] { Q_EMIT Icon_Clicked(frame->Tag); });
        connect(frame, &IconSelectPicture::Go, this,
                [this, index](int columns, int rows) { Go_From(index, columns, rows); });
        frames[At(index)] = frame;
    }
    resize(Columns * FramePitch, ReminderIconCount / Columns * FramePitch);
    Set_TabStop(0);
}

void IconPalette::Select_Icon_By_Name(const QString& name) {
    selected = -1;
    for (int index = 0; index < ReminderIconCount; ++index) {
        IconSelectPicture* frame = frames[At(index)];
        const bool matches = frame->Tag.compare(name.trimmed(), Qt::CaseInsensitive) == 0;
        frame->setChecked(matches);
        if (matches)
            selected = index;
    }
    if (selected != -1)
        Set_TabStop(selected);
}

QString IconPalette::Selected_Name() const {
    return selected == -1 ? QString() : frames[At(selected)]->Tag;
}

// One of them takes part in the tab order; the arrow keys do the rest.
void IconPalette::Set_TabStop(int index) {
    for (int each = 0; each < ReminderIconCount; ++each)
        frames[At(each)]->setFocusPolicy(each == index ? Qt::StrongFocus : Qt::ClickFocus);
}

void IconPalette::Go_From(int index, int columns, int rows) {
    const int target = index + columns + rows * Columns;
    if (target < 0 || target >= ReminderIconCount)
        return;
    Set_TabStop(target);
    frames[At(target)]->setFocus(Qt::TabFocusReason);
}
