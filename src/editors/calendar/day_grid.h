// Days in rows of seven, one of which can be selected: by the mouse, by the arrow keys, or by a
// screen reader.
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QPushButton;

class DayGrid : public QWidget {
    Q_OBJECT
public:
    static constexpr int ColumnPitch = 24; // pixels
    static constexpr int RowPitch = 20;

    // As large as its cells; the place is the caller's.
    DayGrid(int rows, QWidget* parent);

    // Shows days 1..days from a cell on, and takes the selection off. spoken: the full name of a
    // day for a screen reader.
    void Set_Days(int firstCell, int days, const std::function<QString(int day)>& spoken);
    bool Is_Shown(int cell) const;
    // The caption of a shown cell.
    int Day_Of(int cell) const { return cell - firstCell + 1; }
    int Cell_Of(int day) const { return firstCell + day - 1; }
    // -1 = none.
    int Selected() const { return selected; }
    // By the program: tells nobody. A hidden cell: nothing happens.
    void Select(int cell);
    // The selected day, else the first one.
    void Focus_Day();
    QRect Cell_Rect(int cell) const;

Q_SIGNALS:
    void DaySelected(int cell);
    // Enter on a day.
    void Confirmed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int Count() const { return static_cast<int>(cells.size()); }
    QPushButton* Cell(int cell) const { return cells[static_cast<std::size_t>(cell)]; }
    int Cell_At(const QPoint& position) const;
    void Choose(int cell);
    bool Step(int key);
    void Hover(int cell);
    void Move_TabStop(int cell);

    std::vector<QPushButton*> cells;
    int firstCell = 0;
    int days = 0;
    int selected = -1;
    int hoverCell = -1;
    int tabStop = 0;
};
