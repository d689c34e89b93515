// The list of hour setups: rows as plain data, and views for those that are in sight. A file may
// bring tens of thousands of rows.
#pragma once

#include "editors/pages/hour_row_view.h"

#include <QWidget>

#include <vector>

class QScrollBar;

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
    void VScroll1_Change();
    void Focus_Row(int row, int place);
    bool Is_Row(int row) const { return row >= 0 && row < Row_Count(); }

    std::vector<HourRow> rows;
    std::vector<HourRowView*> views; // from the top
    QWidget* Picture4 = nullptr;     // the inside of the frame
    QScrollBar* VScroll1 = nullptr;
    int errorRow = -1;
};
