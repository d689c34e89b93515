// One reminder: what to show, when, and what it has already done.
#pragma once

#include "core/time_routines.h"

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

class RecordReader;
class RecordWriter;
enum class TableLoad;

// When in the day a reminder fires. Minutes since midnight; StartMinute -1 = at start-up.
struct HourSetup {
    std::int16_t Enabled = 0; // -1 = on
    std::int16_t StartMinute = 0;
    std::int16_t EndMinute = 0;     // used with EveryXMinutes > 0 only
    std::int16_t EveryXMinutes = 0; // 0 = once
    bool operator==(const HourSetup&) const = default;
};

enum class ReminderType : std::uint8_t { InsideToolbar = 0, NextToToolbar = 1, Centered = 2 };
enum class DateType : std::uint8_t {
    EveryDay = 0,
    Weekdays = 1,
    EveryXDays = 2,
    ExactDate = 3,
    DayOfMonth = 4
};
enum class FunctionType : std::uint8_t { None = 0, OpenPage = 1, OpenFile = 2 };

// A button on the reminder window.
struct FunctionEntry {
    bool Enabled = false;
    FunctionType Function_Type = FunctionType::None; // any byte may come out of a file
    std::uint8_t Window_Mode = 0;                    // 0 normal, 1 minimized, 2 maximized
    QString Function_Path;
    QString Title; // the caption
    bool operator==(const FunctionEntry&) const = default;
};

// Tells objects apart for as long as the program runs: their memory is used again, and a pair of
// ids can change. A copy is another object.
class ObjectIdentity {
public:
    ObjectIdentity() = default;
    ObjectIdentity(const ObjectIdentity&) {}
    ObjectIdentity& operator=(const ObjectIdentity&) { return *this; }
    std::uint64_t Value() const { return value; }

private:
    static std::uint64_t Next();
    std::uint64_t value = Next();
};

class ReminderClass {
public:
    static constexpr int FunctionCount = 4;
    static constexpr std::int32_t NeverExecuted = -1;

    // The fields, read and written directly. A byte of an enumeration may hold any value after a
    // load: who selects by it must check it.
    //
    // What the check reads stands first and together, with the first hour setup behind it, so that
    // it touches few lines of the cache.
    bool rs_Enabled = false;
    bool rs_REveryDay = false;
    DateType rs_DateType_Used = DateType::EveryDay;
    std::uint8_t rs_SRDay = 0;
    std::uint8_t rs_SRMonth = 0;
    std::array<std::uint8_t, 8> rs_wDays{}; // 0 = Monday .. 6 = Sunday, 7 unused
    std::int16_t rs_SRYear = 0;             // 0 = every year
    std::int16_t rs_ReWeeks = 0;            // 0 = every week
    std::int16_t rs_ReDays = 0;
    Day rs_DisabledForToday = 0; // 0 = none
    Day rs_ActivationDay = 0;    // the day itself does not fire; 0 = none
    Day rs_FirstRunDate = 0;     // anchors the cycle of days; 0 = not yet set
    Day rs_SRLongday = 0;
    std::int32_t rs_wDaysArray_LWeek = 0; // week of the last match; 0 = none yet
    std::int32_t rs_REDayOfMonth = 0;

private:
    struct HourSlot {
        HourSetup Setup;
        std::int32_t IntervalMark = 0; // last fire minute plus 1; 0 = not started
        bool StartupDone = false;
    };
    std::int32_t HourCount = 0;
    HourSlot FirstHour;
    Serial LastCheckDate = 0;
    // The slots behind the first; never fewer than setups, so that each has its marks.
    std::vector<HourSlot> MoreHours;

    // A minute of setups that fire once, from its first fire on until the day ends. They stay when
    // the list is edited.
    enum class AtState : std::uint8_t { Fired, FiresAgain, Done };
    struct AtMark {
        std::int32_t Minute = 0;
        AtState State = AtState::Fired;
    };
    std::vector<AtMark> AtMarks;

public:
    ObjectIdentity Identity;
    // Holds two units: the engine stores a Serial here, the list of missed reminders a Day.
    std::int32_t rs_LastExecutedDate = NeverExecuted;
    bool rs_PlaySound = false;
    bool rs_Minimize_Apps = false; // before a centered window
    ReminderType rs_Reminder_Type = ReminderType::InsideToolbar;
    std::int16_t rs_ReMonths = 0; // read by no rule
    std::int32_t rs_wDaysArray_LMonth = 0;
    std::int32_t rs_ID = 0;
    std::int32_t rs_ID2 = 0; // millisecond clock at creation; with rs_ID the identity everywhere
    Day rs_DayCreated = 0;
    std::int32_t rs_SFReserved3 = 0;
    QString rs_Title;
    QString rs_Text;      // lines end with CR LF
    QString rs_SoundPath; // empty = beep
    QString rs_Category;  // empty = none
    QString rs_Icon;

    // The schedule. Each may change marks and anchors of the reminder; the moment is read once by
    // the caller. The forms without an argument read the clock.
    bool Engine_CheckRunReminder(const Moment& now);
    bool Engine_CheckDate(const Moment& now);
    bool Engine_CheckTime(const Moment& now);
    bool Check_ReminderWasMissedToday(const Moment& now);
    // The same with the minute before which nothing can fire, the fields being as they are and the
    // clock not going back: at the latest midnight; after a fire 0.
    bool Engine_CheckRunReminder(const Moment& now, MinuteCount& quietUntil);
    Day GetNext_RunDate(const Moment& now);     // today counts; -1 = none
    Day GetPrevious_RunDate(const Moment& now); // before today; -1 = none

    bool Engine_CheckRunReminder() { return Engine_CheckRunReminder(Read_Moment()); }
    bool Engine_CheckDate() { return Engine_CheckDate(Read_Moment()); }
    bool Engine_CheckTime() { return Engine_CheckTime(Read_Moment()); }
    bool Check_ReminderWasMissedToday() { return Check_ReminderWasMissedToday(Read_Moment()); }
    Day GetNext_RunDate() { return GetNext_RunDate(Read_Moment()); }
    Day GetPrevious_RunDate() { return GetPrevious_RunDate(Read_Moment()); }

    // A new reminder as the editors start it: every day at 20:00, beside the toolbar, with a beep.
    void SetDefaultValues();

    // index 0..3; throws std::out_of_range otherwise.
    void SetFuncion(int index, const FunctionEntry& entry);
    const FunctionEntry& GetFuncion(int index) const;

    // Highest used index of the hour list; -1 = empty.
    std::int32_t HourSetupList_Size() const { return HourCount - 1; }
    void AddNewHourSetup(const HourSetup& setup);
    // index 0..HourSetupList_Size; throws std::out_of_range otherwise.
    const HourSetup& GetHourSetup(std::int32_t index) const;
    void SetHourSetup(std::int32_t index, const HourSetup& setup);
    // An index above the list's size does nothing. The marks of the day stay with the index.
    void DeleteHourSetup(std::int32_t index);
    // The marks of the day stay: a list that is built again does not fire again.
    void ClearAllHourSetup();

    // day: the Day of the date; with a year of 0 it comes every year, and day is that of this one.
    void Set_ExactDate(const CalendarDate& date, Day day);
    void Set_Rs_Rdays(const std::array<std::uint8_t, 8>& days) { rs_wDays = days; }
    std::array<std::uint8_t, 8> Get_Rs_Rdays() const { return rs_wDays; }

    // The file form, version "003". Reading takes "001" to "003". After a failure the fields
    // read so far are set.
    void SaveData_To_File(RecordWriter& stream) const;
    TableLoad LoadData_From_File(RecordReader& stream);

private:
    HourSlot& Hour_Slot(std::int32_t index);
    const HourSlot& Hour_Slot(std::int32_t index) const;
    void Check_HourIndex(std::int32_t index) const;

    std::int32_t First_ActiveDay() const;
    bool Matches_ExactDate(const Moment& now) const;
    bool Matches_DayCycle(const Moment& now);
    bool Matches_Weekday(const Moment& now);
    void Start_DayCycle(const Moment& now);
    void Start_NewDay(Serial today);
    bool Fire_HourSetup(HourSlot& slot, std::int32_t minute);
    bool Fire_At(std::int32_t start, std::int32_t minute);
    void Settle_AtMarks(std::size_t marksBefore, std::int32_t minute);
    static bool Fire_Interval(HourSlot& slot, std::int32_t minute);
    static std::int32_t Next_DueMinute(const HourSlot& slot, std::int32_t minute);
    MinuteCount Next_DueMinute(const Moment& now) const;

    Day Next_DayOfMonth(const Moment& now) const;
    Day Next_ExactDate(const Moment& now) const;
    Day Next_InDayCycle(const Moment& now) const;
    Day Next_Weekday(const Moment& now) const;
    Day Previous_RunDate(const Moment& now);
    Day Previous_DayOfMonth(const Moment& now) const;
    Day Previous_ExactDate(const Moment& now) const;
    Day Previous_InDayCycle(const Moment& now);
    Day Previous_Weekday(const Moment& now) const;

    void Read_Functions(RecordReader& stream);
    void Read_HourList(RecordReader& stream);

    // Up to the last one that was set: most reminders have no button.
    std::vector<FunctionEntry> Functions;
};
