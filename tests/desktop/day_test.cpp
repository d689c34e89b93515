// A user's day on a real X desktop: reminders made, edited, copied and put away.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <csignal>

namespace {

const QString Wizard = u"Add new reminder"_s;
const QString List = u"Reminders"_s;

class Day : public Driven {
protected:
    // Through all eight pages, with one hour: 06:00.
    void Make_By_Mouse(int type, const QString& message) const {
        const QString window = Open(Wizard, 118);
        const auto next = [&] { Click(window, 426, 361); };
        Click(window, 44, 142 + 33 * type);
        next();
        if (type == 2)
            Click(window, 44, 144); // Monday
        if (type == 3)
            Click(window, 97, 227); // the 31st
        if (type == 4)
            Retype(u"3"_s);
        next();
        Click(window, 44, 191);
        next();
        next();
        Type(message);
        for (int page = 0; page < 4; ++page)
            next();
        Wait_Until_Gone(Wizard);
    }
    void Make_By_Keyboard(int type, const QString& message) const {
        Keys({u"space"_s}); // the focus is on the toolbar's button
        Wait_For_Focus(Wizard);
        Keys(QStringList(type, u"Down"_s) + QStringList{u"Return"_s});
        if (type == 2)
            Keys({u"space"_s});
        if (type == 3) // from the 15th
            Keys({u"Down"_s, u"Down"_s, u"Right"_s, u"Right"_s});
        if (type == 4)
            Retype(u"3"_s);
        Keys({u"Return"_s, u"Tab"_s, u"space"_s, u"Return"_s, u"Return"_s});
        Type(message);
        Keys({u"Tab"_s, u"Tab"_s, u"Return"_s, u"Return"_s, u"Return"_s, u"Return"_s});
        Wait_Until_Gone(Wizard);
    }
    // A later launch gives the strip the keyboard.
    void Go_To_Strip() const {
        Tockly second(desktop, Home());
        second.Start();
        EXPECT_EQ(second.Wait_For_End(), 0);
        Wait_For_Focus(Strip);
    }
    std::vector<SavedReminder> Saved() const { return Saved_Reminders(File_Bytes(Reminders())); }

    static void Expect_What_The_Wizard_Made(const std::vector<SavedReminder>& made) {
        ASSERT_EQ(made.size(), 6U);
        const std::uint8_t kinds[] = {3, 0, 1, 4, 2, 3};
        for (std::size_t type = 0; type < 6; ++type) {
            SCOPED_TRACE(type);
            const SavedReminder& one = made[type];
            EXPECT_TRUE(one.enabled && one.id == 0 && one.type == 1 && !one.everyDay);
            EXPECT_EQ(one.kind, kinds[type]);
            EXPECT_EQ(one.text, "Type " + QByteArray::number(static_cast<int>(type)));
            ASSERT_EQ(one.hours.size(), 1U);
            EXPECT_EQ(one.hours[0].start, 360);
        }
        const QDate today = QDate::currentDate();
        EXPECT_EQ(QDate(made[0].year, made[0].month, made[0].day), today);
        EXPECT_EQ(made[2].weekdays, QByteArray("\1\0\0\0\0\0\0\0", 8));
        EXPECT_EQ(made[3].dayOfMonth, 31);
        EXPECT_EQ(made[4].reDays, 3);
        EXPECT_EQ(made[5].year, 0);
        EXPECT_EQ(made[5].month, today.month());
    }

    static constexpr int CardPitch = 73;
    void Select(const QString& list, int card) const { Click(list, 100, 73 + CardPitch * card); }
};

TEST_F(Day, One_Of_Each_Type_By_Mouse_Then_Edited_Copied_And_Disabled_For_Today) {
    // Pages of the list window by the middle of their tabs.
    constexpr int Dates = 359, Hours = 433, Message = 502, Misc = 600, Tabs = 20;
    {
        Tockly tockly(desktop, Home());
        Write_File(Reminders(), Reminder_File({}));
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        for (int type = 0; type < 6; ++type)
            Make_By_Mouse(type, u"Type %1"_s.arg(type));
        tockly.Signal(SIGTERM);
        ASSERT_EQ(tockly.Wait_For_End(), 0);
        Expect_What_The_Wizard_Made(Saved());
    }
    {
        Tockly tockly(desktop, Home());
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        const QString list = Open(List, 138);
        Select(list, 0);
        Click(list, 578, 239); // every year
        Select(list, 1);       // of every day: good once it was saved
        Select(list, 2);
        Click(list, 348, 140); // Tuesday
        Click(list, 348, 240); // Sunday, which is lost
        Select(list, 3);
        Click(list, 425, 323);
        Retype(u"5th"_s);
        Select(list, 4);
        Click(list, Hours, Tabs);
        Click(list, 712, 367); // at 20:30
        Select(list, 5);
        Click(list, Misc, Tabs);
        Click(list, 480, 51);
        Retype(u"my things"_s);
        Select(list, 4);
        Select(list, 5);
        Click(list, 548, 226); // Home
        Click(list, 527, 344); // for the category
        Agree(Box);
        Select(list, 4);
        Click(list, 480, 51);
        Retype(u"short lived"_s);
        Select(list, 3);
        Select(list, 4);
        Click(list, 658, 51); // delete the category
        Agree(Box);
        Select(list, 0);
        Click(list, 66, 573);  // copy
        Click(list, 170, 573); // paste
        Click(list, Message, Tabs);
        Click(list, 560, 51);
        Retype(u"First"_s);
        Click(list, 264, 543); // run: a window beside the toolbar
        ASSERT_TRUE(desktop.Wait_For_Window(u"Reminder"_s));
        const int windows = Windows_OfProgram();
        Click(desktop.Visible_Windows(u"Reminder"_s).first(), 190, 64); // its options
        ASSERT_TRUE(Wait_Until([&] { return A_Menu_Is_Open(windows); }));
        Keys({u"Down"_s, u"Down"_s, u"Return"_s});
        Wait_Until_Gone(u"Reminder"_s);
        Click(list, Dates, Tabs);
        tockly.Signal(SIGTERM);
        ASSERT_EQ(tockly.Wait_For_End(), 0);
    }
    const std::vector<SavedReminder> saved = Saved();
    ASSERT_EQ(saved.size(), 7U);
    EXPECT_EQ(saved[0].year, 0);
    EXPECT_EQ(saved[0].title, "First");
    EXPECT_NE(saved[0].disabledForToday, 0);
    EXPECT_TRUE(saved[1].everyDay);
    EXPECT_EQ(saved[2].weekdays, QByteArray("\1\1\0\0\0\0\0\0", 8));
    EXPECT_EQ(saved[3].dayOfMonth, 5);
    ASSERT_EQ(saved[4].hours.size(), 2U);
    EXPECT_EQ(saved[4].hours[1].start, 20 * 60 + 30);
    EXPECT_EQ(saved[4].category, "");
    EXPECT_EQ(saved[5].category, "My Things");
    EXPECT_EQ(saved[5].icon.toLower(), "home");
    EXPECT_EQ(saved[6].text, "Type 0");
    EXPECT_EQ(saved[6].category, "-- (All)") << "pasted under all of them: that is meant";
    EXPECT_NE(saved[6].id, saved[0].id);
}

TEST_F(Day, The_Same_Without_A_Mouse) {
    Tockly tockly(desktop, Home());
    Write_File(Reminders(), Reminder_File({}));
    tockly.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    Go_To_Strip();
    Keys({u"Tab"_s});
    for (int type = 0; type < 6; ++type) {
        Make_By_Keyboard(type, u"Type %1"_s.arg(type));
        Go_To_Strip();
    }
    Keys({u"Tab"_s, u"space"_s});
    Wait_For_Focus(List);
    tockly.Signal(SIGTERM);
    ASSERT_EQ(tockly.Wait_For_End(), 0);
    Expect_What_The_Wizard_Made(Saved());
}

} // namespace
