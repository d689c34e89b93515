// "Date Setup": on which days the reminder fires, and from which day on.
#pragma once

#include "editors/pages/edit_host.h"

#include <QWidget>

#include <memory>
#include <optional>

class DatePage : public QWidget {
    Q_OBJECT
public:
    DatePage(EditHost& host, QWidget* parent);
    ~DatePage() override;

    // The sample values of a page without a reminder.
    void Clear_View();
    // The date part of a record; may show a box.
    void Load_View(const ReminderClass& reminder);
    // False: a field is at fault; with ShowErrors::Yes the user has been told and sees its mark.
    bool Save_DateSetup_To_Reminder(ReminderClass& reminder, ShowErrors show);
    // While a record is being loaded this does nothing.
    void Update_NextRun_Labels();
    void Set_LoadingView(bool loading);
    void Text4_SetDate_FromCalendar(int Index, const QString& NewDate);

    void Hide_ErrorShapes();
    // The calendar.
    void Hide_Popup();

private:
    void Connect_Controls();
    bool Date_Option_Checked(int box);
    void Date_Option_Unchecked(int box);
    void Option1_Click(int option);
    void wbButton2_Click(int index);
    void HideErrLabelTimer_Tick();
    void Show_Error_Shape(int mark);
    void Show_NextRun_Texts(std::optional<DateType> kind, const QString& date);
    void Highlight_DateType_Box(std::optional<DateType> kind);

    struct View;
    std::unique_ptr<View> view;
};
