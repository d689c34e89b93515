#include "editors/pages/date_page.h"

#include "controls/form.h"
#include "core/date_text.h"
#include "editors/pages/date_page_view.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"

#include <QStyle>

using namespace Qt::StringLiterals;
using namespace date_box;

namespace {

constexpr int ErrLabelTime = 8000; // ms
constexpr QSize PageSize(470, 440);
constexpr int CalendarRight = 480; // of the window's left edge, pixels
constexpr int CalendarAbove = 100; // the button

} // namespace

DatePage::DatePage(EditHost& host, QWidget* parent) : QWidget(parent) {
    resize(PageSize);
    setPalette(Form_Palette());
    setAutoFillBackground(true);
    view = std::make_unique<View>(*this, host);
    Connect_Controls();
    view->HideErrLabelTimer.setInterval(ErrLabelTime);
    connect(&view->HideErrLabelTimer, &QTimer::timeout, this, &DatePage::HideErrLabelTimer_Tick);
    Clear_View();
    Show_NextRun_Texts(std::nullopt, {});
}

DatePage::~DatePage() = default;

void DatePage::Connect_Controls() {
    for (int box = 0; box < Count; ++box) {
        ChkBox* control = view->p2Chk[static_cast<std::size_t>(box)];
        connect(control, &ChkBox::Checked, this, [this, box] { Date_Option_Checked(box); });
        connect(control, &ChkBox::Unchecked, this, [this, box] { Date_Option_Unchecked(box); });
    }
    for (QButtonGroup* group : view->OptionGroups)
        connect(group, &QButtonGroup::idClicked, this, &DatePage::Option1_Click);
    for (QLineEdit* field :
         {view->Text1, view->Text2, view->Text3, view->Text4[ExactField], view->Text4[StartField]})
        connect(field, &QLineEdit::textEdited, this, &DatePage::Update_NextRun_Labels);
    for (int index = 0; index < 2; ++index)
        connect(view->wbButton2[static_cast<std::size_t>(index)], &wbButton::Click, this,
                [this, index] { wbButton2_Click(index); });
}

// True: the tick stays.
bool DatePage::Date_Option_Checked(int box) {
    DatePageState state = view->Read_State();
    const TickOutcome outcome = ::Date_Option_Checked(state, box, Read_Moment());
    view->Show_State(state);
    if (outcome == TickOutcome::StartDateRefused) {
        platform::Desktop::Get().Beep();
        view->ErrLabel->show();
        view->HideErrLabelTimer.start();
        return false;
    }
    Update_NextRun_Labels();
    return true;
}

void DatePage::Date_Option_Unchecked(int box) {
    DatePageState state = view->Read_State();
    ::Date_Option_Unchecked(state, box, Read_Moment());
    view->Show_State(state);
    Update_NextRun_Labels();
}

void DatePage::Option1_Click(int option) {
    DatePageState state = view->Read_State();
    Week_Option_Clicked(state, static_cast<WeekOption>(option), Read_Moment());
    view->Show_State(state);
    Update_NextRun_Labels();
}

void DatePage::HideErrLabelTimer_Tick() {
    if (platform::Dialogs::Get().Holds_Timers())
        return;
    view->ErrLabel->hide();
    view->HideErrLabelTimer.stop();
}

void DatePage::wbButton2_Click(int index) {
    const int box = index == ExactField ? OnDate : StartOn;
    view->p2Chk[static_cast<std::size_t>(box)]->Set_Ticked(true);
    if (!Date_Option_Checked(box))
        return;
    if (!view->Calendar || view->Calendar->Is_Unloading()) {
        view->Calendar = new frmCalendar(window());
        connect(view->Calendar, &frmCalendar::DateSelected, this, [this](const QString& date) {
            Text4_SetDate_FromCalendar(view->TargetIndex, date);
        });
    }
    view->TargetIndex = index;
    const CalendarDate start =
        Calendar_Start(view->Read_State(), static_cast<DateField>(index), Read_Moment());
    view->Calendar->Show_Date(start.day, start.month, start.year);
    const auto at = static_cast<std::size_t>(index);
    const QPoint fromOwner(CalendarRight, view->wbButton2[at]->y() - CalendarAbove);
    view->Calendar->Present_At(window()->pos() + fromOwner, *view->Text4[at]);
}

void DatePage::Text4_SetDate_FromCalendar(int Index, const QString& NewDate) {
    if (Index != ExactField && Index != StartField)
        return;
    view->Text4[static_cast<std::size_t>(Index)]->setText(NewDate);
    // Takes the year off again.
    if (Index == ExactField && view->p2Chk[EveryYear]->Is_Ticked())
        Date_Option_Checked(EveryYear);
    else
        Update_NextRun_Labels();
}

void DatePage::Clear_View() {
    view->ErrLabel->hide();
    view->Show_State(Cleared_DatePage(Read_Moment()));
    view->Stored = {};
}

// The page is complete before the box: the record may be gone after it.
void DatePage::Load_View(const ReminderClass& reminder) {
    view->ErrLabel->hide();
    const DatePageState state = Load_DateSetup(reminder, Read_Moment());
    view->Show_State(state);
    view->Stored = Stored_Date(state, reminder);
    view->Forget_Undo();
    if (const QString warning = DateSetup_Warning(reminder); !warning.isEmpty())
        platform::Dialogs::Get().Message(warning, platform::BoxStyle::Exclamation);
}

bool DatePage::Save_DateSetup_To_Reminder(ReminderClass& reminder, ShowErrors show) {
    const DatePageState state = view->Read_State();
    const auto fault = Save_DateSetup(state, view->Stored, reminder, Read_Moment());
    if (!fault) {
        view->Stored = Stored_Date(state, reminder);
        return true;
    }
    if (show == ShowErrors::No)
        return false;
    const QPointer<DatePage> alive(this);
    platform::Dialogs::Get().Message(fault->Message, platform::BoxStyle::Exclamation);
    if (alive)
        Show_Error_Shape(static_cast<int>(fault->Mark));
    return false;
}

void DatePage::Show_Error_Shape(int mark) {
    view->host.Show_Page(EditPage::DateSetup);
    Shape* shape = view->ErrorShapes[static_cast<std::size_t>(mark)];
    shape->show();
    shape->raise();
    if (QWidget* control = view->Control_Of(static_cast<ErrorMark>(mark)))
        control->setFocus();
    view->host.Restart_HideErrorShapeTimer();
}

void DatePage::Hide_ErrorShapes() {
    for (Shape* shape : view->ErrorShapes)
        shape->hide();
}

void DatePage::Hide_Popup() {
    if (view->Calendar)
        view->Calendar->hide();
}

void DatePage::Set_LoadingView(bool loading) {
    view->LoadingView = loading;
}

// A copy takes the page's date, so that the display follows every click without touching the
// record.
void DatePage::Update_NextRun_Labels() {
    const ReminderClass* reminder = view->host.Selected_Reminder();
    if (reminder == nullptr || view->LoadingView)
        return;
    const Moment now = Read_Moment();
    ReminderClass temporary;
    temporary.rs_ActivationDay = reminder->rs_ActivationDay;
    temporary.rs_FirstRunDate = reminder->rs_FirstRunDate;
    temporary.rs_wDaysArray_LMonth = reminder->rs_wDaysArray_LMonth;
    temporary.rs_wDaysArray_LWeek = reminder->rs_wDaysArray_LWeek;
    if (Save_DateSetup(view->Read_State(), view->Stored, temporary, now))
        return;
    const Day nextRun = temporary.GetNext_RunDate(now);
    Show_NextRun_Texts(temporary.rs_DateType_Used,
                       nextRun == NoDay ? QString() : DayToDateString(nextRun));
    view->host.Show_NextRun(nextRun);
}

void DatePage::Show_NextRun_Texts(std::optional<DateType> kind, const QString& date) {
    const QString none = u"Next run on: --"_s;
    const QString text = date.isEmpty() ? none : u"Next run on: "_s + date;
    view->Label27->setText(kind == DateType::Weekdays ? text : none);
    view->Label36->setText(kind == DateType::EveryXDays ? text : none);
    Highlight_DateType_Box(kind);
}

void DatePage::Highlight_DateType_Box(std::optional<DateType> kind) {
    const auto index = static_cast<std::size_t>(kind.value_or(DateType::EveryDay));
    view->dateTypeHLBox->setVisible(kind && index < view->Frames.size());
    if (index >= view->Frames.size())
        return;
    view->dateTypeHLBox->setGeometry(view->Frames[index]->geometry());
    view->dateTypeHLBox->lower();
}
