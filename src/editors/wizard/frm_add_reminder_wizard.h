// The step-by-step way to a new reminder: one question a page, with the steps listed at the top.
#pragma once

#include "controls/form.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/wizard/wizard_rules.h"

#include <QPointer>

#include <array>

class QLabel;
class WizardPageView;
class wbButton;

class frmAddReminderWizard : public Form {
    Q_OBJECT
public:
    frmAddReminderWizard();

    // Guards the toolbar against hiding and brings it back. That pumps events.
    void Load();

    void frmCalendarCopy_DateSelected(const QString& NewDate);
    void FrmCalendarCopy2_DateSelected(const QString& NewDate);
    void FrmCalendarCopy3_DateSelected(const QString& NewDate);

protected:
    bool Query_Unload(UnloadMode mode) override;
    void On_Unload() override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    using DateTaker = void (frmAddReminderWizard::*)(const QString&);

    void Build_SideList();
    void Build_Pages();
    void Build_Buttons();
    void Show_Page(WizardPage page);
    void Mark_Step(WizardPage page);
    void Next_Click();
    void Previous_Click();
    WizardPageView* Page(WizardPage page) const;
    void Open_Calendar();
    void Open_Calendar(QPointer<frmCalendar>& calendar, const QString& date, DateTaker taker);

    WizardState state;
    WizardPage CurrentPage = WizardPage::Type;
    bool Finished = false;
    std::array<QLabel*, WizardPageCount> Label3{};
    std::array<WizardPageView*, WizardPageCount> PagesPicBox{};
    std::array<wbButton*, 2> wbButton3{};
    QPointer<frmCalendar> frmCalendarCopy;  // for Text3
    QPointer<frmCalendar> FrmCalendarCopy2; // for Text1
    QPointer<frmCalendar> FrmCalendarCopy3; // for Text8
};

// Opens the wizard, or brings the open one to the front. May pump events.
void Show_AddReminderWizard();
