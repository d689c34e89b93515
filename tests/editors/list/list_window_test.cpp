// The window as its user meets it: by events, and by what is then in the table.
#include "core/record_stream.h"
#include "editors/list/click_label.h"
#include "editors/list/frm_re_function_edit.h"
#include "editors/list/icon_palette.h"
#include "editors/pages/date_page.h"
#include "editors/pages/hour_page.h"
#include "list_fixture.h"

#include <QScrollBar>

namespace {

class ListWindow : public ListTest {
protected:
    // A number of weeks that no save takes.
    static void Spoil_Date() {
        Named<ChkBox>(u"Each: Monday"_s)->Toggle();
        Named<ChkBox>(u"Every X Weeks"_s)->Toggle();
        Type(u"Every X weeks"_s, u"0"_s);
    }
    void Expect_Refusal() { dialogs.Expect_Message(u"Invalid Every X weeks value"_s); }
    void Expect_DeleteQuestion(const QString& title, platform::Answer answer) {
        dialogs.Expect_Question(u"Delete: %1 ?\r\n\r\n\"Insert text here\"\r\n"
                                "Next run: Today"_s.arg(title),
                                answer, platform::BoxStyle::Question, u"Confirm"_s);
    }
    static std::string Record_Of(const ReminderClass& reminder) {
        RecordWriter stream;
        reminder.SaveData_To_File(stream);
        return stream.Bytes();
    }
    ReminderClass& Add_Kind(const QString& title, DateType kind) {
        ReminderClass& reminder = Reminder(Add(title, u"Work"_s));
        reminder.rs_DateType_Used = kind;
        reminder.rs_REveryDay = kind == DateType::EveryDay;
        return reminder;
    }
};

TEST_F(ListWindow, A_reminder_of_every_kind_goes_through_the_pages_unchanged) {
    Add_Kind(u"every day"_s, DateType::EveryDay);
    ReminderClass& weeks = Add_Kind(u"weeks"_s, DateType::Weekdays);
    weeks.rs_wDays = {1, 0, 0, 0, 0, 1, 0, 0};
    weeks.rs_ReWeeks = 3;
    weeks.rs_ActivationDay = Monday + 30;
    Add_Kind(u"days"_s, DateType::EveryXDays).rs_ReDays = 5;
    Add_Kind(u"exact"_s, DateType::ExactDate).Set_ExactDate({4, 3, 2026}, Monday + 2);
    ReminderClass& month = Add_Kind(u"month"_s, DateType::DayOfMonth);
    month.rs_REDayOfMonth = 21;
    month.rs_Reminder_Type = ReminderType::Centered;
    month.rs_Minimize_Apps = true;
    month.rs_PlaySound = false;
    month.rs_SoundPath = u"/home/a\u00a0b.ogg"_s;
    month.rs_Text = u"one\r\ntwo\nthree\u00a0four"_s;
    month.rs_Icon = u"Gift"_s;
    month.SetFuncion(3, {true, FunctionType::OpenFile, 2, u"c:\\x"_s, u"Open"_s});
    month.AddNewHourSetup({-1, -1, 0, 0});
    month.AddNewHourSetup({0, 60, 120, 15});
    month.AddNewHourSetup({-1, -1, 900, 90});
    std::vector<std::string> before;
    for (std::int32_t slot = 0; slot < 5; ++slot) {
        Open().SelectReminder_Using_RListIndex(slot);
        before.push_back(Record_Of(Reminder(slot)));
    }
    Open().SelectReminder_Using_RListIndex(0); // saves the last one
    for (std::int32_t slot = 0; slot < 5; ++slot) {
        if (slot != 2) { // of days: a first run is set when it is saved
            EXPECT_EQ(Record_Of(Reminder(slot)), before[static_cast<std::size_t>(slot)])
                << Reminder(slot).rs_Title.toStdString();
        }
    }
    EXPECT_EQ(Titles(), u"every day|weeks|days|exact|month"_s.split(u'|'));
    EXPECT_EQ(Reminder(2).rs_ReDays, 5);
}

TEST_F(ListWindow, What_is_set_back_after_a_save_is_saved_again) {
    ReminderClass& reminder = Add_Kind(u"one"_s, DateType::Weekdays);
    reminder.rs_wDays = {1, 0, 0, 0, 0, 0, 0, 0};
    reminder.rs_ReWeeks = 3;
    reminder.rs_Text = u"text"_s;
    reminder.rs_Reminder_Type = ReminderType::Centered;
    reminder.rs_SoundPath = u"/a.ogg"_s;
    reminder.AddNewHourSetup({-1, 60, 120, 15});
    frmReminderEdit& window = Open_On(0);
    std::vector<std::pair<QString, std::function<void(bool back)>>> fields;
    const auto Add_Field = [&](const QString& name, const QString& other, const QString& own) {
        fields.emplace_back(name, [=](bool back) { Type(name, back ? own : other); });
    };
    Add_Field(u"Title"_s, u"title 2"_s, u"one"_s);
    Add_Field(u"Text"_s, u"text 2"_s, u"text"_s);
    for (int k = 1; k <= 4; ++k) {
        const QString caption = u"Caption of button %1"_s.arg(k);
        Add_Field(caption, u"caption 2"_s, Named<QLineEdit>(caption)->text());
    }
    Add_Field(u"Sound file"_s, u"/b.ogg"_s, u"/a.ogg"_s);
    Add_Field(u"Row 1: at"_s, u"20:01"_s, u"20:00"_s);
    Add_Field(u"Row 2: every"_s, u"20m"_s, u"15m"_s);
    Add_Field(u"Row 2: starting at"_s, u"01:30"_s, u"01:00"_s);
    Add_Field(u"Row 2: until"_s, u"02:30"_s, u"02:00"_s);
    Add_Field(u"Every X weeks"_s, u"4"_s, u"3"_s);
    for (const QString& box :
         {u"Button 1"_s, u"Button 2"_s, u"Button 3"_s, u"Button 4"_s,
          u"Minimize all running applications"_s, u"Play a sound file when the reminder is shown"_s,
          u"Window's beep"_s, u"Each: Tuesday"_s, u"Every X Weeks"_s, u"Row 1 enabled"_s})
        fields.emplace_back(box, [box](bool) { Named<ChkBox>(box)->Toggle(); });
    fields.emplace_back(u"category"_s, [](bool back) {
        Combo(u"Category"_s)->setEditText(back ? u"Work"_s : u"Home"_s);
    });
    fields.emplace_back(u"icon"_s, [](bool back) {
        back ? Press(u"No icon"_s) : Named<IconSelectPicture>(u"Gift"_s)->click();
    });
    fields.emplace_back(u"mode"_s, [](bool back) {
        Named<QRadioButton>(back ? u"Separate window, centered"_s : u"Show inside toolbar"_s)
            ->click();
    });
    const auto Saved = [&] {
        EXPECT_TRUE(window.Save_View_To_Reminder(CategoryOnSave::Take));
        return Record_Of(reminder);
    };
    const std::string before = Saved();
    for (const auto& [name, change] : fields) {
        change(false);
        EXPECT_NE(Saved(), before) << name.toStdString();
        change(true);
        EXPECT_EQ(Saved(), before) << name.toStdString();
    }
}

TEST_F(ListWindow, Cards_tell_title_text_and_next_run_and_wear_the_record_s_state) {
    Add(u"plain"_s);
    Reminder(Add(u"never"_s)).rs_REveryDay = false;
    Reminder(1).rs_Enabled = false;
    Reminder(Add(u"today off"_s)).rs_DisabledForToday = Monday;
    Open();
    EXPECT_EQ(Card(u"plain"_s)->Content().NextRun, u"(Today)"_s);
    EXPECT_TRUE(Card(u"plain"_s)->Content().RunsToday);
    EXPECT_EQ(Card(u"never"_s)->Content().NextRun, u"( )"_s);
    EXPECT_EQ(Card(u"never"_s)->Content().Colors, IconColors::Grey);
    EXPECT_TRUE(Card(u"today off"_s)->Content().DisabledForToday);
    EXPECT_FALSE(Card(u"today off"_s)->EnabledBox->Is_Ticked());
    Card(u"today off"_s)->EnabledBox->Toggle();
    EXPECT_EQ(Reminder(2).rs_DisabledForToday, 0);
    EXPECT_FALSE(Card(u"today off"_s)->Content().DisabledForToday);
    Card(u"plain"_s)->EnabledBox->Toggle();
    EXPECT_FALSE(Reminder(0).rs_Enabled);
}

TEST_F(ListWindow, Midnight_passes_with_the_window_open) {
    Reminder(Add(u"today off"_s)).rs_DisabledForToday = Monday;
    ReminderClass& exact = Add_Kind(u"exact"_s, DateType::ExactDate);
    exact.Set_ExactDate({3, 3, 2026}, Monday + 1);
    frmReminderEdit& window = Open_On(1);
    Named<ChkBox>(u"Remind me: Every Day"_s)->Toggle(); // not saved
    const auto Exact = [] { return Card(u"exact"_s)->Content().NextRun; };
    EXPECT_EQ(Exact(), u"(Today)"_s);
    clock.Advance(24 * 3600 * 1000);
    for (QTimer* timer : window.findChildren<QTimer*>())
        if (timer->interval() == 60000)
            timer->setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([] { return !Card(u"today off"_s)->Content().DisabledForToday; }));
    EXPECT_EQ(Exact(), u"(Today)"_s);
    EXPECT_EQ(exact.rs_DateType_Used, DateType::ExactDate);
}

TEST_F(ListWindow, Ten_thousand_reminders_have_as_many_controls_as_ten) {
    const auto Controls = [this](int count) {
        Close();
        Init_Reminders();
        for (int number = 0; number < count; ++number)
            Global_Reminders.push_back({true, false, std::make_unique<ReminderClass>()});
        return Open().findChildren<QWidget*>().size();
    };
    const auto few = Controls(10);
    EXPECT_EQ(Controls(10000), few);
    Global_Reminders.back().Reminder->rs_Title = u"the last"_s;
    Open();
    CardList* list = &Cards();
    list->setFocus();
    QTest::keyClick(list, Qt::Key_End);
    EXPECT_EQ(list->findChild<QScrollBar*>()->value(), 10000 * 73 - list->height());
    ASSERT_NE(Card(u"the last"_s), nullptr);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(Selected_Title(), u"the last"_s);
    EXPECT_EQ(Open().SelectedRow(), 9999);
}

TEST_F(ListWindow, Title_and_text_reach_record_and_card_as_they_are_typed) {
    frmReminderEdit& window = Open_On(Add(u"Reminder"_s));
    Show_Page(u"Message"_s);
    Type(u"Title"_s, u"Bread"_s);
    EXPECT_EQ(Reminder(0).rs_Title, u"Bread"_s);
    ASSERT_NE(Card(u"Bread"_s), nullptr);
    // To its own menu, another window, and another field.
    for (const auto reason :
         {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::TabFocusReason}) {
        EXPECT_EQ(Reminder(0).rs_Text, u"Insert text here"_s);
        QFocusEvent leave(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(Named<QLineEdit>(u"Title"_s), &leave);
    }
    EXPECT_EQ(Reminder(0).rs_Text, u"Bread"_s);
    CardText* onCard = Card(u"Bread"_s)->Text;
    EXPECT_EQ(Plain_Text(*onCard), u"Bread"_s);
    Type_Into(onCard, u"a"_s);
    QTest::keyClick(onCard, Qt::Key_Return);
    QTest::keyClicks(onCard, u"b"_s);
    EXPECT_EQ(Reminder(0).rs_Text, u"a\r\nb"_s);
    EXPECT_EQ(Plain_Text(*Named<QPlainTextEdit>(u"Text"_s)), u"a\nb"_s);
    // Nothing of it is undone into a reminder with the same text.
    Reminder(Add(u"other"_s)).rs_Text = u"same"_s;
    Type(u"Text"_s, u"same"_s);
    window.SelectReminder_Using_RListIndex(1);
    QTest::keyClick(Named<QPlainTextEdit>(u"Text"_s), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Reminder(1).rs_Text, u"same"_s);
}

TEST_F(ListWindow, A_field_at_fault_keeps_its_reminder_selected_whatever_is_tried) {
    Add(u"good"_s, u"Work"_s);
    frmReminderEdit& window = Open_On(Add(u"bad"_s, u"Home"_s));
    Spoil_Date();
    Show_Page(u"Message"_s);
    const std::function<void()> tries[] = {
        [&] { Click_Card(u"good"_s); },
        [&] { Choose(u"Show Category"_s, u"Work"_s); },
        [&] { EXPECT_FALSE(window.Unload(UnloadMode::User)); },
        [&] { Press(u"Copy"_s); },
        [&] { Press(u"Run"_s); },
    };
    for (const auto& attempt : tries) {
        Expect_Refusal();
        attempt();
        EXPECT_EQ(Selected_Title(), u"bad"_s);
        EXPECT_EQ(Combo(u"Show Category"_s)->currentText(), u"-- (All)"_s);
        EXPECT_EQ(Page(), u"Date Setup"_s);
    }
    EXPECT_FALSE(CopyBufferValid);
    EXPECT_TRUE(line.puts.empty());
    EXPECT_TRUE(window.Unload(UnloadMode::Ending));
}

TEST_F(ListWindow, The_end_takes_a_good_page_and_brings_a_refused_record_back_as_it_stood) {
    const std::int32_t slot = Add(u"kept"_s);
    Reminder(slot).AddNewHourSetup({-1, 60, 0, 0});
    frmReminderEdit& window = Open_On(slot);
    Combo(u"Category"_s)->setEditText(u"new one"_s);
    Type(u"Caption of button 1"_s, u"still typing"_s);
    Type(u"Row 1: at"_s, u"21:15"_s);
    EXPECT_TRUE(Store_OpenPage());
    EXPECT_EQ(Reminder(slot).rs_Category, u"New One"_s);
    EXPECT_EQ(Reminder(slot).GetFuncion(0).Title, u"still typing"_s);
    EXPECT_EQ(Reminder(slot).GetHourSetup(0).StartMinute, 21 * 60 + 15);
    const std::string before = Record_Of(Reminder(slot));
    Spoil_Date();
    Expect_Refusal();
    // The program may end under the box of the refusal, too.
    dialogs.whileOpen = [&](const auto&) {
        EXPECT_FALSE(Reminder(slot).rs_REveryDay);
        EXPECT_FALSE(Store_OpenPage());
        EXPECT_EQ(Record_Of(Reminder(slot)), before);
    };
    EXPECT_FALSE(window.Save_View_To_Reminder(CategoryOnSave::Take));
    dialogs.whileOpen = nullptr;
    EXPECT_FALSE(Store_OpenPage());
    EXPECT_EQ(Record_Of(Reminder(slot)), before);
}

TEST_F(ListWindow, A_condition_added_after_a_refused_save_outlives_the_end) {
    frmReminderEdit& window = Open_On(Add(u"one"_s));
    Type(u"Row 1: at"_s, u"bad"_s);
    dialogs.Expect_Message(u"Invalid time: \r\nbad"_s);
    EXPECT_FALSE(window.Save_View_To_Reminder(CategoryOnSave::Take));
    EXPECT_EQ(Page(), u"Hours Setup"_s);
    EXPECT_TRUE(Named<QLineEdit>(u"Row 1: at"_s)->hasFocus());
    Press(u"Add to list: At"_s);
    EXPECT_FALSE(Store_OpenPage());
    ASSERT_EQ(Reminder(0).HourSetupList_Size(), 1);
    EXPECT_EQ(Reminder(0).GetHourSetup(0), (HourSetup{-1, 1200, 0, 0}));
    EXPECT_EQ(Reminder(0).GetHourSetup(1), (HourSetup{-1, 1230, 0, 0}));
}

TEST_F(ListWindow, A_selected_reminder_may_move_fire_or_go_away_from_outside) {
    Add(u"first"_s);
    Add(u"second"_s);
    Add(u"third"_s);
    frmReminderEdit& window = Open_On(1);
    Delete_ReminderSlot(0);
    EXPECT_EQ(Selected_Title(), u"second"_s);
    Type(u"Title"_s, u"moved"_s);
    EXPECT_EQ(Reminder(0).rs_Title, u"moved"_s);
    EXPECT_EQ(Reminder(1).rs_Title, u"third"_s);
    Click_Card(u"third"_s); // its card still stands in the old row
    EXPECT_EQ(Selected_Title(), u"third"_s);
    Delete_ReminderSlot(1);
    Type(u"Title"_s, u"nobody"_s);
    EXPECT_EQ(Reminder(0).rs_Title, u"moved"_s);
    window.Refresh_View();
    EXPECT_TRUE(window.findChild<DatePage*>()->isHidden());
    EXPECT_EQ(Titles(), QStringList{u"moved"_s});
    EXPECT_TRUE(window.Unload(UnloadMode::User));
}

TEST_F(ListWindow, New_copy_paste_and_delete) {
    Add(u"one"_s);
    frmReminderEdit& window = Open_On(0);
    Press(u"Paste"_s); // nothing was copied in this run
    EXPECT_EQ(Titles().size(), 1);
    Press(u"New"_s);
    EXPECT_EQ(Titles(), (QStringList{u"one"_s, u"Reminder"_s}));
    EXPECT_EQ(Selected_Title(), u"one"_s);
    Press(u"Copy"_s);
    Press(u"Paste"_s);
    EXPECT_EQ(Reminder(2).rs_Title, u"one"_s);
    EXPECT_EQ(Reminder(2).rs_Category, u"-- (All)"_s);
    EXPECT_EQ(Reminder(2).rs_ID, 2);
    Expect_DeleteQuestion(u"one"_s, platform::Answer::No);
    Press(u"Delete"_s);
    EXPECT_EQ(Titles().size(), 3);
    Expect_DeleteQuestion(u"one"_s, platform::Answer::Yes);
    Press(u"Delete"_s);
    EXPECT_EQ(Titles(), (QStringList{u"Reminder"_s, u"one"_s}));
    EXPECT_EQ(Selected_Title(), u"none"_s);
    EXPECT_TRUE(window.findChild<DatePage*>()->isHidden());
}

TEST_F(ListWindow, Keys_act_on_the_card_that_wears_the_frame) {
    Add(u"one"_s);
    Add(u"two"_s);
    frmReminderEdit& window = Open_On(0);
    Press(u"New"_s); // the frame stays with the selection
    Cards().setFocus();
    QTest::keyClick(&Cards(), Qt::Key_Down);
    EXPECT_EQ(Selected_Title(), u"one"_s);
    QTest::keyClick(&Cards(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Selected_Title(), u"two"_s);
    QTest::keyClick(&Cards(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Reminder(3).rs_Title, u"two"_s);
    EXPECT_EQ(Cards().Current_Row(), 1);
    Delete_ReminderSlot(0); // the frame goes along with its card
    window.Refresh_View();
    EXPECT_EQ(Cards().Current_Row(), 0);
    QTest::keyClick(&Cards(), Qt::Key_Down);
    Expect_DeleteQuestion(u"Reminder"_s, platform::Answer::Yes);
    QTest::keyClick(&Cards(), Qt::Key_Delete);
    EXPECT_EQ(Titles(), (QStringList{u"two"_s, u"two"_s}));
    Open_On(0);
    Spoil_Date();
    Cards().setFocus();
    QTest::keyClick(&Cards(), Qt::Key_End);
    Expect_Refusal(); // and nothing is deleted
    QTest::keyClick(&Cards(), Qt::Key_Delete);
    EXPECT_EQ(Titles().size(), 2);
}

TEST_F(ListWindow, An_empty_category_offers_all_the_reminders) {
    Add(u"one"_s, u"Work"_s);
    Open();
    Choose(u"Show Category"_s, u"Home"_s);
    EXPECT_TRUE(Named<QLabel>(u"No reminders in this category"_s)->isVisible());
    EXPECT_TRUE(Cards().findChild<QScrollBar*>()->isHidden());
    QTest::mouseClick(Named<ClickLabel>(u"Click here to view all the reminders"_s), Qt::LeftButton);
    EXPECT_EQ(Titles(), QStringList{u"one"_s});
    EXPECT_TRUE(Named<QLabel>(u"No reminders in this category"_s)->isHidden());
    Click_Card(u"one"_s);
    QWheelEvent wheel({5, 5}, Combo(u"Show Category"_s)->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                      {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Combo(u"Show Category"_s),
                                &wheel); // without the focus it changes nothing
    EXPECT_EQ(Combo(u"Show Category"_s)->currentText(), u"-- (All)"_s);
    EXPECT_EQ(Selected_Title(), u"one"_s);
    Choose(u"Show Category"_s, u"-- (All)"_s); // chosen already: the selection goes all the same
    EXPECT_EQ(Selected_Title(), u"none"_s);
}

TEST_F(ListWindow, A_category_typed_is_added_moves_its_card_and_can_be_deleted) {
    Add(u"one"_s, u"Work"_s);
    Add(u"two"_s, u"Work"_s);
    frmReminderEdit& window = Open();
    Choose(u"Show Category"_s, u"Work"_s);
    Click_Card(u"one"_s);
    Combo(u"Category"_s)->setEditText(u"garden  tools"_s);
    Click_Card(u"two"_s);
    EXPECT_EQ(Reminder(0).rs_Category, u"Garden Tools"_s);
    EXPECT_EQ(Titles(), QStringList{u"two"_s});
    EXPECT_EQ(Combo(u"Show Category"_s)->findText(u"Garden Tools"_s), 4);
    auto* erase = Named<wbButton>(u"Delete category"_s);
    Combo(u"Category"_s)->setEditText(u"unknown"_s);
    dialogs.Expect_Message(u"Category doesn't exists"_s);
    Click(erase);
    Combo(u"Category"_s)->setEditText(u"work"_s);
    dialogs.Expect_Question(u"Delete category: Work?"_s, platform::Answer::Yes);
    Click(erase);
    EXPECT_EQ(Find_Category(u"Work"_s), -1);
    EXPECT_EQ(Selected_Title(), u"two"_s);
    EXPECT_TRUE(window.Unload(UnloadMode::User));
    EXPECT_EQ(Reminder(1).rs_Category, QString()); // and the save has not brought it back
}

TEST_F(ListWindow, A_category_s_icon_goes_to_its_reminders_when_the_user_agrees) {
    for (const QString& title : {u"one"_s, u"two"_s})
        Add(title, u"Home"_s);
    Open_On(0);
    Show_Page(u"Misc"_s);
    const QString use = u"Use this icon for the selected category"_s;
    const QString question = u"Icon changed. \r\nDo you want to change the icons of the "
                             "reminders\r\ninside the \"Home\" category ?"_s;
    QTest::mouseClick(Named<IconSelectPicture>(u"Gift"_s), Qt::LeftButton);
    EXPECT_EQ(Card(u"one"_s)->Content().Icon, u"Gift"_s);
    EXPECT_EQ(Reminder(0).rs_Icon, QString()); // until a save
    dialogs.Expect_Question(question, platform::Answer::No);
    Press(use);
    EXPECT_EQ(Global_Categories[1].Icon, u"gift"_s);
    EXPECT_EQ(Reminder(1).rs_Icon, QString());
    dialogs.Expect_Question(question, platform::Answer::Yes);
    Press(use);
    EXPECT_EQ(Reminder(1).rs_Icon, u"gift"_s);
    EXPECT_EQ(Card(u"two"_s)->Content().Icon, u"gift"_s);
    Press(u"No icon"_s);
    EXPECT_EQ(Card(u"one"_s)->Content().Icon, QString());
    Choose(u"Category"_s, u"Work"_s); // brings its own icon
    EXPECT_TRUE(Named<IconSelectPicture>(u"Write"_s)->isChecked());
    Combo(u"Category"_s)->setEditText(u"--"_s);
    dialogs.Expect_Message(u"Category doesn't exist: --"_s);
    Press(use);
}

TEST_F(ListWindow, The_function_editor_changes_the_record_at_once_and_keeps_what_is_typed) {
    Add(u"other"_s);
    frmReminderEdit& window = Open_On(Add(u"one"_s));
    Show_Page(u"Message"_s);
    const auto Editor = [&]() -> frmRE_FunctionEdit& {
        Press(u"Edit function of button 2"_s);
        return *window.findChildren<frmRE_FunctionEdit*>().back();
    };
    auto* caption = Named<QLineEdit>(u"Caption of button 2"_s);
    caption->setText(u"My caption"_s);
    const auto Finish = [](const frmRE_FunctionEdit& editor, const QString& button) {
        Click_On<wbButton>(button, &editor);
        Unload_PendingForms();
    };
    frmRE_FunctionEdit& canceled = Editor();
    Find<ChkBox>(u"Open file:"_s, &canceled)->Toggle();
    QTest::keyClick(&canceled, Qt::Key_Escape);
    Unload_PendingForms();
    EXPECT_EQ(Reminder(1).GetFuncion(1), FunctionEntry{});
    frmRE_FunctionEdit& editor = Editor();
    for (const QString& box : {u"Open file:"_s, u"Open page:"_s, u"Maximized"_s})
        Find<ChkBox>(box, &editor)->Toggle(); // takes the tick of its group
    Type_Into(Find<QLineEdit>(u"URL"_s, &editor), u"a.org"_s);
    Finish(editor, u"Ok"_s);
    EXPECT_EQ(Reminder(1).GetFuncion(1),
              (FunctionEntry{false, FunctionType::OpenPage, 2, u"http://a.org"_s, {}}));
    EXPECT_TRUE(Named<ClickLabel>(u"Open page: \"http://a.org\""_s)->isVisible());
    EXPECT_EQ(caption->text(), u"My caption"_s);
    // The reminder goes while its function is being edited.
    frmRE_FunctionEdit& late = Editor();
    Delete_ReminderSlot(1);
    Finish(late, u"Ok"_s);
    EXPECT_EQ(Reminder(0).GetFuncion(1), FunctionEntry{});
}

TEST_F(ListWindow, Display_mode_functions_and_sound) {
    Reminder(Add(u"one"_s)).rs_Reminder_Type = ReminderType::Centered;
    frmReminderEdit& window = Open_On(0);
    auto* minimize = Named<ChkBox>(u"Minimize all running applications"_s);
    minimize->Toggle();
    Named<QRadioButton>(u"Separate window, next to toolbar"_s)->click();
    EXPECT_TRUE(minimize->Is_Blocked());
    Named<ChkBox>(u"Button 3"_s)->Toggle();
    EXPECT_TRUE(Reminder(0).GetFuncion(2).Enabled); // at once
    auto* caption = Named<QLineEdit>(u"Caption of button 1"_s);
    caption->setText(QString(65533, u'a'));
    QTest::keyClicks(caption, u"bcdef"_s);
    EXPECT_EQ(caption->text().size(), 65535);
    auto* beep = Named<ChkBox>(u"Window's beep"_s);
    auto* sound = Named<QLineEdit>(u"Sound file"_s);
    EXPECT_TRUE(beep->Is_Ticked()); // the path is empty
    EXPECT_FALSE(sound->isEnabled());
    const QString base = paths.Program_Folder() + u"/ring"_s;
    ASSERT_TRUE(files.Replace(base + u".mp3"_s, "x"));
    const QString browse = u"Choose a sound file"_s;
    dialogs.Expect_Open_File(u"Open File"_s, base, 1);
    dialogs.Expect_Message(u"Can't open file: "_s + base + u".wav"_s, platform::BoxStyle::Critical);
    Press(browse);
    dialogs.Expect_Open_File(u"Open File"_s, base, 0);
    Press(browse);
    EXPECT_TRUE(sound->isEnabled());
    EXPECT_TRUE(window.Save_View_To_Reminder(CategoryOnSave::Take));
    EXPECT_EQ(Reminder(0).rs_SoundPath, base + u".mp3"_s);
    EXPECT_EQ(Reminder(0).rs_Reminder_Type, ReminderType::NextToToolbar);
    EXPECT_FALSE(Reminder(0).rs_Minimize_Apps);
    Press(u"Play"_s);
    EXPECT_EQ(media.commands.filter(u"PLAY"_s).size(), 1);
    Type(u"Sound file"_s, u"/nowhere.mp3"_s);
    dialogs.Expect_Message(u"Invalid sound file"_s);
    Press(u"Play"_s);
    beep->Toggle();
    desktop.beeps = 0;
    Press(u"Play"_s);
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(media.commands.filter(u"PLAY"_s).size(), 1);
}

} // namespace
