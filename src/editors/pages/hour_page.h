// "Hours Setup": the list of when in the day the reminder fires, and the conditions to add.
#pragma once

#include "editors/pages/edit_host.h"
#include "editors/pages/hour_rules.h"

#include <QWidget>

#include <memory>

class HourPage : public QWidget {
    Q_OBJECT
public:
    HourPage(EditHost& host, QWidget* parent);
    ~HourPage() override;

    void Clear_View();
    // Rebuilds the list from the record.
    void Show_HourSetup_List(const ReminderClass& reminder);
    // Rebuilds the record of the host's selected reminder from the list; false: a row is at fault.
    bool Save_HourSetup_List(ShowErrors show);

    void Hide_ErrorShapes();
    // The clock: hidden when the user goes elsewhere, unloaded with the window.
    void Hide_Popup();
    void Unload_Popup();

private:
    void Connect_List();
    void Connect_Fields();
    void Show_Error_Shape(int row);
    void wbButton1_Click(int index);
    void hrDelLabel_Click(int row);
    void Show_Clock_ForCell(int row, HourCell cell);
    void p4TextWrapper_Change(const QString& text);
    void p4Text_Change(int row, HourCell cell);

    struct View;
    std::unique_ptr<View> view;
};
