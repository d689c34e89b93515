// The controls of the hour page.
#pragma once

#include "controls/chk_box.h"
#include "controls/wb_button.h"
#include "editors/pages/clock_popup.h"
#include "editors/pages/hour_list.h"
#include "editors/pages/hour_page.h"
#include "editors/pages/page_controls.h"

struct HourPage::View {
    View(HourPage& page, EditHost& host);

    ConditionFields Read_Fields() const;

    HourPage& page;
    EditHost& host;
    HourList* List = nullptr;
    TimeField* Text5 = nullptr;
    QLineEdit* Text6 = nullptr;
    TimeField* Text7 = nullptr;
    TimeField* Text13 = nullptr;
    std::array<ChkBox*, 2> p3Chk{}; // "At", "When the program starts"
    std::array<wbButton*, 3> wbButton1{};

    // The clock's box for the rows, whose own fields come and go with scrolling: its text is copied
    // to the cell that it stands for.
    QLineEdit* p4TextWrapper = nullptr;
    int wrapperRow = -1; // -1 = no cell
    HourCell wrapperCell = HourCell::Start;
    // While one of the two is written because of the other.
    bool p4TextWrapper_Locked = false;

    ClockPopup Clock;

private:
    void Build_List();
    void Build_Simple();
    void Build_Every();
    TimeField* Add_TimeField(const QString& name, int left, int top);
    void Add_Button(Condition condition, int top, const QString& spoken);
};
