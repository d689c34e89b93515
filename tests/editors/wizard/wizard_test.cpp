#include "controls/chk_box.h"
#include "controls/combo_box.h"
#include "core/record_stream.h"
#include "editor_fixture.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/wizard/frm_add_reminder_wizard.h"
#include "editors/wizard/sample_picture.h"
#include "editors/wizard/wizard_text.h"

#include <QPushButton>

namespace {

using platform::BoxStyle;
using enum WizardPage;
using enum WizardType;

class WizardTest : public EditorTest {
protected:
    WizardTest() { Open(); }
    ~WizardTest() override { Release_Forms(); }
    void Open() {
        Show_AddReminderWizard();
        window = Open_Window<frmAddReminderWizard>();
    }
    // The number of the page in view, told by the marked step.
    int Page() {
        for (const QLabel* step : window->findChildren<QLabel*>())
            if (step->accessibleName().endsWith(u", current step"_s))
                return step->text().left(1).toInt() - 1;
        return -1;
    }
    void Go_To(WizardPage page) {
        while (Page() < static_cast<int>(page))
            Click(u"Next >"_s);
        while (Page() > static_cast<int>(page))
            Click(u"< Previous"_s);
    }
    void Expect_Doubt(platform::Answer answer) {
        system.dialogs.Expect_Question(u"The new reminder hasn't been created yet.\r\nDo you want "
                                       "to quit the wizard ?"_s,
                                       answer, BoxStyle::Exclamation);
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

TEST_F(WizardTest, The_walk_with_each_type_makes_its_record) {
    struct Case {
        QString type;
        std::function<void()> enter; // on the date page
        DatePart date;
    };
    using namespace std::string_literals;
    const Case cases[] = {
        {u"Exact date:"_s,
         [this] { Type(u"Date"_s, u"5.4.2026"_s), Type(u"Date"_s, u"05/04/26"_s); },
         {.Kind = 3, .SRDay = 5, .SRMonth = 4, .SRYear = 2026, .SRLongday = Monday + 34}},
        // Does not fire until the list window has saved it.
        {u"Every day:"_s, [] {}, {.Kind = 0}},
        {u"Weekday:"_s,
         [this] { Click(u"Monday"_s), Click(u"Sunday"_s); },
         {.Kind = 1, .Days = "\1\0\0\0\0\0\1\0"s}},
        {u"Every month:"_s, [this] { Click(u"31th"_s); }, {.Kind = 4, .DayOfMonth = 31}},
        {u"Every X days:"_s, [this] { Type(u"Days"_s, u"14"_s); }, {.Kind = 2, .ReDays = 14}},
        {u"Birthday:"_s,
         [this] { Type(u"Day and month"_s, u"24/12"_s); },
         {.Kind = 3, .SRDay = 24, .SRMonth = 12, .SRLongday = Monday + 297}},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(cases[i].type.toStdString());
        Open();
        Click(cases[i].type);
        Go_To(WizardPage::Date);
        cases[i].enter();
        Go_To(WizardPage::Time);
        Click(u"At time 2"_s);
        Go_To(Message);
        Type(u"Reminder message"_s, u"Pay the rent"_s);
        Go_To(Misc);
        Type_Into(window->findChild<ComboBox*>(), u"work"_s);
        Go_To(Finished);
        Click(u"Finish"_s);
        EXPECT_TRUE(window->isHidden());
        ASSERT_EQ(Used_Slots(), i + 1);
        ASSERT_FALSE(Global_Reminders[i].Pending);
        RecordWriter made;
        Made(i).SaveData_To_File(made);
        EXPECT_EQ(QByteArray::fromStdString(made.Bytes()).toHex(' '),
                  QByteArray::fromStdString(Record(cases[i].date)).toHex(' '));
    }
    EXPECT_FALSE(Global_Reminders[1].Reminder->Engine_CheckDate());
}

TEST_F(WizardTest, A_way_back_and_forth_with_every_other_control) {
    Click(u"Every day:"_s);
    Go_To(WizardPage::Time);
    system.dialogs.Expect_Message(u"Select at least one condition"_s);
    Click(u"Next >"_s);
    EXPECT_EQ(Page(), int(WizardPage::Time));
    Click(u"At start up:"_s);
    Type(u"Time 4"_s, u"07:05"_s);
    EXPECT_TRUE(Says(u"start up, 07:05"_s));
    Go_To(DisplayMode);
    EXPECT_TRUE(Find<ChkBox>(u"Minimize running applications"_s, window)->Is_Blocked());
    Click(u"Very important:"_s), Click(u"Minimize running applications"_s);
    Go_To(Message);
    Type(u"Reminder message"_s, u"Line one\nline two"_s);
    Go_To(DisplayMode);
    EXPECT_EQ(window->findChildren<SamplePicture*>()[0]->Shown_Message(),
              u"Line one\r\nline two"_s);
    Go_To(Misc);
    EXPECT_EQ(Text_Of(u"Title"_s), u"Line one. line two"_s);
    Type(u"Title"_s, u"Not read back"_s);
    Type_Into(window->findChild<ComboBox*>(), u"my  things"_s);
    Go_To(StartDate);
    Click(u"Start on:"_s);
    Type(u"Start date"_s, u"1/1/2027"_s);
    EXPECT_TRUE(Says(u"The reminder will be activated on: 1/1/2027"_s));
    // Back to the first page and to a type that has no start date.
    Go_To(WizardPage::Type);
    Click(u"Exact date:"_s);
    Go_To(StartDate);
    EXPECT_FALSE(Find<QWidget>(u"Start on:"_s, window)->isEnabled());
    Go_To(Finished);
    Click(u"Finish"_s);
    EXPECT_EQ(Made(0).rs_ActivationDay, 0);
    EXPECT_EQ(Made(0).rs_SRLongday, Monday);
    EXPECT_EQ(Hours(Made(0)), u"-1 425"_s); // built anew on the way back, not twice
    EXPECT_TRUE(Made(0).rs_Minimize_Apps);
    EXPECT_EQ(Made(0).rs_Reminder_Type, ReminderType::Centered);
    EXPECT_EQ(Made(0).rs_Text, u"Line one\r\nline two"_s);
    EXPECT_EQ(Made(0).rs_Title, u"Line one. line two"_s);
    EXPECT_EQ(Made(0).rs_Category, u"My Things"_s);
    EXPECT_EQ(Find_Category(u"My Things"_s), -1);
    EXPECT_EQ(std::pair(Made(0).rs_ID, Made(0).rs_ID2), std::pair(0, 0));
}

TEST_F(WizardTest, The_calendars_fill_their_fields_and_go_with_the_wizard) {
    const auto choose = [this](int day) {
        Click(u"Open calendar..."_s);
        auto* calendar = Open_Window<frmCalendar>();
        ASSERT_NE(calendar, nullptr);
        for (auto* cell : calendar->findChildren<QPushButton*>())
            if (cell->isVisible() && cell->text() == QString::number(day))
                QTest::mouseClick(cell, Qt::LeftButton);
        Click_On<wbButton>(u"Ok"_s, calendar);
    };
    Go_To(WizardPage::Date);
    choose(9);
    EXPECT_TRUE(Says(u"The reminder will be displayed on: 09/03/2026"_s));
    Click(u"Tomorrow"_s);
    EXPECT_EQ(Text_Of(u"Date"_s), u"03/03/2026"_s);
    Type(u"Date"_s, u"a1.2/x30"_s); // letters are refused
    EXPECT_EQ(Text_Of(u"Date"_s), u"12/30"_s);
    Go_To(WizardPage::Type);
    Click(u"Birthday:"_s);
    Go_To(WizardPage::Date);
    choose(31);
    EXPECT_EQ(Text_Of(u"Day and month"_s), u"31/03"_s);
    Click(u"Open calendar..."_s);
    Expect_Doubt(platform::Answer::Yes);
    window->close();
    EXPECT_EQ(Open_Window<frmCalendar>(), nullptr);
}

TEST_F(WizardTest, Asks_before_it_closes_and_never_at_the_end_of_the_program) {
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

class WizardRules : public EditorTest {};

TEST_F(WizardRules, What_a_page_refuses_and_in_which_words) {
    using Times = std::array<QString, WizardTimeCount>;
    const auto types = [](WizardType type) { return [type](auto& s) { s.Type = type; }; };
    const auto exact = [](const QString& text) { return [text](auto& s) { s.ExactDate = text; }; };
    const auto days = [](const QString& text) {
        return [text](auto& s) { s.Type = EveryXDays, s.Days = text; };
    };
    const auto birthday = [](const QString& text) {
        return [text](auto& s) { s.Type = Birthday, s.Birthday = text; };
    };
    const auto times = [](const Times& texts, int ticked) {
        return [texts, ticked](auto& s) {
            s.Times = texts;
            std::fill_n(s.AtTime.begin(), ticked, true);
        };
    };
    const auto message = [](const QString& text) { return [text](auto& s) { s.Message = text; }; };
    const auto start = [](WizardType type, const QString& text) {
        return [type, text](auto& s) {
            s.Type = type, s.Start = StartChoice::StartOn, s.StartDate = text;
        };
    };
    const struct {
        WizardPage page;
        std::function<void(WizardState&)> change;
        QString refusal; // empty: it passes
    } cases[] = {
        {WizardPage::Type, types(None), u"Please select a type"_s},
        {Date, exact(u"31/04/2026"_s), u"Invalid date: 31/04/2026"_s},
        {Date, exact(u"5/4"_s), u"Invalid date: 5/4"_s},
        {Date, types(Weekday), u"Select at least one day"_s},
        {Date, days(u"0"_s), u"Invalid value: 0"_s},
        {Date, days(u"32768"_s), u"Invalid value: 32768"_s},
        {Date, days(u"32767"_s), {}},
        {Date, birthday(u"24"_s), u"Invalid date: 24"_s},
        {Date, birthday(u"31/02"_s), u"Invalid date: 31/02"_s},
        {Date, birthday(u"240/12"_s), u"Invalid date: 240/12"_s},
        {Date, birthday(u"29/02"_s), {}}, // next in 2028
        {Time, times(Times{u"07:00"_s}, 0), u"Select at least one condition"_s},
        {Time, times(Times(), 1), u"Select at least one condition"_s},
        {Time, times(Times{u"25:00"_s, {}, u"7"_s, u"07:05"_s}, 4), u"Invalid value: 25:00, 7"_s},
        {Time, times(Times{QString(), u"07:05"_s}, 2), {}}, // empty beside a good one
        {Message, message(u"  \r\n"_s), u"Message is empty"_s},
        {Message, message(u" x\r\n"_s), {}},
        {StartDate, start(EveryDay, {}), u"Invalid date: "_s},
        {StartDate, start(EveryDay, u"1/1/2027"_s), {}},
        {StartDate, start(ExactDate, {}), {}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        WizardState state = New_WizardState(Read_Moment());
        row.change(state);
        const auto error = Validate_WizardPage(row.page, state, Read_Moment());
        EXPECT_EQ(error ? error->Text : QString(), row.refusal);
        if (error) {
            EXPECT_EQ(error->Style,
                      row.page == WizardPage::Type ? BoxStyle::Plain : BoxStyle::Exclamation);
        }
    }
    EXPECT_EQ(EveryXDays_Sentence(u"0"_s), u"Invalid value"_s);
}

TEST_F(WizardRules, A_birthday_is_read_in_the_user_s_pattern_with_its_separators) {
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

TEST_F(WizardRules, A_title_of_more_than_eighteen_characters_is_cut) {
    const std::pair<QString, QString> titles[] = {
        {u"123456789012345678"_s, u"123456789012345678"_s},
        {u"1234567890123456789"_s, u"123456789012345678..."_s},
        {u" one\r\ntwo "_s, u"one. two"_s},
        {u"12345678901234567\U0001F600"_s, u"12345678901234567..."_s},
    };
    for (const auto& [text, title] : titles)
        EXPECT_EQ(Title_FromMessage(text), title);
}

} // namespace
