#include "editors/wizard/frm_add_reminder_wizard.h"

#include "accessories/help/help.h"
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/one_window.h"
#include "controls/page_parts.h"
#include "controls/painting.h"
#include "controls/toolbar.h"
#include "controls/wb_button.h"
#include "core/categories.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int FormWidth = 7515; // twips
constexpr int FormHeight = 5715;
constexpr int PageLeft = 29; // pixels
constexpr int PageTop = 113;
constexpr int HeaderHeight = 104;
constexpr int StepsTop = 50;
constexpr int StepsInRow = 4;
constexpr QSize StepSize(107, 20);
constexpr QSize StepPitch(112, 24);
constexpr int LineTop = 341;
constexpr int ButtonTop = 349;
constexpr int ButtonHeight = 24;
constexpr int NextWidth = 90;
constexpr QSize TitlePicture(32, 32);

OneWindow<frmAddReminderWizard> wizardWindow;

} // namespace

frmAddReminderWizard::frmAddReminderWizard() : state(New_WizardState(Read_Moment())) {
    setWindowTitle(u"Add new reminder"_s);
    Set_HelpTopic(*this, help_page::NewReminder);
    setFixedSize(TwipsX_To_Pixels(FormWidth), TwipsY_To_Pixels(FormHeight));
    Sync_CategoriesFromReminders();
    QLabel* title = Add_Label(windowTitle(), PageLeft + TitlePicture.width() + 10, 16);
    QFont font = title->font();
    font.setBold(true);
    font.setPixelSize(15);
    title->setFont(font);
    title->adjustSize();
    Build_SideList();
    Build_Pages();
    Build_Buttons();
    Show_Page(WizardPage::Type);
}

void frmAddReminderWizard::Load() {
    const QPointer<frmAddReminderWizard> alive(this);
    // The guard is never lifted by this wizard, and that is meant: the toolbar stays until the
    // setup wizard has closed, or until the next start.
    Global_Toolbar->Guard_Hiding(u"The Hide/Minimize are disabled during the setup Wizard"_s);
    Global_Toolbar->AutoHide_ShowProc(false);
    if (!alive || Is_Unloading() || Program_Is_Ending())
        return;
    Present();
    Update_HelpTopic(help_page::NewReminder);
}

void frmAddReminderWizard::Build_SideList() {
    for (int i = 0; i < WizardPageCount; ++i) {
        const QString caption =
            u"%1- %2"_s.arg(i + 1).arg(WizardPage_Name(static_cast<WizardPage>(i)));
        QLabel* step = Add_Label(caption, PageLeft + i % StepsInRow * StepPitch.width(),
                                 StepsTop + i / StepsInRow * StepPitch.height());
        step->setFixedSize(StepSize);
        step->setIndent(6);
        step->setAutoFillBackground(true);
        steps[static_cast<std::size_t>(i)] = step;
    }
}

void frmAddReminderWizard::Build_Pages() {
    pageViews = {Make_TypePage(state, this),    Make_DatePage(state, this),
                 Make_TimePage(state, this),    Make_DisplayPage(state, this),
                 Make_MessagePage(state, this), Make_MiscPage(state, this),
                 Make_StartPage(state, this),   Make_FinishedPage(state, this)};
    for (WizardPageView* page : pageViews) {
        page->move(PageLeft, PageTop);
        connect(page, &WizardPageView::Calendar_Asked, this, &frmAddReminderWizard::Open_Calendar);
    }
}

void frmAddReminderWizard::Build_Buttons() {
    Add_Label(help_page::Hint, PageLeft, ButtonTop + 6);
    const int right = PageLeft + WizardPageView::Width;
    previous = Add_Button(this, u"< Previous"_s,
                          {right - 2 * NextWidth - 6, ButtonTop, NextWidth, ButtonHeight});
    next = Add_Button(this, u"Next >"_s, {right - NextWidth, ButtonTop, NextWidth, ButtonHeight});
    connect(previous, &wbButton::Click, this, &frmAddReminderWizard::Previous_Click);
    connect(next, &wbButton::Click, this, &frmAddReminderWizard::Next_Click);
}

WizardPageView* frmAddReminderWizard::Page(WizardPage page) const {
    return pageViews[static_cast<std::size_t>(page)];
}

void frmAddReminderWizard::Show_Page(WizardPage page) {
    previous->setEnabled(page != WizardPage::Type);
    next->Set_Caption(page == WizardPage::Finished ? u"Finish"_s : u"Next >"_s);
    if (calendar)
        calendar->Unload();
    Page(page)->Load();
    Page(page)->show();
    if (page != CurrentPage)
        Page(CurrentPage)->hide();
    CurrentPage = page;
    Mark_Step(page);
    QWidget* field = Page(page)->First_Field();
    (field != nullptr ? field : next)->setFocus();
}

void frmAddReminderWizard::Mark_Step(WizardPage page) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const bool current = i == static_cast<std::size_t>(page);
        QFont font = Small_Font();
        font.setBold(current);
        steps[i]->setFont(font);
        steps[i]->setPalette(Form_Palette(current ? palette::Button_Back : palette::White));
        steps[i]->setAccessibleName(current ? steps[i]->text() + u", current step"_s
                                            : steps[i]->text());
    }
}

void frmAddReminderWizard::Previous_Click() {
    if (CurrentPage != WizardPage::Type)
        Show_Page(static_cast<WizardPage>(static_cast<int>(CurrentPage) - 1));
}

void frmAddReminderWizard::Next_Click() {
    if (Is_Unloading() || Program_Is_Ending())
        return;
    if (const auto error = Validate_WizardPage(CurrentPage, state, Read_Moment())) {
        platform::Dialogs::Get().Message(error->Text, error->Style);
        return;
    }
    if (CurrentPage != WizardPage::Finished) {
        Show_Page(static_cast<WizardPage>(static_cast<int>(CurrentPage) + 1));
        return;
    }
    Finished = true;
    Add_ToReminderTable(state);
    Unload();
}

// It goes with its page.
void frmAddReminderWizard::Open_Calendar(QWidget* field, const QString& date,
                                         const DateTaker& taken) {
    if (!calendar || calendar->Is_Unloading()) {
        calendar = new frmCalendar(this);
        connect(calendar, &frmCalendar::DateSelected, this, taken);
    }
    calendar->Show_DateText(date);
    calendar->Present_Beside(frameGeometry(), *field);
}

bool frmAddReminderWizard::Query_Unload(UnloadMode mode) {
    // At the end of the program the draft goes without a question.
    if (Finished || mode == UnloadMode::Ending)
        return true;
    const platform::Answer answer = platform::Dialogs::Get().Question(
        u"The new reminder hasn't been created yet.\r\nDo you want to quit the wizard ?"_s, false,
        {u"Tockly"_s, platform::BoxStyle::Exclamation});
    return answer == platform::Answer::Yes || Program_Is_Ending();
}

void frmAddReminderWizard::On_Unload() {
    if (calendar)
        calendar->Unload();
}

void frmAddReminderWizard::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Next_Click();
    else
        Form::keyPressEvent(event);
}

void frmAddReminderWizard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor line = palette::To_Color(palette::Outline);
    painter.fillRect(0, 0, width(), HeaderHeight, palette::To_Color(palette::White));
    Draw_Line(painter, {0, HeaderHeight}, {width(), HeaderHeight}, line);
    Draw_Line(painter, {PageLeft, LineTop}, {width() - PageLeft, LineTop}, line);
    Load_Icon(IconName::AddReminder).paint(&painter, {QPoint(PageLeft, 8), TitlePicture});
}

void Show_AddReminderWizard() {
    if (frmAddReminderWizard* open = wizardWindow.Open())
        open->Present();
    else if (frmAddReminderWizard* window = wizardWindow.Open_OrMake())
        window->Load();
}
