// One visible row of the hour list: tick, "x", captions and fields. It is filled again with
// another row when the list scrolls.
#pragma once

#include "controls/chk_box.h"
#include "editors/pages/hour_rules.h"
#include "editors/pages/page_controls.h"

#include <array>
#include <vector>

class QLabel;

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
    HrDelLabel* hrDelLabel = nullptr;
    TimeField* p4Text(HourCell cell) const { return fields[static_cast<std::size_t>(cell) - 1]; }

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
    ChkBox* p4Chk = nullptr;
    std::array<QLabel*, CellCount> p4label{};
    std::array<TimeField*, CellCount> fields{}; // by HourCell
};
