// The list window with a clock, a screen, dialogs and files of the test's own. Monday 2 March 2026.
#pragma once

#include "accessories/help/help.h"
#include "controls/combo_box.h"
#include "controls/cool_tab.h"
#include "controls/text_fields.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "delivery/window_fixture.h"
#include "editors/list/card_list.h"
#include "editors/list/copy_buffer.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/list_rules.h"
#include "editors/list/reminder_edit.h"
#include "support/fake_files.h"
#include "support/fake_paths.h"
#include "support/form_driver.h"

#include <QPlainTextEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;

constexpr Day Monday = 26 * 365 + 7 + 31 + 28 + 2;

class ListTest : public WindowTest {
protected:
    ListTest() {
        Init_DateText();
        Global_DateFormat = u"dd/mm/yyyy"_s;
        Init_Categories();
        Global_Categories[0] = {u"Work"_s, u"Write"_s};
        Global_Categories[1] = {u"Home"_s, {}};
        CopyBufferValid = false;
    }
    ~ListTest() override { Close(); }
    static void Close() {
        if (frmReminderEdit* window = Open_ReminderEdit())
            window->Unload(UnloadMode::Ending);
        Unload_PendingForms();
    }
    // Every day at 20:00.
    std::int32_t Add(const QString& title, const QString& category = {}) {
        const std::int32_t slot = Add_New_Reminder(category).Slot();
        Reminder(slot).rs_Title = title;
        return slot;
    }
    frmReminderEdit& Open() {
        Show_ReminderEdit();
        Give_Focus(Open_ReminderEdit());
        return *Open_ReminderEdit();
    }
    frmReminderEdit& Open_On(std::int32_t slot) {
        frmReminderEdit& window = Open();
        window.SelectReminder_Using_RListIndex(slot);
        return window;
    }
    static QStringList Titles() {
        QStringList titles;
        for (const std::int32_t slot : Cards().Slots())
            titles << Global_Reminders[static_cast<std::size_t>(slot)].Reminder.Peek().rs_Title;
        return titles;
    }
    static CardView* Card(const QString& title) {
        for (CardView* card : Cards().findChildren<CardView*>())
            if (!card->isHidden() && card->Content().Title == title)
                return card;
        return nullptr;
    }
    static void Click_Card(const QString& title) {
        QTest::mouseClick(Card(title), Qt::LeftButton, {}, QPoint(100, 8));
    }
    static QString Selected_Title() {
        const ReminderClass* reminder = Open_ReminderEdit()->Selected_Reminder();
        return reminder == nullptr ? u"none"_s : reminder->rs_Title;
    }
    template <class Control>
    static Control* Named(const QString& name) {
        return Find<Control>(name, Open_ReminderEdit());
    }
    static void Press(const QString& button) { Click(Named<wbButton>(button)); }
    static void Type(const QString& field, const QString& text) {
        Type_Into(Named<QWidget>(field), text);
    }
    // A box to choose from says what is chosen, not what it is for.
    static ComboBox* Combo(const QString& name) {
        for (ComboBox* box : Open_ReminderEdit()->findChildren<ComboBox*>())
            if (box->accessibleName() == name)
                return box;
        return nullptr;
    }
    static void Choose(const QString& box, const QString& item) {
        const int index = Combo(box)->findText(item);
        ASSERT_NE(index, -1) << item.toStdString();
        Combo(box)->setCurrentIndex(index);
        Q_EMIT Combo(box)->activated(index);
        Q_EMIT Combo(box)->textActivated(item);
    }
    static CardList& Cards() { return *Open_ReminderEdit()->findChild<CardList*>(); }
    static CoolTab& Tabs() { return *Open_ReminderEdit()->findChild<CoolTab*>(); }
    static QString Page() { return Tabs().Tab_Caption(Tabs().Selected()); }
    static void Show_Page(const QString& caption) {
        while (Page() != caption)
            Tabs().Choose((Tabs().Selected() + 1) % Tabs().TabCount());
    }

    FakeFiles files;
    FakePaths paths;
};
