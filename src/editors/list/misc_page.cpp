#include "editors/list/misc_page.h"

#include "controls/combo_box.h"
#include "controls/metrics.h"
#include "controls/page_parts.h"
#include "controls/program_end.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "editors/list/list_rules.h"
#include "editors/pages/page_controls.h"
#include "platform/dialogs.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

enum TipNumber { Tip_Category = 25, Tip_Icon = 26 };
constexpr int TextLeft = 72;
constexpr int NoteWidth = 364;

bool Asks_Yes(const QString& question) {
    return platform::Dialogs::Get().Question(question, false) == platform::Answer::Yes &&
           !Program_Is_Ending();
}

} // namespace

MiscPage::MiscPage(EditHost& editHost, QWidget* parent) : ReminderPage(parent), host(editHost) {
    setFont(Small_Font());
    QLabel* label = Add_Text(this, u"Category:"_s, 8, 12, TextLook::Heading);
    category = pages::Add_CategoryBox(this, {TextLeft, 8, 220, 22}, label);
    wbButton* erase =
        Add_Button(this, u"Delete"_s, {TextLeft + 226, 7, 72, 24}, u"Delete category"_s);
    new TooltipPicture(Tip_Category, 444, 11, this);
    Add_Text(this,
             u"To add a new category, just insert the name, the category will be added "
             "automatically."_s,
             TextLeft, 40, TextLook::Plain, NoteWidth);
    Add_Text(this, u"To delete a category, select it and press the delete button."_s, TextLeft, 72,
             TextLook::Plain, NoteWidth);
    Add_Text(this, u"Icon:"_s, 8, 104, TextLook::Heading);
    new TooltipPicture(Tip_Icon, 444, 103, this);
    icons = new IconPalette(this);
    icons->move(TextLeft, 104);
    wbButton* use =
        Add_Button(this, u"Use this icon for the selected category"_s, {TextLeft, 300, 262, 24});
    wbButton* none = Add_Button(this, u"No icon"_s, {TextLeft + 268, 300, 98, 24});
    connect(category, &QComboBox::textActivated, this, &MiscPage::Category_Chosen);
    connect(erase, &wbButton::Click, this, &MiscPage::Delete_Click);
    connect(use, &wbButton::Click, this, &MiscPage::UseIcon_Click);
    connect(none, &wbButton::Click, this, [this] { Choose_Icon({}); });
    connect(icons, &IconPalette::Icon_Clicked, this, &MiscPage::Choose_Icon);
}

void MiscPage::Load(const ReminderClass& reminder) {
    Show_Category(&reminder);
    icons->Select_Icon_By_Name(reminder.rs_Icon);
}

QString MiscPage::Store(ReminderClass& reminder) {
    const QString name = Category_FromText(category->currentText());
    if (name.compare(reminder.rs_Category, Qt::CaseInsensitive) != 0)
        reminder.rs_Category = name;
    reminder.rs_Icon = Icon_Name();
    return {};
}

void MiscPage::Set_Categories(const QStringList& names) {
    const QString text = category->currentText();
    category->clear();
    category->addItems(names);
    Set_CategoryText(text);
}

void MiscPage::Set_CategoryText(const QString& text) {
    // The arrow keys go on from the item that is shown.
    category->setCurrentIndex(category->findText(text, Qt::MatchFixedString));
    category->setEditText(text);
}

void MiscPage::Show_Category(const ReminderClass* reminder) {
    const QString name = reminder == nullptr ? QString() : reminder->rs_Category;
    Set_CategoryText(name.isEmpty() ? NoCategoryText : name);
}

void MiscPage::Choose_Icon(const QString& name) {
    icons->Select_Icon_By_Name(name);
    Q_EMIT Icon_Chosen(name);
}

// A category brings its icon to the reminder.
void MiscPage::Category_Chosen(const QString& name) {
    const QString icon = Icon_OfCategory(name);
    if (host.Selected_Reminder() != nullptr && !icon.isEmpty())
        Choose_Icon(icon);
}

void MiscPage::Delete_Click() {
    const QString typed = category->currentText().trimmed();
    if (typed == NoCategoryText)
        return;
    const int item = category->findText(typed, Qt::MatchFixedString);
    if (item == -1) {
        platform::Dialogs::Get().Message(u"Category doesn't exists"_s,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    const QString name = category->itemText(item);
    if (!Asks_Yes(u"Delete category: "_s + name + u'?'))
        return;
    Delete_Category(name);
    Q_EMIT Category_Deleted();
    // Nothing of the deleted name must stay in the box: the next save would bring it back.
    Show_Category(host.Selected_Reminder());
}

void MiscPage::UseIcon_Click() {
    const QString typed = category->currentText().trimmed();
    // The empty name would find the first free entry.
    const int index = typed.isEmpty() ? -1 : Find_Category(typed);
    if (index == -1) {
        platform::Dialogs::Get().Message(u"Category doesn't exist: "_s + typed,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    CategoryEntry& entry = Global_Categories[static_cast<std::size_t>(index)];
    entry.Icon = Icon_Name().toLower();
    // Texts of their own: the table may change while the question is open.
    const QString name = entry.Name;
    const QString icon = entry.Icon;
    if (Slots_OfCategory(name).empty() ||
        !Asks_Yes(u"Icon changed. \r\nDo you want to change the icons of the reminders"
                  "\r\ninside the \"%1\" category ?"_s.arg(name)))
        return;
    for (const std::int32_t slot : Slots_OfCategory(name))
        Global_Reminders[static_cast<std::size_t>(slot)].Reminder->rs_Icon = icon;
    Q_EMIT Icons_Changed();
}
