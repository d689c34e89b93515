#include "core_test.h"

#include <fstream>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// The bytes of parts of the record with every field set that stands in the data folder.
std::string Join(const std::vector<std::string>& names) {
    static std::map<std::string, std::string> parts;
    if (parts.empty()) {
        std::ifstream file(TOCKLY_TEST_DATA "/records/full_reminder.hex");
        std::string part;
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with('['))
                part = line.substr(1, line.find(']') - 1);
            else
                parts[part] += From_Hex(line.substr(0, line.find('#')).c_str());
        }
    }
    std::string bytes;
    for (const std::string& name : names)
        bytes += parts.at(name);
    return bytes;
}

TableLoad Load_Record(ReminderClass& reminder, const std::string& bytes) {
    RecordReader stream(bytes);
    return reminder.LoadData_From_File(stream);
}

// Everything that the program does with a reminder that it has loaded.
void Use_Table() {
    const Moment start = Read_Moment();
    for (const ReminderSlot& slot : Global_Reminders) {
        if (!slot.Used)
            continue;
        for (Moment now = start; now.Minute < MinutesOfDay; now.Minute += 7)
            slot.Reminder->Engine_CheckRunReminder(now);
        slot.Reminder->rs_Enabled = true;
        slot.Reminder->Engine_CheckRunReminder(start);
        slot.Reminder->Check_ReminderWasMissedToday(start);
        DayToDateString(slot.Reminder->GetNext_RunDate(start));
        DayToDateString(slot.Reminder->GetPrevious_RunDate(start));
    }
    ReminderTick().Check([](const ReminderRef&) {});
    Sync_CategoriesFromReminders();
    std::int32_t id2 = 0;
    EXPECT_EQ(Find_ReminderIndex(Get_NewReminderID(id2), id2), -1);
}

} // namespace

using ReminderFile = CoreTest;

TEST_F(ReminderFile, Every_Field_Is_Read_From_Its_Bytes) {
    ReminderClass r;
    ASSERT_EQ(Load_Record(r, Join({"header", "003", "body", "category", "last"})),
              TableLoad::Loaded);
    EXPECT_TRUE(r.rs_Enabled && r.rs_Minimize_Apps && r.rs_REveryDay && r.rs_PlaySound);
    const std::vector<std::int64_t> numbers{r.rs_ID,
                                            r.rs_ID2,
                                            r.rs_DisabledForToday,
                                            r.rs_ReWeeks,
                                            r.rs_ReMonths,
                                            r.rs_ReDays,
                                            r.rs_FirstRunDate,
                                            r.rs_SRDay,
                                            r.rs_SRMonth,
                                            r.rs_SRYear,
                                            r.rs_SRLongday,
                                            r.rs_ActivationDay,
                                            r.rs_wDaysArray_LMonth,
                                            r.rs_wDaysArray_LWeek,
                                            r.rs_LastExecutedDate,
                                            r.rs_REDayOfMonth,
                                            r.rs_DayCreated,
                                            r.rs_SFReserved3};
    EXPECT_EQ(numbers, (std::vector<std::int64_t>{7, 0x12345678, 9000, 2, -3, 300, 9001, 31, 12,
                                                  2026, 9498, 100, 318, -2, 46083, 31, 8999, -1}));
    EXPECT_EQ(r.rs_Reminder_Type, ReminderType::Centered);
    EXPECT_EQ(r.rs_DateType_Used, DateType::DayOfMonth);
    EXPECT_EQ(r.Get_Rs_Rdays(), (std::array<std::uint8_t, 8>{1, 0, 2, 0, 0, 0, 1, 9}));
    EXPECT_EQ(r.rs_Title, u"Caf\u00E9"_s);
    EXPECT_EQ(r.rs_Text, u"a\r\nb"_s);
    EXPECT_EQ(r.rs_SoundPath, u"\u65E5"_s);
    EXPECT_EQ(r.GetFuncion(0), (FunctionEntry{true, FunctionType::OpenPage, 2, u"p"_s, u"T"_s}));
    EXPECT_EQ(r.GetFuncion(1), FunctionEntry{});
    EXPECT_EQ(static_cast<int>(r.GetFuncion(2).Function_Type), 200);
    EXPECT_EQ(r.GetFuncion(3),
              (FunctionEntry{true, FunctionType::OpenFile, 1, u"\u20AC"_s, QString()}));
    ASSERT_EQ(r.HourSetupList_Size(), 1);
    EXPECT_EQ(r.GetHourSetup(0), (HourSetup{-1, 1200, 0, 0}));
    EXPECT_EQ(r.GetHourSetup(1), (HourSetup{0, -1, 1439, 90}));
    EXPECT_EQ(r.rs_Category + u'/' + r.rs_Icon, u"TV/Gift"_s);
}

TEST_F(ReminderFile, Each_Version_Is_Written_As_The_Newest_One) {
    struct {
        std::vector<std::string> before, after;
    } cases[] = {{{"001", "body"}, {"no category", "last of old"}},
                 {{"002", "body", "category"}, {"category", "last of old"}},
                 {{"002", "body", "category of none"}, {"no category", "last of old"}},
                 {{"002", "body", "category of all"}, {"no category", "last of old"}},
                 {{"003", "body", "category", "last"}, {"category", "last"}}};
    for (const auto& version : cases) {
        ReminderClass reminder;
        ASSERT_EQ(Load_Record(reminder, Join({"header"}) + Join(version.before)),
                  TableLoad::Loaded);
        EXPECT_EQ(QByteArray::fromStdString(Record_Bytes(reminder)).toHex(' '),
                  QByteArray::fromStdString(Join({"header", "003", "body"}) + Join(version.after))
                      .toHex(' '));
    }
    ReminderClass reminder;
    EXPECT_EQ(Load_Record(reminder, "rObj000" + Join({"body"})), TableLoad::UnknownVersion);
    EXPECT_EQ(Load_Record(reminder, "rObj004" + Join({"body"})), TableLoad::UnknownVersion);
    EXPECT_EQ(Load_Record(reminder, "rObJ003" + Join({"body", "category", "last"})),
              TableLoad::Invalid);
    EXPECT_EQ(Record_Bytes(ReminderClass()).size(), 139U);
}

TEST_F(ReminderFile, Nonsense_In_Every_Field_Can_Still_Be_Used) {
    using Long = std::numeric_limits<std::int32_t>;
    using Short = std::numeric_limits<std::int16_t>;
    for (const std::int32_t wide : {Long::min(), Long::min() + 1, -1, 0, 1, Long::max()}) {
        for (const std::int16_t narrow :
             {Short::min(), std::int16_t{-1}, std::int16_t{7}, Short::max()}) {
            for (int kind = 0; kind < 7; ++kind) {
                Init_Reminders();
                ReminderClass& r = Add_Reminder(wide);
                r.rs_Enabled = true;
                r.rs_DateType_Used = static_cast<DateType>(kind);
                r.rs_wDays.fill(1);
                r.rs_SRDay = r.rs_SRMonth = static_cast<std::uint8_t>(wide);
                r.rs_SRYear = r.rs_ReWeeks = r.rs_ReDays = r.rs_ReMonths = narrow;
                r.rs_ActivationDay = kind % 2 == 0 ? 0 : wide;
                r.rs_DisabledForToday = r.rs_FirstRunDate = r.rs_SRLongday = wide;
                r.rs_wDaysArray_LWeek = r.rs_wDaysArray_LMonth = r.rs_REDayOfMonth = wide;
                r.rs_LastExecutedDate = r.rs_DayCreated = wide;
                r.AddNewHourSetup({-1, narrow, narrow, narrow});
                r.AddNewHourSetup({-1, -1, narrow, narrow});
                for (int count = 0; count < 30; ++count)
                    r.AddNewHourSetup({narrow, narrow, Short::max(), 1});
                Use_Table();
                const Moment old = Moment_At(QDate(1970, 1, 1), 0);
                DayToDateString(r.GetNext_RunDate(old));
                DayToDateString(r.GetPrevious_RunDate(old));
                r.Engine_CheckRunReminder(old);
                r.DeleteHourSetup(0);
                const std::string bytes = Record_Bytes(r);
                ReminderClass again;
                ASSERT_EQ(Load_Record(again, bytes), TableLoad::Loaded);
                again.rs_DayCreated = r.rs_DayCreated; // 0 has become 1
                EXPECT_EQ(Record_Bytes(again), bytes);
            }
        }
    }
}
