// A user's day on a real X desktop: reminders made, edited, copied and put away.
#include "desktop/driven.h"
#include "desktop/records.h"

namespace {

const QString Wizard = u"Add new reminder"_s;
const QString List = u"Reminders"_s;

class Day : public Driven {
protected:
    // Through all eight pages, with one hour: 06:00.
    void Make_By_Mouse(int type, const QString& message) const {
        const char* types[] = {
            "Exact date:", "Every day:", "Weekday:", "Every month:", "Every X days:", "Birthday:"};
        const auto next = [&] { Click(Wizard, {"push button", "Next >"}); };
        Open(Wizard, "Add new reminder");
        Click(Wizard, {"radio button", types[type]});
        next();
        if (type == 2)
            Click(Wizard, {"check box", "Monday"});
        if (type == 3)
            Click(Wizard, {"check box", "31th"});
        if (type == 4)
            Retype(u"3"_s);
        next();
        Click(Wizard, {"check box", "At time 1"});
        next();
        next();
        Type(message);
        for (int page = 0; page < 3; ++page)
            next();
        Click(Wizard, {"push button", "Finish"});
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

    void Select(const QString& card) const { Click(List, {"list item", card.toUtf8()}); }
    void Show_Page(const char* tab) const { Click(List, {"page tab", tab}); }
};

TEST_F(Day, One_Of_Each_Type_By_Mouse_Then_Edited_Copied_And_Disabled_For_Today) {
    {
        Tockly tockly(desktop, Home());
        Write_File(Reminders(), Reminder_File({}));
        Bring_Up(tockly);
        for (int type = 0; type < 6; ++type)
            Make_By_Mouse(type, u"Type %1"_s.arg(type));
        ASSERT_EQ(tockly.End(), 0);
        Expect_What_The_Wizard_Made(Saved());
    }
    {
        Tockly tockly(desktop, Home());
        Bring_Up(tockly);
        Open(List, "View reminders");
        Select(u"Type 0"_s);
        Click(List, {"check box", "Exact date: Every year"});
        Select(u"Type 1"_s); // of every day: good once it was saved
        Select(u"Type 2"_s);
        Click(List, {"check box", "Each: Tuesday"});
        Click(List, {"check box", "Each: Sunday"}); // which is lost
        Select(u"Type 3"_s);
        Click(List, {"text", "Day of month"});
        Retype(u"5th"_s);
        Select(u"Type 4"_s);
        Show_Page("Hours Setup");
        Click(List, {"push button", "Add to list: At"});
        Select(u"Type 5"_s);
        Show_Page("Misc");
        Click(List, {"combo box", "Category:"});
        Retype(u"my things"_s);
        Select(u"Type 4"_s);
        Select(u"Type 5"_s);
        Click(List, {"check box", "Home"});
        Click(List, {"push button", "Use this icon for the selected category"});
        Agree(Box);
        Select(u"Type 4"_s);
        Click(List, {"combo box", "Category:"});
        Retype(u"short lived"_s);
        Select(u"Type 3"_s);
        Select(u"Type 4"_s);
        Click(List, {"push button", "Delete category"});
        Agree(Box);
        Select(u"Type 0"_s);
        Click(List, {"push button", "Copy"});
        Click(List, {"push button", "Paste"});
        Show_Page("Message");
        Click(List, {"text", "Title"});
        Retype(u"First"_s);
        Click(List, {"push button", "Run"});
        Click(u"Reminder"_s, {"push button", "Options"});
        ASSERT_TRUE(A_Menu_Opens_Beside(3)); // strip, list and the window
        Keys({u"Down"_s, u"Down"_s, u"Return"_s});
        Wait_Until_Gone(u"Reminder"_s);
        Show_Page("Date Setup");
        ASSERT_EQ(tockly.End(), 0);
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
    Bring_Up(tockly);
    Launch_Again();
    Wait_For_Focus(Strip);
    Keys({u"Tab"_s});
    for (int type = 0; type < 6; ++type) {
        Make_By_Keyboard(type, u"Type %1"_s.arg(type));
        Launch_Again();
        Wait_For_Focus(Strip);
    }
    Keys({u"Tab"_s, u"space"_s});
    Wait_For_Focus(List);
    ASSERT_EQ(tockly.End(), 0);
    Expect_What_The_Wizard_Made(Saved());
}

} // namespace
