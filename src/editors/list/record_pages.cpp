#include "editors/list/record_pages.h"

#include "controls/cool_tab.h"
#include "controls/text_fields.h"
#include "core/categories.h"
#include "editors/list/frm_re_function_edit.h"
#include "editors/list/message_page.h"
#include "editors/list/misc_page.h"
#include "editors/list/sound_page.h"
#include "editors/pages/date_page.h"
#include "editors/pages/hour_page.h"
#include "platform/dialogs.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int MarksTime = 10000; // ms
}

RecordPages::RecordPages(QWidget* inWindow, const QRect& tabsPlace, const QRect& pagePlace)
    : QObject(inWindow), window(inWindow) {
    tabs = new CoolTab(window);
    tabs->setGeometry(tabsPlace);
    tabs->Set_Tabs(u"-1;Date Setup;-1;Hours Setup;-1;Message;-1;Sound;-1;Misc"_s);
    tabs->setAccessibleName(u"Pages of the reminder"_s);
    tabs->Select(static_cast<int>(currentPage));
    datePage = new DatePage(*this, window);
    hourPage = new HourPage(*this, window);
    messagePage = new MessagePage(window);
    soundPage = new SoundPage(window);
    miscPage = new MiscPage(*this, window);
    pages = {datePage, hourPage, messagePage, soundPage, miscPage};
    for (ReminderPage* page : pages) {
        page->setGeometry(pagePlace);
        page->hide();
    }
    Connect_Pages();
    hideMarksTimer.setInterval(MarksTime);
    connect(&hideMarksTimer, &QTimer::timeout, this, [this] {
        if (!platform::Dialogs::Get().Holds_Timers())
            Hide_Marks();
    });
    hideMarksTimer.start();
}

void RecordPages::Connect_Pages() {
    connect(tabs, &CoolTab::TabSelected, this,
            [this](int tab) { Set_CurrentPage(static_cast<EditPage>(tab)); });
    connect(datePage, &DatePage::NextRun_Changed, this, &RecordPages::NextRun_Changed);
    connect(hourPage, &HourPage::Condition_Added, this,
            [this](const HourSetup& condition) { refused.Condition_Added(condition); });
    connect(messagePage, &MessagePage::Title_Changed, this, [this](const QString& title) {
        if (ReminderClass* reminder = Selected_Reminder()) {
            reminder->rs_Title = title;
            Q_EMIT Title_Changed(title);
        }
    });
    connect(messagePage, &MessagePage::Text_Changed, this, &RecordPages::Set_Text);
    connect(messagePage, &MessagePage::Function_Enabled, this, &RecordPages::Function_Enabled);
    connect(messagePage, &MessagePage::Edit_Function, this, &RecordPages::Edit_Function);
    connect(miscPage, &MiscPage::Icon_Chosen, this, &RecordPages::Icon_Chosen);
    connect(miscPage, &MiscPage::Icons_Changed, this, &RecordPages::Icons_Changed);
    connect(miscPage, &MiscPage::Category_Deleted, this, &RecordPages::Category_Deleted);
}

void RecordPages::Show_Record(const ReminderRef& reminder) {
    shown = reminder;
    refused.Save_Done();
    Hide_Marks();
    const ReminderClass* stored = shown.Peek();
    if (stored == nullptr)
        return;
    const ReminderClass record = *stored;
    for (ReminderPage* page : pages)
        if (page != datePage)
            page->Load(record);
    // Last: it may show a box, under which the reminder can go.
    datePage->Load(record);
    Set_CurrentPage(currentPage);
}

void RecordPages::Clear() {
    shown = {};
    refused.Save_Done();
    Hide_Popups();
    for (ReminderPage* page : pages)
        page->hide();
}

bool RecordPages::Save(CategoryOnSave category, ShowErrors show) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return true;
    refused.Save_Begins(shown);
    datePage->Update_NextRun();
    const QString before = reminder->rs_Category;
    for (int number = 0; number < EditPageCount; ++number) {
        const auto page = static_cast<EditPage>(number);
        const QString fault = Page(page)->Store(*reminder);
        if (fault.isEmpty())
            continue;
        refused.Save_Refused(page);
        if (show == ShowErrors::Yes)
            Show_Fault(page, fault);
        return false;
    }
    if (category == CategoryOnSave::Keep)
        reminder->rs_Category = before;
    categoryChanged = reminder->rs_Category != before;
    Sync_CategoriesFromReminders();
    refused.Save_Done();
    return true;
}

void RecordPages::Show_Fault(EditPage page, const QString& fault) {
    const QPointer<RecordPages> alive(this);
    platform::Dialogs::Get().Message(fault, platform::BoxStyle::Exclamation);
    if (!alive)
        return;
    Show_Page(page);
    Page(page)->Mark_Fault();
    hideMarksTimer.start();
}

bool RecordPages::Store_Open() {
    if (Save(CategoryOnSave::Take, ShowErrors::No))
        return true;
    Restore_Refused();
    return false;
}

void RecordPages::Turn_Page(int step) {
    const int page = (static_cast<int>(currentPage) + step + EditPageCount) % EditPageCount;
    Show_Page(static_cast<EditPage>(page));
}

void RecordPages::Show_Page(EditPage page) {
    tabs->Select(static_cast<int>(page));
    Set_CurrentPage(page);
}

void RecordPages::Set_CurrentPage(EditPage page) {
    currentPage = page;
    if (Selected_Reminder() == nullptr)
        return;
    for (ReminderPage* other : pages)
        if (other != Page(page))
            other->Hide_Popup();
    if (page != EditPage::Message && functionEdit != nullptr)
        functionEdit->Unload();
    Page(page)->show();
    for (ReminderPage* other : pages)
        if (other != Page(page))
            other->hide();
}

void RecordPages::Update_NextRun() {
    datePage->Update_NextRun();
}

void RecordPages::Set_Categories(const QStringList& names) {
    miscPage->Set_Categories(names);
}

QString RecordPages::Icon_Name() const {
    return miscPage->Icon_Name();
}

// Typed on the card or on the page: the other one follows.
void RecordPages::Set_Text(const QString& text) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return;
    reminder->rs_Text = Text_ForRecord(text, reminder->rs_Text);
    messagePage->Set_Text(text);
    Q_EMIT Text_Changed(text);
}

void RecordPages::Function_Enabled(int k, bool on) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return;
    FunctionEntry entry = reminder->GetFuncion(k);
    entry.Enabled = on;
    reminder->SetFuncion(k, entry);
}

void RecordPages::Edit_Function(int k) {
    if (Selected_Reminder() == nullptr)
        return;
    if (functionEdit == nullptr || functionEdit->Is_Unloading()) {
        functionEdit = new frmRE_FunctionEdit(window);
        connect(functionEdit, &frmRE_FunctionEdit::Function_Changed, this,
                [this](const ReminderRef& changed) {
                    const ReminderClass* reminder = shown.Peek();
                    if (reminder != nullptr && changed == shown)
                        messagePage->Show_Functions(*reminder);
                });
    }
    functionEdit->Edit(shown, k);
    functionEdit->Present();
}

void RecordPages::Hide_Marks() {
    for (ReminderPage* page : pages)
        page->Hide_Marks();
}

void RecordPages::Hide_Popups() {
    for (ReminderPage* page : pages)
        page->Hide_Popup();
    if (functionEdit != nullptr)
        functionEdit->Unload();
}

void RecordPages::Unload() {
    Hide_Popups();
    hourPage->Unload_Popup();
    soundPage->Stop_Sound();
    hideMarksTimer.stop();
}
