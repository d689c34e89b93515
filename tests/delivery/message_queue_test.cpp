#include "delivery/message_menu.h"
#include "delivery_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MessageQueue : public DeliveryTest {
protected:
    std::int32_t Show(const QString& text) {
        const std::int32_t index = Add_Reminder(text);
        Show_ToolbarMessage(Ref(index));
        return index;
    }
    void Tick(int count = 1) {
        for (; count > 0; --count) {
            clock.Advance(100);
            Message_Tick();
        }
    }
    // The texts that come onto the line next, one after another.
    QString Next_Texts(qsizetype count) {
        line.puts.clear();
        for (int ticks = 0; ticks < 1000 && line.puts.size() < count; ++ticks)
            Tick();
        return line.puts.join(u""_s);
    }
    bool Timer_Runs() const { return timers.Is_Enabled(TimerName::S_Reminder_Timer); }
};

TEST_F(MessageQueue, A_Text_Passes_A_Pixel_A_Tick_And_Stands_Still_While_Its_Menu_Is_Open) {
    EXPECT_FALSE(Timer_Runs());
    Show(u"a\r\nbc\rd"_s);
    EXPECT_TRUE(Timer_Runs());
    Tick(); // chosen, and not moved within 100 ms
    Message_Tick();
    EXPECT_EQ(line.puts, QStringList(u"a. bc\rd"_s));
    EXPECT_EQ(line.left, 10);
    Tick(17);
    Global_MessagePaused = true;
    Tick(50);
    EXPECT_EQ(line.left, -7);
    Global_MessagePaused = false;
    Tick(); // past its own width: again from the right, and the toolbar with it
    EXPECT_EQ(line.left, 10);
    EXPECT_EQ(toolbar.shown, 2);
}

TEST_F(MessageQueue, A_New_Message_Goes_First_And_Then_Each_Has_One_Turn_A_Round) {
    const std::int32_t first = Show(u"A"_s);
    Show(u"B"_s);
    Show(u"C"_s);
    EXPECT_EQ(Next_Texts(4), u"ABCA"_s);
    Show(u"D"_s); // during the second pass of A
    Show_ToolbarMessage(Ref(first));
    EXPECT_EQ(Next_Texts(8), u"DBCABCDA"_s);
}

TEST_F(MessageQueue, A_Message_Ends_With_Its_First_Pass_That_Ends_After_Five_Minutes) {
    struct Case {
        const char* name;
        int hour, minute, second;
        qsizetype passes;
    };
    // The first tick is at 0.1 s; a pass over a line of 10 takes a text of 3 pixels 14 ticks.
    const Case cases[] = {
        {"at the full minute: 0.1 + 1.4 * 215 is the first behind 300 s", 9, 0, 0, 215},
        {"late in the minute: 0.1 + 1.4 * 173 is the first behind 242 s", 9, 0, 58, 173},
        {"over midnight: 0.1 + 1.4 * 86 is the first behind 120 s", 23, 58, 0, 86},
        {"up to midnight, with an end of 1440 that no clock shows", 23, 55, 0, 215}};
    for (const Case& row : cases) {
        Start_Afresh(row.hour, row.minute, row.second);
        Show(u"abc"_s);
        for (int ticks = 0; ticks < 10000 && Any_MessageActive(); ++ticks)
            Tick();
        EXPECT_EQ(line.puts.size(), row.passes) << row.name;
        EXPECT_TRUE(line.cleared && !Timer_Runs()) << row.name;
    }
    Show(u"abc"_s);
    clock.Jump(-24 * 3600 + 600); // past its end by the hour, but on another day, and no later one
    Tick(50);
    EXPECT_TRUE(Any_MessageActive());
}

TEST_F(MessageQueue, The_Menu_Changes_The_Reminder_And_Takes_The_Message_Away_In_One_Tick) {
    const std::int32_t today = Show(u"today"_s);
    const std::int32_t disabled = Show(u"off"_s);
    const std::int32_t later = Show(u"later"_s);
    const std::int32_t gone = Show(u"gone"_s);
    Reminder(disabled).rs_Enabled = true;
    Tick(5);
    Answer_Message(Global_CurrentMessage, ReminderAnswer::DisableForToday);
    EXPECT_EQ(Reminder(today).rs_DisabledForToday, 9558); // 26 * 365 + 7 + 31 + 28 + 2
    EXPECT_LT(line.left, -5);
    Tick(5);
    Answer_Message(Global_CurrentMessage, ReminderAnswer::Disable);
    EXPECT_FALSE(Reminder(disabled).rs_Enabled);
    Tick(5);
    Answer_Message(Global_CurrentMessage, ReminderAnswer::RemindAgain, 3);
    EXPECT_EQ(Global_RA_Reminders[0], (RA_Entry{9558, 570, later, 0})); // 30 minutes from 09:00
    Tick(5);
    Delete_ReminderSlot(gone);
    for (const auto answer :
         {ReminderAnswer::Disable, ReminderAnswer::DisableForToday, ReminderAnswer::RemindAgain}) {
        dialogs.Expect_Message(u"Can't find selected reminder"_s);
        Answer_Message(Global_CurrentMessage, answer);
    }
    EXPECT_EQ(line.puts, QStringList({u"today"_s, u"off"_s, u"later"_s, u"gone"_s}));
    Tick();
    EXPECT_EQ(line.left, 5); // it stays on its way
    Answer_Message(Global_CurrentMessage, ReminderAnswer::Ok);
    Tick();
    EXPECT_TRUE(line.cleared && !Timer_Runs() && !Any_MessageActive());
    for (const std::int32_t index : {-1, 0, 21})
        Answer_Message(index, ReminderAnswer::Ok);
}

TEST_F(MessageQueue, Texts_Of_Any_Length_Are_Measured_Once_And_The_Table_Grows) {
    Show(QString());
    Tick(12); // an empty text takes the width of the line
    EXPECT_EQ(line.puts.size(), 2);
    Show(QString(500000, u'x') + u"\r\n"_s.repeated(250000));
    Next_Texts(1);
    Tick(1000);
    EXPECT_EQ(line.left, -990);
    for (int i = 0; i < 30; ++i)
        Show(u"more"_s);
    for (const std::int32_t index : {-1, 49, 1000000})
        Show_ToolbarMessage(Ref(index));
    EXPECT_EQ(Global_ToolbarMessages.size(), 41U);
    EXPECT_EQ(line.measured, 32);
}

} // namespace
