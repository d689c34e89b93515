#include "editors/calendar/day_grid.h"

#include "controls/painting.h"
#include "controls/palette.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int Columns = 7;
constexpr ColorValue FrameColor = 0xC0C0C0;
constexpr ColorValue HoverColor = 0xDCB7B1;
constexpr ColorValue SelectedColor = palette::Button_Back;

// The number alone: frame, hover and selection are the grid's.
class DayCell : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(palette::To_Color(palette::Black));
        painter.drawText(rect(), Qt::AlignCenter, text());
        if (hasFocus())
            Draw_Frame(painter, rect(), palette::To_Color(palette::Focus_Mark));
    }
};

} // namespace

DayGrid::DayGrid(int rows, QWidget* parent) : QWidget(parent) {
    // Neighbours share the line between them.
    setFixedSize(Columns * ColumnPitch + 1, rows * RowPitch + 1);
    for (int i = 0; i < rows * Columns; ++i) {
        auto* cell = new DayCell(this);
        cell->setObjectName(u"DaysLabel%1"_s.arg(i));
        cell->setGeometry(Cell_Rect(i).adjusted(1, 1, -1, -1));
        cell->setToolTip(u"Click on a day to select it"_s);
        cell->setCheckable(true);
        cell->setFocusPolicy(Qt::ClickFocus);
        cell->setMouseTracking(true);
        cell->installEventFilter(this);
        cell->hide();
        connect(cell, &QPushButton::clicked, this, [this, i] { Choose(i); });
        cells.push_back(cell);
    }
    setMouseTracking(true);
}

void DayGrid::Set_Days(int first, int count, const std::function<QString(int day)>& spoken) {
    firstCell = first;
    days = count;
    selected = -1;
    hoverCell = -1;
    for (int i = 0; i < Count(); ++i) {
        Cell(i)->setChecked(false);
        Cell(i)->setVisible(Is_Shown(i));
        if (!Is_Shown(i))
            continue;
        Cell(i)->setText(QString::number(Day_Of(i)));
        Cell(i)->setAccessibleName(spoken(Day_Of(i)));
    }
    Move_TabStop(firstCell);
    update();
}

bool DayGrid::Is_Shown(int cell) const {
    return cell >= firstCell && cell < firstCell + days && cell < Count();
}

QRect DayGrid::Cell_Rect(int cell) const {
    return {cell % Columns * ColumnPitch, cell / Columns * RowPitch, ColumnPitch + 1, RowPitch + 1};
}

int DayGrid::Cell_At(const QPoint& position) const {
    for (int i = 0; i < Count(); ++i)
        if (Is_Shown(i) && Cell_Rect(i).contains(position))
            return i;
    return -1;
}

void DayGrid::Select(int cell) {
    if (!Is_Shown(cell))
        return;
    selected = cell;
    for (int i = 0; i < Count(); ++i)
        Cell(i)->setChecked(i == cell);
    Move_TabStop(cell);
    update();
}

void DayGrid::Choose(int cell) {
    if (!Is_Shown(cell))
        return;
    Select(cell);
    Cell(cell)->setFocus();
    Q_EMIT DaySelected(cell);
}

// One day is reached with the tab key, the others from there with the arrows.
void DayGrid::Move_TabStop(int cell) {
    Cell(tabStop)->setFocusPolicy(Qt::ClickFocus);
    tabStop = cell;
    Cell(tabStop)->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(Cell(tabStop));
}

void DayGrid::Focus_Day() {
    Cell(tabStop)->setFocus();
}

bool DayGrid::Step(int key) {
    int step = 0;
    switch (key) {
    case Qt::Key_Left:
        step = -1;
        break;
    case Qt::Key_Right:
        step = 1;
        break;
    case Qt::Key_Up:
        step = -Columns;
        break;
    case Qt::Key_Down:
        step = Columns;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Where nobody takes it, the key is for the window around the grid.
        if (!isSignalConnected(QMetaMethod::fromSignal(&DayGrid::Confirmed)))
            return false;
        Q_EMIT Confirmed();
        return true;
    default:
        return false;
    }
    Choose(selected == -1 ? tabStop : selected + step);
    return true;
}

bool DayGrid::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        return Step(static_cast<QKeyEvent*>(event)->key());
    if (event->type() == QEvent::MouseMove) {
        const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
        Hover(Cell_At(static_cast<QWidget*>(watched)->mapToParent(place)));
    }
    return QWidget::eventFilter(watched, event);
}

// A press on the line between the numbers.
void DayGrid::mousePressEvent(QMouseEvent* event) {
    Choose(Cell_At(event->position().toPoint()));
}

void DayGrid::leaveEvent(QEvent*) {
    Hover(-1);
}

void DayGrid::Hover(int cell) {
    if (cell == hoverCell)
        return;
    hoverCell = cell;
    update();
}

void DayGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int i = 0; i < Count(); ++i) {
        if (!Is_Shown(i))
            continue;
        const ColorValue back = i == hoverCell  ? HoverColor
                                : i == selected ? SelectedColor
                                                : palette::White;
        painter.fillRect(Cell_Rect(i), palette::To_Color(back));
        Draw_Frame(painter, Cell_Rect(i), palette::To_Color(FrameColor));
    }
    if (selected != -1)
        Draw_Frame(painter, Cell_Rect(selected), palette::To_Color(palette::Button_Border));
}
