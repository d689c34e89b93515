// Categories and icons of the list window.
#include "controls/combo_box.h"
#include "controls/program_end.h"
#include "core/categories.h"
#include "editors/list/card_list.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/list_rules.h"
#include "editors/list/misc_page.h"
#include "platform/dialogs.h"

using namespace Qt::StringLiterals;

void frmReminderEdit::Update_Category_Combos(FilterText text) {
    Sync_CategoriesFromReminders();
    const QStringList names = Category_Names();
    if (names != shownNames || Combo2->count() == 0) {
        shownNames = names;
        const QString before = Combo2->currentText();
        Combo2->clear();
        Combo2->addItems(QStringList{FilterAll, FilterNone} + names);
        Combo2->setCurrentIndex(std::max(0, Combo2->findText(before, Qt::MatchFixedString)));
        Picture10->Set_Categories(names);
    }
    if (text == FilterText::Reset)
        Combo2->setCurrentIndex(0);
    // What the list shows stays while a choice in the box waits for its save.
    if (text == FilterText::Reset || Combo2->findText(filter, Qt::MatchFixedString) == -1)
        filter = Combo2->currentText();
}

// Also a choice of the filter that is chosen already saves and drops the selection.
void frmReminderEdit::Combo2_Click() {
    if (!Save_View_To_Reminder(CategoryOnSave::Take)) {
        Combo2->setCurrentIndex(std::max(0, Combo2->findText(filter, Qt::MatchFixedString)));
        return;
    }
    if (Program_Is_Ending())
        return;
    Update_Category_Combos(FilterText::Keep);
    filter = Combo2->currentText();
    Drop_Selection();
    UpdateReminderView();
    Cards->Set_CurrentRow(Cards->Slots().empty() ? -1 : 0);
}

// A category brings its icon to the reminder.
void frmReminderEdit::Combo1_Click(const QString& name) {
    const int category = name.isEmpty() ? -1 : Find_Category(name);
    if (Selected_Reminder() == nullptr || category == -1)
        return;
    const QString icon = Global_Categories[static_cast<std::size_t>(category)].Icon;
    if (!icon.isEmpty())
        Select_Icon_By_Name(icon, CardIcon::Update);
}

void frmReminderEdit::Delete_Category_Click() {
    const QString typed = Picture10->CategoryText().trimmed();
    if (typed == NoCategoryText)
        return;
    platform::Dialogs& dialogs = platform::Dialogs::Get();
    const int item = Picture10->Combo1->findText(typed, Qt::MatchFixedString);
    if (item == -1) {
        dialogs.Message(u"Category doesn't exists"_s, platform::BoxStyle::Exclamation);
        return;
    }
    const QString name = Picture10->Combo1->itemText(item);
    if (dialogs.Question(u"Delete category: "_s + name + u'?', false) != platform::Answer::Yes ||
        Program_Is_Ending())
        return;
    Delete_Category(name);
    Update_Category_Combos(FilterText::Reset);
    Show_Category_OfRecord();
    // The reminder stays selected; its pages are not loaded again.
    Refresh_View();
}

// Nothing of the deleted name must stay in the box: the next save would bring it back.
void frmReminderEdit::Show_Category_OfRecord() {
    const ReminderClass* reminder = selection.Peek();
    const QString category = reminder == nullptr ? QString() : reminder->rs_Category;
    Picture10->Set_CategoryText(category.isEmpty() ? NoCategoryText : category);
}

void frmReminderEdit::Use_Icon_Click() {
    const QString name = Picture10->CategoryText().trimmed();
    // The empty name would find the first free entry.
    const int category = name.isEmpty() ? -1 : Find_Category(name);
    if (category == -1) {
        platform::Dialogs::Get().Message(u"Category doesn't exist: "_s + name,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    CategoryEntry& entry = Global_Categories[static_cast<std::size_t>(category)];
    entry.Icon = Picture10->IconSelIMG->Selected_Name().trimmed().toLower();
    // Texts of their own: the table may change while the question is open.
    const QString stored = entry.Name;
    const QString icon = entry.Icon;
    Change_Icons_OfCategory(stored, icon);
}

void frmReminderEdit::Change_Icons_OfCategory(const QString& name, const QString& icon) {
    if (Slots_OfCategory(name).empty())
        return;
    const QString question = u"Icon changed. \r\nDo you want to change the icons of the reminders"
                             "\r\ninside the \"%1\" category ?"_s.arg(name);
    if (platform::Dialogs::Get().Question(question, false) != platform::Answer::Yes ||
        Program_Is_Ending())
        return;
    for (const std::int32_t slot : Slots_OfCategory(name))
        Global_Reminders[static_cast<std::size_t>(slot)].Reminder->rs_Icon = icon;
    Cards->Refresh_Row_Icons();
}

void frmReminderEdit::No_Icon_Click() {
    Select_Icon_By_Name({}, CardIcon::Update);
}

void frmReminderEdit::Select_Icon_By_Name(const QString& name, CardIcon card) {
    Picture10->IconSelIMG->Select_Icon_By_Name(name);
    if (card == CardIcon::Update)
        Cards->Set_SelectedIcon(name);
}
