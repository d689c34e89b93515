#include "controls/chk_box.h"
#include "editor_fixture.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/wizard/frm_add_reminder_wizard.h"
#include "editors/wizard/sample_picture.h"
#include "editors/wizard/wizard_text.h"

#include <QPushButton>

using namespace Qt::StringLiterals;
using platform::BoxStyle;

class WizardTest : public EditorTest {
protected:
    WizardTest() { Open(); }
    ~WizardTest() override { Release_Forms(); }
    void Open() {
        Show_AddReminderWizard();
        window = Open_Window<frmAddReminderWizard>();
    }
    void Next() { Click(u"wbButton3_1"_s); }
    void Previous() { Click(u"wbButton3_0"_s); }
    void Go_To(WizardPage page) {
        while (Page() < int(page))
            Next();
    }
    // The number of the page in view, told by the marked step.
    int Page() {
        for (int i = 0; i < WizardPageCount; ++i)
            if (Find<QLabel>(u"Label3_%1"_s.arg(i))->font().bold())
                return i;
        return -1;
    }
    void Expect_Doubt(platform::Answer answer) {
        system.dialogs.Expect_Question(u"The new reminder hasn't been created yet.\r\nDo you want "
                                       "to quit the wizard ?"_s,
                                       answer, BoxStyle::Exclamation);
    }
    // Next stays where it is, after this box.
    void Expect_Refusal(const QString& text, BoxStyle style = BoxStyle::Exclamation) {
        const int page = Page();
        system.dialogs.Expect_Message(text, style);
        Next();
        EXPECT_EQ(Page(), page);
    }
    // From the page Time to the end, with a time, a message and a category.
    void Finish() {
        Click(u"Check3_1"_s);
        Go_To(WizardPage::Message);
        Type(u"Text5"_s, u"Pay the rent"_s);
        Next();
        Type(u"Combo1"_s, u"work"_s);
        Go_To(WizardPage::Finished);
        Next();
    }
    static std::string Number(std::int64_t value, int bytes) {
        std::string text;
        for (int byte = 0; byte < bytes; ++byte)
            text += byte < 8 ? static_cast<char>(value >> (8 * byte) & 0xFF) : '\0';
        return text;
    }
    static std::string Text(const std::string& text, int countBytes = 4) {
        return Number(static_cast<std::int64_t>(text.size()), countBytes) + text;
    }
    // What the pages of a type make of the date.
    struct DatePart {
        int Kind = 0;
        std::string Days = std::string(8, '\0');
        int ReDays = 0;
        int SRDay = 0, SRMonth = 0, SRYear = 0, SRLongday = 0;
        int DayOfMonth = 0;
    };
    static std::string Record(const DatePart& date) {
        const std::string noFunction(8, '\0');
        return "rObj003" + Number(-1, 2) + Number(0, 8) + Number(1, 1) + Number(0, 2) +
               Number(date.Kind, 1) + Number(0, 4) + Number(0, 2) + date.Days +
               Text("Pay the rent") + Text("Pay the rent") + Number(0, 4) + Number(date.ReDays, 2) +
               Number(0, 4) + Number(date.SRDay, 1) + Number(date.SRMonth, 1) +
               Number(date.SRYear, 2) + Number(date.SRLongday, 4) + Number(0, 12) + Number(-1, 2) +
               Text("") + Number(0, 2) + Number(1, 1) + Text("https://mail.example.com/", 2) +
               Number(0, 1) + Text("Check E-mail", 2) + noFunction + noFunction + noFunction +
               Number(0, 4) + Number(-1, 2) + Number(480, 2) + Number(0, 4) + Text("Work") +
               Text("Write") + Number(-1, 4) + Number(date.DayOfMonth, 4) + Number(Monday, 4) +
               Number(0, 4);
    }
};

TEST_F(WizardTest, EachTypeBecomesItsRecord) {
    struct Case {
        const char* name;
        std::function<void()> enter; // on the date page
        DatePart date;
    };
    using namespace std::string_literals;
    const Case cases[] = {
        {"exact date",
         [this] { Type(u"Text1"_s, u"5.4.2026"_s), Type(u"Text1"_s, u"05/04/26"_s); },
         {.Kind = 3, .SRDay = 5, .SRMonth = 4, .SRYear = 2026, .SRLongday = Monday + 34}},
        // Does not fire until the list window has saved it.
        {"every day", [] {}, {.Kind = 0}},
        {"weekday",
         [this] { Click(u"Check1_0"_s), Click(u"Check1_6"_s); },
         {.Kind = 1, .Days = "\1\0\0\0\0\0\1\0"s}},
        {"every month", [this] { Click(u"DaysLabel30"_s); }, {.Kind = 4, .DayOfMonth = 31}},
        {"every X days", [this] { Type(u"Text2"_s, u"14"_s); }, {.Kind = 2, .ReDays = 14}},
        {"birthday",
         [this] { Type(u"Text3"_s, u"24/12"_s); },
         {.Kind = 3, .SRDay = 24, .SRMonth = 12, .SRLongday = Monday + 297}},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(cases[i].name);
        Open();
        Click(u"Option2_%1"_s.arg(i));
        Next();
        cases[i].enter();
        Next();
        Finish();
        EXPECT_TRUE(window->isHidden());
        ASSERT_EQ(Used_Slots(), i + 1);
        ASSERT_FALSE(Global_Reminders[i].Pending);
        EXPECT_EQ(
            QByteArray::fromStdString(Bytes_Of(Global_Reminders[i].Reminder.Peek())).toHex(' '),
            QByteArray::fromStdString(Record(cases[i].date)).toHex(' '));
    }
    EXPECT_FALSE(Global_Reminders[1].Reminder->Engine_CheckDate());
}

TEST_F(WizardTest, RefusesWhatAPageCannotTakeAndStaysThere) {
    Next();
    Type(u"Text1"_s, u"31/04/2026"_s);
    EXPECT_EQ(Text_Of(u"Label20"_s), u"The reminder will be displayed on: 31/04/2026"_s);
    Expect_Refusal(u"Invalid date: 31/04/2026"_s);
    Previous();
    Click(u"Option2_2"_s);
    Next();
    Expect_Refusal(u"Select at least one day"_s);
    Previous();
    Click(u"Option2_4"_s);
    Next();
    for (const auto& [typed, sentence] :
         {std::pair{u"0"_s, u"Invalid value"_s}, std::pair{u"32768"_s, u"Invalid value"_s}}) {
        Type(u"Text2"_s, typed);
        EXPECT_EQ(Text_Of(u"Label16"_s), sentence);
        Expect_Refusal(u"Invalid value: "_s + typed);
    }
    Previous();
    Click(u"Option2_5"_s);
    Next();
    for (const QString& typed : {u"24"_s, u"31/02"_s, u"240/12"_s}) {
        Type(u"Text3"_s, typed);
        Expect_Refusal(u"Invalid date: "_s + typed);
    }
    Type(u"Text3"_s, u"29/02"_s); // next in 2028
    Next();
    Expect_Refusal(u"Select at least one condition"_s);
    Type(u"Text4_1"_s, u"1"_s), Type(u"Text4_1"_s, {});
    Expect_Refusal(u"Select at least one condition"_s);
    Type(u"Text4_0"_s, u"25:00"_s);
    Type(u"Text4_2"_s, u"7"_s);
    Type(u"Text4_3"_s, u"07:05"_s);
    EXPECT_EQ(Text_Of(u"Label26"_s), u"07:05"_s);
    Expect_Refusal(u"Invalid value: 25:00, 7"_s);
    Click(u"Check3_2"_s);
    Type(u"Text4_0"_s, {}); // empty beside a good one
    Go_To(WizardPage::Message);
    Type(u"Text5"_s, u"  \n"_s);
    Expect_Refusal(u"Message is empty"_s);
    EXPECT_EQ(Used_Slots(), 0U);
}

TEST_F(WizardTest, AStartDateIsForTypesThatRepeat) {
    Click(u"Option2_1"_s);
    Next(), Next();
    Click(u"Check2"_s);
    Go_To(WizardPage::Message);
    Type(u"Text5"_s, u"x"_s);
    Go_To(WizardPage::StartDate);
    Click(u"Option1_1"_s);
    Expect_Refusal(u"Invalid date: "_s);
    Type(u"Text8"_s, u"1/1/2027"_s);
    EXPECT_EQ(Text_Of(u"Label12"_s), u"The reminder will be activated on: 1/1/2027"_s);
    Next();
    // Back to the first page and to a type that has none.
    while (Page() > 0)
        Previous();
    Click(u"Option2_0"_s);
    Go_To(WizardPage::StartDate);
    EXPECT_FALSE(Find(u"Option1_1"_s)->isEnabled());
    Next(), Next();
    EXPECT_EQ(Global_Reminders[0].Reminder->rs_ActivationDay, 0);
    EXPECT_EQ(Global_Reminders[0].Reminder->rs_SRLongday, Monday);
    EXPECT_EQ(Global_Reminders[0].Reminder->rs_Reminder_Type, ReminderType::NextToToolbar);
    // The hour list of the way back was built anew, not twice.
    EXPECT_EQ(Global_Reminders[0].Reminder->HourSetupList_Size(), 0);
}

TEST_F(WizardTest, MinimizesOtherWindowsForTheCenteredModeAloneAndPreviewsTheMessage) {
    Next(), Next();
    Click(u"Check2"_s);
    Next();
    EXPECT_TRUE(Find<ChkBox>(u"Check4"_s)->Is_Blocked());
    Click(u"Option3_2"_s), Click(u"Check4"_s);
    Next();
    Type(u"Text5"_s, u"Line one\nline two"_s);
    Previous();
    SamplePicture* sample = window->findChildren<SamplePicture*>()[0];
    EXPECT_EQ(sample->Shown_Message(), u"Line one\r\nline two"_s);
    Next(), Next();
    EXPECT_EQ(Find<QLineEdit>(u"Text7"_s)->text(), u"Line one. line two"_s);
    Type(u"Text7"_s, u"Not read back"_s);
    Type(u"Combo1"_s, u"my  things"_s);
    Go_To(WizardPage::Finished);
    Next();
    const ReminderClass& made = Global_Reminders[0].Reminder.Peek();
    EXPECT_TRUE(made.rs_Minimize_Apps);
    EXPECT_EQ(made.rs_Reminder_Type, ReminderType::Centered);
    EXPECT_EQ(made.rs_Text, u"Line one\r\nline two"_s);
    EXPECT_EQ(made.rs_Title, u"Line one. line two"_s); // 18 characters
    EXPECT_EQ(made.rs_Category, u"My Things"_s);
    EXPECT_EQ(Find_Category(u"My Things"_s), -1);
    EXPECT_EQ(std::pair(made.rs_ID, made.rs_ID2), std::pair(0, 0));
}

TEST_F(WizardTest, TheCalendarsFillTheirBoxesAndGoWithTheWizard) {
    const auto choose = [this](const QString& button, int day) {
        Click(button);
        auto* calendar = Open_Window<frmCalendar>();
        ASSERT_NE(calendar, nullptr);
        for (auto* cell : calendar->findChildren<QPushButton*>())
            if (cell->isVisible() && cell->text() == QString::number(day))
                QTest::mouseClick(cell, Qt::LeftButton);
        QTest::mouseClick(calendar->findChild<wbButton*>(), Qt::LeftButton);
    };
    Next();
    choose(u"wbButton1"_s, 9);
    EXPECT_EQ(Find<QLineEdit>(u"Text1"_s)->text(), u"09/03/2026"_s);
    Click(u"wbButton4_1"_s);
    EXPECT_EQ(Find<QLineEdit>(u"Text1"_s)->text(), u"03/03/2026"_s);
    Previous();
    Click(u"Option2_5"_s);
    Next();
    choose(u"wbButton2"_s, 31);
    EXPECT_EQ(Find<QLineEdit>(u"Text3"_s)->text(), u"31/03"_s);
    Click(u"wbButton2"_s);
    Expect_Doubt(platform::Answer::Yes);
    window->close();
    EXPECT_EQ(Open_Window<frmCalendar>(), nullptr);
}

TEST_F(WizardTest, AsksBeforeItClosesAndNeverAtTheEndOfTheProgram) {
    EXPECT_EQ(toolbar.guard, u"The Hide/Minimize are disabled during the setup Wizard"_s);
    EXPECT_EQ(toolbar.shown, 1);
    Expect_Doubt(platform::Answer::No);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());
    QWidget* first = window;
    Open();
    EXPECT_EQ(window, first);
    // The program ends while the question is on view.
    Expect_Doubt(platform::Answer::No);
    system.dialogs.whileOpen = [this](const auto&) {
        Set_Program_Ending(true);
        static_cast<Form*>(window)->Unload(UnloadMode::Ending);
        system.dialogs.Dismiss_All();
    };
    window->close();
    EXPECT_TRUE(window->isHidden());
    Set_Program_Ending(false);
    Open();
    ASSERT_NE(window, first);
    Set_Program_Ending(true);
    window->close();
    EXPECT_TRUE(window->isHidden());
    EXPECT_EQ(Used_Slots(), 0U);
    EXPECT_EQ(toolbar.guard, u"The Hide/Minimize are disabled during the setup Wizard"_s);
}

TEST_F(WizardTest, TheDateBoxesTakeTheSeparatorsOfTheUsersPatternAndNothingElse) {
    Next();
    Type(u"Text1"_s, u"a1.2/x30"_s);
    EXPECT_EQ(Find<QLineEdit>(u"Text1"_s)->text(), u"12/30"_s);
    struct Case {
        QString format, typed, pattern;
    };
    for (const Case& c : {Case{u"dd.mm.yyyy"_s, u"25.3."_s, u"dd.mm"_s},
                          Case{u"yyyy-mm-dd"_s, u"03-25"_s, u"mm-dd"_s},
                          Case{u"mm/dd/yy"_s, u"3/25"_s, u"mm/dd"_s}}) {
        Global_DateFormat = c.format;
        std::int32_t day = 0;
        std::int32_t month = 0;
        EXPECT_EQ(Birthday_Format(), c.pattern);
        EXPECT_EQ(Parse_Birthday(c.typed, day, month), 0) << c.typed.toStdString();
        EXPECT_EQ(std::pair(day, month), std::pair(25, 3));
        for (const QChar letter : c.typed)
            EXPECT_TRUE(Is_DateCharacter(letter));
    }
}

TEST(WizardRules, ATitleOfMoreThanEighteenCharactersIsCut) {
    const std::pair<QString, QString> titles[] = {
        {u"123456789012345678"_s, u"123456789012345678"_s},
        {u"1234567890123456789"_s, u"123456789012345678..."_s},
        {u" one\r\ntwo "_s, u"one. two"_s},
        {u"12345678901234567\U0001F600"_s, u"12345678901234567..."_s},
    };
    for (const auto& [message, title] : titles)
        EXPECT_EQ(Title_FromMessage(message), title);
}
