#include "editors/list/frm_reminder_edit.h"

#include "accessories/help/help.h"
#include "controls/combo_box.h"
#include "controls/combo_name.h"
#include "controls/field_word.h"
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/painting.h"
#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "delivery/deliver.h"
#include "editors/list/card_list.h"
#include "editors/list/copy_buffer.h"
#include "editors/list/list_rules.h"
#include "editors/list/record_pages.h"
#include "platform/dialogs.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Pixels.
constexpr int ClientWidth = 796;
constexpr int ClientHeight = 592;
constexpr int SmallScreenHeight = 700;
constexpr int SmallScreenLoss = 104;
constexpr int ListLeft = 6;
constexpr int ListTop = 66;
constexpr int ListHeight = 458;
constexpr int ButtonHeight = 26;
constexpr int ButtonGap = 4;
constexpr int PageLeft = 324;
constexpr int PageTop = 32;
constexpr int PageWidth = 470;
constexpr int PageHeight = 440;
constexpr int TabTop = 8;
constexpr int LeastTop = 22; // below a toolbar at the top
constexpr int FrameHeight = 30;

constexpr int Tip_List = 20;
constexpr int RefreshTime = 60000; // ms

const QString nothingSelected = u"Click on a reminder in the list first."_s;

// What AdjustForSmallScreen takes from the list and the window.
int Screen_Loss() {
    return The_Screen().height() < SmallScreenHeight ? SmallScreenLoss : 0;
}

} // namespace

frmReminderEdit::frmReminderEdit() : filter(FilterAll) {
    const int loss = Screen_Loss();
    setWindowTitle(u"Reminders"_s);
    Set_HelpTopic(*this, help_page::Reminders);
    setFixedSize(ClientWidth, ClientHeight - loss);
    Build_List(ListHeight - loss);
    Build_Buttons(ListTop + ListHeight - loss + 6);
    Build_Pages();
    Add_Shortcuts();
    Place_OnScreen();
    Update_Filter(FilterText::Reset);
    UpdateReminderView();
    shownDay = Get_TodayDay();
    refreshTimer.setInterval(RefreshTime);
    connect(&refreshTimer, &QTimer::timeout, this, &frmReminderEdit::RefreshTimer_Tick);
}

void frmReminderEdit::Build_List(int listHeight) {
    QLabel* label = Add_Label(u"Show Category:"_s, ListLeft + 2, 12);
    filterBox = new ComboBox(this);
    filterBox->setGeometry(ListLeft + 92, 8, 194, 22);
    Name_Combo(filterBox, u"Show Category"_s, label);
    new TooltipPicture(Tip_List, ListLeft + 292, 11, this);
    Add_Label(u"Click on a reminder to select it. Use the \"New\" button to add a new reminder"_s,
              ListLeft + 2, 34, CardWidth);
    cards = new CardList(listHeight, this);
    cards->move(ListLeft, ListTop);
    connect(filterBox, &QComboBox::activated, this, &frmReminderEdit::Filter_Chosen);
    connect(cards, &CardList::All_Asked, this, [this] {
        filterBox->setCurrentIndex(0);
        Filter_Chosen();
    });
    connect(cards, &CardList::Card_Chosen, this, &frmReminderEdit::Select_Reminder);
    connect(cards, &CardList::Text_Changed, this,
            [this](const QString& text) { pages->Set_Text(text); });
    connect(cards, &CardList::Enabled_Changed, this, &frmReminderEdit::Row_Enabled_Changed);
    // A key acts on the card that wears the frame: it is selected first.
    connect(cards, &CardList::Delete_Pressed, this, [this](const ReminderRef& reminder) {
        if (Is_SelectedNow(reminder))
            Delete_Click();
    });
    connect(cards, &CardList::Copy_Pressed, this, [this](const ReminderRef& reminder) {
        if (Is_SelectedNow(reminder))
            Copy_Click();
    });
    connect(cards, &CardList::Paste_Pressed, this, &frmReminderEdit::Paste_Click);
}

void frmReminderEdit::Build_Buttons(int top) {
    const int below = top + ButtonHeight + ButtonGap;
    const auto Add = [this](const QString& caption, IconName icon, const QPoint& place, int width,
                            auto action) {
        auto* button = new wbButton(this);
        button->setGeometry(ListLeft + place.x(), place.y(), width, ButtonHeight);
        button->Set_Caption(caption);
        const QSize size = Icon_Size(icon);
        button->Set_Picture(Load_Icon(icon), size);
        button->Set_CenterImage(caption.isEmpty());
        button->Set_ImageLEFT(8);
        button->Set_ImageTOP((ButtonHeight - size.height()) / 2);
        if (!caption.isEmpty())
            button->setAccessibleName(caption.trimmed());
        connect(button, &wbButton::Click, this, action);
        return button;
    };
    Add(u"      New"_s, IconName::NewItem, {0, top}, 100, &frmReminderEdit::New_Click);
    deleteButton = Add(u"        Delete"_s, IconName::DeleteItem, {104, top}, 100,
                       &frmReminderEdit::Delete_Click);
    copyButton =
        Add(u"       Copy"_s, IconName::CopyItem, {0, below}, 100, &frmReminderEdit::Copy_Click);
    Add(u"       Paste"_s, IconName::PasteItem, {104, below}, 100, &frmReminderEdit::Paste_Click);
    runButton =
        Add(u"     Run"_s, IconName::RunItem, {208, top}, 101, &frmReminderEdit::Test_Click);
    runButton->Set_ToolTipTextLabel(u"Test the reminder"_s);
    Add({}, IconName::Help, {208, below}, 101, [] {
        Show_HelpPage(help_page::Reminders);
    })->Set_ToolTipTextLabel(u"Help (F1)"_s);
}

void frmReminderEdit::Build_Pages() {
    pages = new RecordPages(this, {PageLeft, TabTop, PageWidth, PageTop - TabTop - 1},
                            {PageLeft, PageTop, PageWidth, PageHeight});
    connect(pages, &RecordPages::Title_Changed, this, [this](const QString& title) {
        if (CardView* card = cards->Card_Of(Selection()))
            card->Set_Title(title);
    });
    connect(pages, &RecordPages::Text_Changed, this, [this](const QString& text) {
        if (CardView* card = cards->Card_Of(Selection()))
            card->Set_Text(text);
    });
    connect(pages, &RecordPages::NextRun_Changed, cards, &CardList::Set_SelectedNextRun);
    connect(pages, &RecordPages::Icon_Chosen, cards, &CardList::Set_SelectedIcon);
    connect(pages, &RecordPages::Icons_Changed, cards, &CardList::Refresh_Row_Icons);
    connect(pages, &RecordPages::Category_Deleted, this, [this] {
        Update_Filter(FilterText::Reset);
        // The reminder stays selected; its pages are not loaded again.
        Refresh_View();
    });
}

void frmReminderEdit::Add_Shortcuts() {
    const auto Add = [this](QKeyCombination keys, auto action) {
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this, action);
    };
    Add(Qt::CTRL | Qt::Key_N, &frmReminderEdit::New_Click);
    Add(Qt::CTRL | Qt::Key_Tab, [this] { pages->Turn_Page(1); });
    Add(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { pages->Turn_Page(-1); });
}

void frmReminderEdit::Place_OnScreen() {
    const QRect screen = The_Screen();
    move(screen.left() + std::max(0, (screen.width() - width()) / 2),
         screen.top() + std::max(LeastTop, (screen.height() - height() - FrameHeight) / 2));
}

void frmReminderEdit::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Draw_Frame(painter, QRect(PageLeft - 1, PageTop - 1, PageWidth + 2, height() - PageTop - 6),
               palette::To_Color(palette::Outline));
}

// Which reminder is selected.

const ReminderRef& frmReminderEdit::Selection() const {
    return pages->Shown();
}

int frmReminderEdit::SelectedRow() const {
    return cards->Row_Of(Selection());
}

void frmReminderEdit::UpdateReminderView() {
    cards->Set_Slots(Visible_Slots(filter));
}

void frmReminderEdit::SelectReminder_Using_RListIndex(std::int32_t index) {
    Refresh_View();
    const ReminderRef target = ReminderRef::Of_Slot(index);
    const int row = cards->Row_Of(target);
    if (row == -1)
        return;
    cards->Set_CurrentRow(row);
    Select_Reminder(target);
}

void frmReminderEdit::SelectReminder_Using_ListRow(int row) {
    if (row >= 0 && row < static_cast<int>(cards->Slots().size()))
        Select_Reminder(ReminderRef::Of_Slot(cards->Slots()[static_cast<std::size_t>(row)]));
}

void frmReminderEdit::Select_Reminder(const ReminderRef& target) {
    const ReminderRef wanted = target; // the caller's may be a card's, which can change
    if (wanted.Slot() == -1) {
        Refresh_View();
        return;
    }
    if (wanted == Selection())
        return;
    if (Selected_Reminder() != nullptr) {
        pages->Hide_Popups();
        if (!Save_View_To_Reminder(CategoryOnSave::Take) || Program_Is_Ending())
            return;
        if (pages->Category_Changed()) {
            Update_Filter(FilterText::Keep);
            UpdateReminderView();
        }
    }
    cards->Set_Selected(wanted);
    pages->Show_Record(wanted);
    if (Selected_Reminder() == nullptr)
        Refresh_View();
}

bool frmReminderEdit::Is_SelectedNow(const ReminderRef& target) {
    const ReminderRef wanted = target;
    if (!wanted.Is_Set())
        return false;
    Select_Reminder(wanted);
    return Selection() == wanted && Selected_Reminder() != nullptr && !Program_Is_Ending();
}

void frmReminderEdit::Show_NewCard(const ReminderRef& added) {
    UpdateReminderView();
    const int row = cards->Row_Of(added);
    if (Selection().Is_Set())
        cards->Bring_IntoView(row);
    else
        cards->Set_CurrentRow(row);
}

void frmReminderEdit::Drop_Selection() {
    cards->Set_Selected({});
    pages->Clear();
}

void frmReminderEdit::Update_Filter(FilterText text) {
    Sync_CategoriesFromReminders();
    const QStringList names = Category_Names();
    if (names != shownNames || filterBox->count() == 0) {
        shownNames = names;
        const QString before = filterBox->currentText();
        filterBox->clear();
        filterBox->addItems(QStringList{FilterAll, FilterNone} + names);
        filterBox->setCurrentIndex(std::max(0, filterBox->findText(before, Qt::MatchFixedString)));
        pages->Set_Categories(names);
    }
    if (text == FilterText::Reset)
        filterBox->setCurrentIndex(0);
    // What the list shows stays while a choice in the box waits for its save.
    if (text == FilterText::Reset || filterBox->findText(filter, Qt::MatchFixedString) == -1)
        filter = filterBox->currentText();
}

// Also a choice of the filter that is chosen already saves and drops the selection.
void frmReminderEdit::Filter_Chosen() {
    if (!Save_View_To_Reminder(CategoryOnSave::Take)) {
        filterBox->setCurrentIndex(std::max(0, filterBox->findText(filter, Qt::MatchFixedString)));
        return;
    }
    if (Program_Is_Ending())
        return;
    Update_Filter(FilterText::Keep);
    filter = filterBox->currentText();
    Drop_Selection();
    UpdateReminderView();
    cards->Set_CurrentRow(cards->Slots().empty() ? -1 : 0);
}

void frmReminderEdit::Refresh_View() {
    if (Is_Unloading())
        return;
    if (Selection().Is_Set() && Selection().Slot() == -1)
        Drop_Selection();
    Update_Filter(FilterText::Keep);
    UpdateReminderView();
}

void frmReminderEdit::RefreshTimer_Tick() {
    if (platform::Dialogs::Get().Holds_Timers() || Program_Is_Ending())
        return;
    Refresh_View();
    const Day today = Get_TodayDay();
    if (today != shownDay)
        pages->Update_NextRun();
    shownDay = today;
}

bool frmReminderEdit::Save_View_To_Reminder(CategoryOnSave category) {
    return pages->Save(category);
}

bool frmReminderEdit::Store_OpenPage() {
    return pages->Store_Open();
}

void frmReminderEdit::Restore_RefusedPage() {
    pages->Restore_Refused();
}

void frmReminderEdit::Row_Enabled_Changed(const ReminderRef& changed, bool ticked) {
    if (ReminderClass* reminder = changed.Get()) {
        if (ticked)
            reminder->rs_DisabledForToday = 0;
        reminder->rs_Enabled = ticked;
    }
    Refresh_View();
}

// The buttons below the list.

// The new reminder is not selected: the pages stay with the one that is.
void frmReminderEdit::New_Click() {
    Save_SelectedIcon();
    Show_NewCard(Add_New_Reminder(Category_OfNew(filter)));
}

void frmReminderEdit::Delete_Click() {
    const ReminderClass* reminder = Selection().Peek();
    if (reminder == nullptr) {
        Say_AtField(deleteButton, nothingSelected);
        return;
    }
    const ReminderRef doomed = Selection();
    const platform::Answer answer = platform::Dialogs::Get().Question(
        Delete_Question(*reminder, Read_Moment()), false, {.Title = u"Confirm"_s});
    if (answer != platform::Answer::Yes || Program_Is_Ending())
        return;
    Delete_ReminderSlot(doomed.Slot());
    Drop_Selection();
    Refresh_View();
    cards->setFocus();
}

void frmReminderEdit::Copy_Click() {
    if (Selection().Peek() == nullptr)
        Say_AtField(copyButton, nothingSelected);
    if (!Save_View_To_Reminder(CategoryOnSave::Take))
        return;
    const ReminderClass* reminder = Selection().Peek();
    if (reminder != nullptr && !Write_CopyBuffer(*reminder))
        platform::Dialogs::Get().Message(u"The reminder can't be copied: the file \"temp.dat\" "
                                         "can't be written"_s,
                                         platform::BoxStyle::Exclamation);
}

void frmReminderEdit::Paste_Click() {
    Save_SelectedIcon();
    std::unique_ptr<ReminderClass> pasted;
    switch (Read_CopyBuffer(pasted)) {
    case PasteResult::Nothing:
        return;
    case PasteResult::Damaged:
        platform::Dialogs::Get().Message(u"The copied reminder can't be read"_s,
                                         platform::BoxStyle::Exclamation);
        return;
    case PasteResult::Pasted:
        break;
    }
    pasted->rs_Category = Category_OfPasted(filter);
    Show_NewCard(Add_Reminder(std::move(pasted)));
}

void frmReminderEdit::Test_Click() {
    if (Selection().Peek() == nullptr)
        Say_AtField(runButton, nothingSelected);
    if (Selected_Reminder() == nullptr || !Save_View_To_Reminder(CategoryOnSave::Keep) ||
        Program_Is_Ending())
        return;
    Deliver_Reminder(Selection());
}

void frmReminderEdit::Save_SelectedIcon() {
    if (ReminderClass* reminder = Selected_Reminder())
        reminder->rs_Icon = pages->Icon_Name().toLower();
}

// The window.

bool frmReminderEdit::Query_Unload(UnloadMode mode) {
    // A record with a field at fault is not left behind, unless the system closes the window.
    return mode == UnloadMode::Ending || Save_View_To_Reminder(CategoryOnSave::Take);
}

void frmReminderEdit::On_Unload() {
    pages->Unload();
    refreshTimer.stop();
}

bool frmReminderEdit::event(QEvent* event) {
    const bool taken = Form::event(event);
    if (event->type() == QEvent::WindowActivate && !Program_Is_Ending())
        Refresh_View();
    return taken;
}

void frmReminderEdit::showEvent(QShowEvent* event) {
    refreshTimer.start();
    Form::showEvent(event);
}

void frmReminderEdit::hideEvent(QHideEvent* event) {
    refreshTimer.stop();
    Form::hideEvent(event);
}
