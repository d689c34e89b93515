// The step-by-step way to a new reminder: one question a page, with the steps listed at the top.
#pragma once

#include "controls/form.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/wizard/wizard_page.h"

#include <QPointer>

#include <array>

class QLabel;
class wbButton;

class frmAddReminderWizard : public Form {
    Q_OBJECT
public:
    frmAddReminderWizard();

    // Guards the toolbar against hiding and brings it back. That pumps events.
    void Load();

protected:
    bool Query_Unload(UnloadMode mode) override;
    void On_Unload() override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Build_SideList();
    void Build_Pages();
    void Build_Buttons();
    void Show_Page(WizardPage page);
    void Mark_Step(WizardPage page);
    void Next_Click();
    void Previous_Click();
    WizardPageView* Page(WizardPage page) const;
    void Open_Calendar(QWidget* field, const QString& date, const DateTaker& taken);

    WizardState state;
    WizardPage CurrentPage = WizardPage::Type;
    bool Finished = false;
    std::array<QLabel*, WizardPageCount> steps{};
    std::array<WizardPageView*, WizardPageCount> pageViews{};
    wbButton* previous = nullptr;
    wbButton* next = nullptr;
    QPointer<frmCalendar> calendar;
};

// Opens the wizard, or brings the open one to the front. May pump events.
void Show_AddReminderWizard();
