// The list of hour setups: rows as plain data, and views for those that are in sight. A file may
// bring tens of thousands of rows.
#pragma once

#include "controls/link_label.h"
#include "editors/pages/hour_rules.h"

#include <QWidget>

#include <array>
#include <vector>

class ChkBox;
class QLabel;
class QScrollBar;
class TimeField;

// "x": blue and underlined while the mouse is over it, or the focus on it.
class HrDelLabel : public LinkLabel {
    Q_OBJECT
public:
    explicit HrDelLabel(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// One visible row: tick, "x", captions and fields. It is filled again with another row when the
// list scrolls.
class HourRowView : public QWidget {
    Q_OBJECT
public:
    static constexpr int Height = 27;
    static constexpr int CellCount = 3;

    explicit HourRowView(QWidget* parent);

    // number: of the row; -1 hides all.
    void Show_Row(int number, const HourRow& row);
    void Show_Text(HourCell cell, const QString& text);
    // What was typed into another row cannot be undone into this one.
    void Forget_Undo();
    void Set_Error(bool value);
    int Row() const { return row; }

    // What can have the focus, in the order of Tab.
    std::vector<QWidget*> Focus_Chain() const;
    TimeField* Field(HourCell cell) const { return fields[static_cast<std::size_t>(cell) - 1]; }

Q_SIGNALS:
    void Tick_Changed(int row, bool on);
    void Delete_Click(int row);
    void Cell_Clicked(int row, HourCell cell);
    void Cell_Changed(int row, HourCell cell);
    // By the keyboard: to another row; place: in the focus chain.
    void Leave_Row(int row, int place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    TimeField* Make_Field(HourCell cell);
    void Lay_Out(const HourRow& shown);

    int row = -1;
    bool filling = false;
    bool atFault = false;
    ChkBox* tick = nullptr;
    HrDelLabel* remove = nullptr;
    std::array<QLabel*, CellCount> captions{};
    std::array<TimeField*, CellCount> fields{}; // by HourCell
};

class HourList : public QWidget {
    Q_OBJECT
public:
    HourList(const QRect& place, QWidget* parent);

    // Keeps the scroll position where it can.
    void Set_Rows(std::vector<HourRow> rows);
    const std::vector<HourRow>& Rows() const { return rows; }
    int Row_Count() const { return static_cast<int>(rows.size()); }
    // Nothing happens for a row that is not there.
    void Set_Text(int row, HourCell cell, const QString& text);
    void Set_Enabled(int row, bool on);
    // The record has taken the rows as they are.
    void Note_Stored(const ReminderClass& reminder);
    void Scroll_To(int row);
    // A red rectangle around the row; -1: none.
    void Mark_Error(int row);
    // The view that shows the row, or null.
    HourRowView* View_Of(int row) const;
    const std::vector<HourRowView*>& Views() const { return views; }

Q_SIGNALS:
    void Tick_Changed(int row, bool on);
    void Delete_Click(int row);
    void Cell_Clicked(int row, HourCell cell);
    void Cell_Changed(int row, HourCell cell);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Add_View();
    void Fill_Views();
    void Scrolled();
    void Focus_Row(int row, int place);
    bool Is_Row(int row) const { return row >= 0 && row < Row_Count(); }

    std::vector<HourRow> rows;
    std::vector<HourRowView*> views; // from the top
    QWidget* inside = nullptr;       // of the frame
    QScrollBar* scrollBar = nullptr;
    int errorRow = -1;
};
