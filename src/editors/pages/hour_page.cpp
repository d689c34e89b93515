#include "editors/pages/hour_page.h"

#include "controls/form.h"
#include "core/date_text.h"
#include "editors/pages/hour_page_view.h"
#include "platform/dialogs.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize PageSize(470, 440);

} // namespace

HourPage::HourPage(EditHost& host, QWidget* parent) : QWidget(parent) {
    resize(PageSize);
    setPalette(Form_Palette());
    setAutoFillBackground(true);
    view = std::make_unique<View>(*this, host);
    Connect_List();
    Connect_Fields();
    Clear_View();
}

HourPage::~HourPage() = default;

void HourPage::Connect_List() {
    connect(view->List, &HourList::Tick_Changed, this, [this](int row, bool on) {
        view->List->Set_Enabled(row, on);
        if (ReminderClass* reminder = view->host.Selected_Reminder())
            Row_Tick_Changed(*reminder, row);
    });
    connect(view->List, &HourList::Delete_Click, this, &HourPage::hrDelLabel_Click);
    connect(view->List, &HourList::Cell_Clicked, this, [this](int row, HourCell cell) {
        if (cell != HourCell::Period)
            Show_Clock_ForCell(row, cell);
    });
    connect(view->List, &HourList::Cell_Changed, this, &HourPage::p4Text_Change);
    connect(view->p4TextWrapper, &QLineEdit::textChanged, this, &HourPage::p4TextWrapper_Change);
}

void HourPage::Connect_Fields() {
    const auto Give_Clock = [this](const QString& name, TimeField* field) {
        connect(field, &TimeField::Clicked, this, [this, name, field] {
            view->Clock.Show_Clock_For_Textbox(name, field, ParseTime_Colon(field->text()),
                                               field->mapToGlobal(QPoint()).y());
        });
        connect(field, &QLineEdit::textEdited, this, [this, field] { view->Clock.Follow(field); });
    };
    Give_Clock(u"text5"_s, view->Text5);
    Give_Clock(u"text7"_s, view->Text7);
    Give_Clock(u"text13"_s, view->Text13);
    for (std::size_t index = 0; index < 2; ++index)
        connect(view->p3Chk[index], &ChkBox::Checked, this,
                [this, index] { view->p3Chk[1 - index]->Set_Ticked(false); });
    for (const Condition condition : {Condition::AtStartUp, Condition::At, Condition::Every})
        connect(view->wbButton1[static_cast<std::size_t>(condition)], &wbButton::Click, this,
                [this, condition] { wbButton1_Click(static_cast<int>(condition)); });
}

void HourPage::Clear_View() {
    view->Text5->setText(u"20:30"_s);
    view->Text6->setText(u"1h30m"_s);
    view->Text7->setText(u"10:00"_s);
    view->Text13->setText(u"14:00"_s);
    view->p3Chk[0]->Set_Ticked(false);
    view->p3Chk[1]->Set_Ticked(true);
}

void HourPage::Show_HourSetup_List(const ReminderClass& reminder) {
    Hide_Popup(); // its cell may be another one now
    view->List->Set_Rows(Rows_Of(reminder));
}

bool HourPage::Save_HourSetup_List(ShowErrors show) {
    ReminderClass* reminder = view->host.Selected_Reminder();
    if (reminder == nullptr)
        return true;
    const auto fault = Save_HourRows(view->List->Rows(), *reminder);
    if (!fault) {
        view->List->Note_Stored(*reminder);
        return true;
    }
    if (show == ShowErrors::No)
        return false;
    const QPointer<HourPage> alive(this);
    platform::Dialogs::Get().Message(fault->Message, platform::BoxStyle::Exclamation);
    if (alive)
        Show_Error_Shape(fault->Row);
    return false;
}

void HourPage::Show_Error_Shape(int row) {
    view->host.Show_Page(EditPage::HoursSetup);
    view->List->Scroll_To(row);
    view->List->Mark_Error(row);
    if (HourRowView* rowView = view->List->View_Of(row))
        rowView->Focus_Chain().back()->setFocus();
    view->host.Restart_HideErrorShapeTimer();
}

void HourPage::wbButton1_Click(int index) {
    ReminderClass* reminder = view->host.Selected_Reminder();
    if (reminder == nullptr)
        return;
    std::vector<HourRow> rows = view->List->Rows();
    const std::size_t before = rows.size();
    const QString message =
        Add_Condition(static_cast<Condition>(index), view->Read_Fields(), rows, *reminder);
    if (!message.isEmpty()) {
        platform::Dialogs::Get().Message(message, platform::BoxStyle::Exclamation);
    } else if (rows.size() > before) {
        view->host.Condition_Added(reminder->GetHourSetup(reminder->HourSetupList_Size()));
        view->List->Set_Rows(std::move(rows));
        view->List->Scroll_To(static_cast<int>(before));
    }
}

// The save protects what has been typed into the other rows; it may show a box.
void HourPage::hrDelLabel_Click(int row) {
    const ReminderClass* before = view->host.Selected_Reminder();
    if (before == nullptr)
        return;
    const std::uint64_t identity = before->Identity.Value();
    const QPointer<HourPage> alive(this);
    if (!view->host.Save_View_To_Reminder(CategoryOnSave::Take) || !alive)
        return;
    ReminderClass* reminder = view->host.Selected_Reminder();
    if (reminder == nullptr || reminder->Identity.Value() != identity)
        return;
    reminder->DeleteHourSetup(row);
    Show_HourSetup_List(*reminder);
}

void HourPage::Show_Clock_ForCell(int row, HourCell cell) {
    const int index = row * HourRowView::CellCount + static_cast<int>(cell) - 1;
    const QString name = u"p4text"_s + QString::number(index);
    const HourRowView* rowView = view->List->View_Of(row);
    if (rowView == nullptr || view->Clock.Is_On(name))
        return;
    Hide_Popup();
    view->wrapperCell = cell;
    view->p4TextWrapper->setText(rowView->p4Text(cell)->text());
    view->wrapperRow = row;
    view->Clock.Show_Clock_For_Textbox(name, view->p4TextWrapper,
                                       ParseTime_Colon(view->p4TextWrapper->text()),
                                       rowView->p4Text(cell)->mapToGlobal(QPoint()).y());
}

// The clock has written: its time goes to the cell.
void HourPage::p4TextWrapper_Change(const QString& text) {
    if (view->p4TextWrapper_Locked || view->wrapperRow < 0)
        return;
    view->p4TextWrapper_Locked = true;
    view->List->Set_Text(view->wrapperRow, view->wrapperCell, text);
    view->p4TextWrapper_Locked = false;
}

// The user has typed: the clock follows.
void HourPage::p4Text_Change(int row, HourCell cell) {
    if (view->p4TextWrapper_Locked || row != view->wrapperRow || cell != view->wrapperCell)
        return;
    view->p4TextWrapper_Locked = true;
    view->p4TextWrapper->setText(view->List->Rows()[static_cast<std::size_t>(row)].Text(cell));
    view->Clock.Follow(view->p4TextWrapper);
    view->p4TextWrapper_Locked = false;
}

void HourPage::Hide_ErrorShapes() {
    view->List->Mark_Error(-1);
}

void HourPage::Hide_Popup() {
    view->Clock.Hide();
}

void HourPage::Unload_Popup() {
    view->Clock.Unload();
}
