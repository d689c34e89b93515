#include "editors/wizard/frm_add_reminder_wizard.h"

#include "accessories/help/help.h"
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/one_window.h"
#include "controls/painting.h"
#include "controls/toolbar.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "editors/wizard/page_date.h"
#include "editors/wizard/page_display.h"
#include "editors/wizard/page_finished.h"
#include "editors/wizard/page_message.h"
#include "editors/wizard/page_misc.h"
#include "editors/wizard/page_start.h"
#include "editors/wizard/page_time.h"
#include "editors/wizard/page_type.h"
#include "editors/wizard/wizard_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace page_parts;

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
        step->setObjectName(u"Label3_%1"_s.arg(i));
        step->setFixedSize(StepSize);
        step->setIndent(6);
        step->setAutoFillBackground(true);
        Label3[static_cast<std::size_t>(i)] = step;
    }
}

void frmAddReminderWizard::Build_Pages() {
    PagesPicBox = {new WizardTypePage(state, this),    new WizardDatePage(state, this),
                   new WizardTimePage(state, this),    new WizardDisplayPage(state, this),
                   new WizardMessagePage(state, this), new WizardMiscPage(state, this),
                   new WizardStartPage(state, this),   new WizardFinishedPage(state, this)};
    for (WizardPageView* page : PagesPicBox) {
        page->move(PageLeft, PageTop);
        connect(page, &WizardPageView::CalendarAsked, this, [this] { Open_Calendar(); });
    }
}

void frmAddReminderWizard::Build_Buttons() {
    Add_Label(help_page::Hint, PageLeft, ButtonTop + 6);
    const int right = PageLeft + WizardPageView::Width;
    wbButton3[0] = Add_Button(this, u"wbButton3_0"_s, u"< Previous"_s,
                              {right - 2 * NextWidth - 6, ButtonTop, NextWidth, ButtonHeight});
    wbButton3[1] = Add_Button(this, u"wbButton3_1"_s, u"Next >"_s,
                              {right - NextWidth, ButtonTop, NextWidth, ButtonHeight});
    connect(wbButton3[0], &wbButton::Click, this, &frmAddReminderWizard::Previous_Click);
    connect(wbButton3[1], &wbButton::Click, this, &frmAddReminderWizard::Next_Click);
}

WizardPageView* frmAddReminderWizard::Page(WizardPage page) const {
    return PagesPicBox[static_cast<std::size_t>(page)];
}

void frmAddReminderWizard::Show_Page(WizardPage page) {
    wbButton3[0]->setEnabled(page != WizardPage::Type);
    wbButton3[1]->Set_Caption(page == WizardPage::Finished ? u"Finish"_s : u"Next >"_s);
    for (const auto& calendar : {frmCalendarCopy, FrmCalendarCopy2, FrmCalendarCopy3})
        if (calendar)
            calendar->Unload();
    Page(page)->Show_State();
    Page(page)->show();
    if (page != CurrentPage)
        Page(CurrentPage)->hide();
    CurrentPage = page;
    Mark_Step(page);
    QWidget* field = Page(page)->First_Field();
    (field != nullptr ? field : wbButton3[1])->setFocus();
}

void frmAddReminderWizard::Mark_Step(WizardPage page) {
    for (std::size_t i = 0; i < Label3.size(); ++i) {
        const bool current = i == static_cast<std::size_t>(page);
        QFont font = Small_Font();
        font.setBold(current);
        Label3[i]->setFont(font);
        Label3[i]->setPalette(Form_Palette(current ? palette::Button_Back : palette::White));
        Label3[i]->setAccessibleName(current ? Label3[i]->text() + u", current step"_s
                                             : Label3[i]->text());
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

void frmAddReminderWizard::Open_Calendar() {
    if (CurrentPage == WizardPage::StartDate) {
        Open_Calendar(FrmCalendarCopy3, state.Text8,
                      &frmAddReminderWizard::FrmCalendarCopy3_DateSelected);
    } else if (state.Option2 == WizardType::Birthday) {
        std::int32_t day = 0;
        std::int32_t month = 0;
        const bool valid = Parse_Birthday(state.Text3, day, month) == 0;
        Open_Calendar(frmCalendarCopy,
                      valid ? FormatUserDate(day, month, Read_Moment().Year, false) : QString(),
                      &frmAddReminderWizard::frmCalendarCopy_DateSelected);
    } else {
        Open_Calendar(FrmCalendarCopy2, state.Text1,
                      &frmAddReminderWizard::FrmCalendarCopy2_DateSelected);
    }
}

void frmAddReminderWizard::Open_Calendar(QPointer<frmCalendar>& calendar, const QString& date,
                                         DateTaker taker) {
    if (!calendar || calendar->Is_Unloading()) {
        calendar = new frmCalendar(this);
        connect(calendar, &frmCalendar::DateSelected, this, taker);
    }
    calendar->Show_DateText(date);
    calendar->Present_Beside(frameGeometry(), *Page(CurrentPage)->Date_Field());
}

void frmAddReminderWizard::frmCalendarCopy_DateSelected(const QString& NewDate) {
    std::int32_t day = 0;
    std::int32_t month = 0;
    std::int32_t year = 0;
    if (ParseUserDate(NewDate, day, month, year, {}, false) != 0)
        return;
    state.Text3 = Birthday_Text(day, month);
    Page(WizardPage::Date)->Show_State();
}

void frmAddReminderWizard::FrmCalendarCopy2_DateSelected(const QString& NewDate) {
    state.Text1 = NewDate;
    Page(WizardPage::Date)->Show_State();
}

void frmAddReminderWizard::FrmCalendarCopy3_DateSelected(const QString& NewDate) {
    state.Text8 = NewDate;
    Page(WizardPage::StartDate)->Show_State();
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
    for (const auto& calendar : {frmCalendarCopy, FrmCalendarCopy2, FrmCalendarCopy3})
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
