// The wizard as its user meets it: pages, the toolbar's place, the hide test and the end.
#include "accessories/setup/frm_wizard.h"

#include "accessories/setup/setup.h"
#include "controls/chk_box.h"
#include "controls/help_topic.h"
#include "controls/one_window.h"
#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/timers.h"
#include "controls/toolbar.h"
#include "controls/wb_button.h"
#include "platform/dialogs.h"
#include "settings/global_settings.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

constexpr ColorValue StepColor = 0x0000C0;
constexpr ColorValue CurrentStepColor = 0x0000FF;

OneWindow<frmWizard> wizard;

void Guard_Toolbar() {
    Global_Toolbar->Guard_Hiding(u"The Hide/Minimize are disabled during the setup Wizard"_s);
}

} // namespace

frmWizard::frmWizard() {
    setWindowTitle(u"Setup Wizard"_s);
    Set_HelpTopic(*this, help_page::Toolbar);
    Take_Toolbar();
    Add_Frame();
    Add_Steps();
    Add_Buttons();
    Show_View(Load_Wizard_View());
    Show_Page(0);
}

void frmWizard::Take_Toolbar() {
    Guard_Toolbar();
    // The user is to see it move.
    if (!Global_Toolbar->Toolbar_Visible())
        Global_Toolbar->AutoHide_ShowProc(true);
    const ToolbarRect bounds = Global_Toolbar->Bounds();
    remembered = {bounds.Left, bounds.Top};
}

void frmWizard::Show_View(const WizardView& view) {
    Check1->Set_Ticked(view.EnableAutoHide);
    Option2[view.SystemTray ? 0 : 1]->setChecked(true);
    Text1->setText(view.DateFormat);
    Check2->Set_Ticked(view.LoadOnStartup);
    Option1[static_cast<std::size_t>(ToolbarPlace::Manual)]->setChecked(true);
}

WizardView frmWizard::Read_View() const {
    WizardView view;
    view.EnableAutoHide = Check1->Is_Ticked();
    view.SystemTray = Option2[0]->isChecked();
    view.DateFormat = Text1->text();
    view.LoadOnStartup = Check2->Is_Ticked();
    return view;
}

void frmWizard::Show_Page(int page) {
    const int last = static_cast<int>(PagesPicBox.size()) - 1;
    if (page < 0 || page > last)
        return;
    // The new page first: the focus must not leave the window in between.
    PagesPicBox[static_cast<std::size_t>(page)]->show();
    PagesPicBox[static_cast<std::size_t>(page)]->raise();
    if (page != currentPage)
        PagesPicBox[static_cast<std::size_t>(currentPage)]->hide();
    currentPage = page;
    Highlight_Step(page);
    wbButton3[1]->Set_Caption(page == last ? u"Finish"_s : u"Next >"_s);
    if (page == 0 && wbButton3[0]->hasFocus())
        wbButton3[1]->setFocus();
    wbButton3[0]->setEnabled(page > 0);
}

void frmWizard::Highlight_Step(int step) {
    for (std::size_t i = 0; i < Label3.size(); ++i) {
        const bool isCurrent = static_cast<int>(i) == step;
        QPalette colors = Label3[i]->palette();
        colors.setColor(QPalette::WindowText,
                        palette::To_Color(isCurrent ? CurrentStepColor : StepColor));
        Label3[i]->setPalette(colors);
        QFont font = Label3[i]->font();
        font.setBold(isCurrent);
        Label3[i]->setFont(font);
        Label3[i]->adjustSize();
    }
}

void frmWizard::Next_Click() {
    if (Is_Unloading() || Program_Is_Ending())
        return;
    if (currentPage + 1 < static_cast<int>(PagesPicBox.size())) {
        Show_Page(currentPage + 1);
        return;
    }
    finishing = true;
    Unload();
}

void frmWizard::Option1_Click(int index) {
    const ToolbarRect bounds = Global_Toolbar->Bounds();
    const QPoint place = Place_Of(static_cast<ToolbarPlace>(index), bounds.Right - bounds.Left,
                                  The_Screen(), remembered);
    Global_Toolbar->Move_To(place.x(), place.y());
}

void frmWizard::Enable_Buttons(bool enabled) {
    TestHideButton->setEnabled(enabled);
    wbButton3[0]->setEnabled(enabled);
    wbButton3[1]->setEnabled(enabled);
}

void frmWizard::TestHideButton_Click() {
    if (hideTest.Is_Running() || Is_Unloading() || Program_Is_Ending())
        return;
    // Asked for by the place alone: the selected mode may still be the other one.
    const HideMode mode =
        Option2[0]->isChecked() ? HideMode::TrayIcon : Global_Toolbar->Get_Best_Auto_HideMode(true);
    Enable_Buttons(false);
    Global_Toolbar->Lift_HideGuard();
    hideTest.Start(*Global_Toolbar, mode, [this] {
        Guard_Toolbar();
        Enable_Buttons(true);
        TestHideButton->setFocus();
    });
}

void frmWizard::Restore_Toolbar() {
    if (hideTest.Is_Running()) {
        hideTest.Cancel();
        Global_Toolbar->AutoHide_ShowProc(true);
    }
    Global_Toolbar->Move_To(remembered.x(), remembered.y());
}

bool frmWizard::Query_Unload(UnloadMode) {
    Global_Toolbar->Lift_HideGuard();
    if (!finishing) {
        Restore_Toolbar();
        return true;
    }
    const QString message = Apply_Wizard_Settings(Read_View());
    if (!message.isEmpty())
        platform::Dialogs::Get().Message(message, platform::BoxStyle::Exclamation);
    return true;
}

void Show_SetupWizard() {
    if (frmWizard* window = wizard.Open_OrMake())
        window->Present();
}

void Connect_RunWizard(Timers& timers) {
    timers.On_Tick(TimerName::RunWizard_Timer, [&timers] {
        timers.Enable(TimerName::RunWizard_Timer, false);
        Show_SetupWizard();
    });
    if (FirstTime != 0)
        timers.Enable(TimerName::RunWizard_Timer);
}

void Drop_SetupWizard() {
    if (frmWizard* window = wizard.Open())
        window->Unload(UnloadMode::Ending);
}
