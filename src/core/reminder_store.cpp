#include "core/reminder_store.h"

#include "core/reminder_ref.h"
#include "platform/clock.h"
#include "platform/files.h"

#include <algorithm>
#include <string>

using namespace Qt::StringLiterals;

std::vector<ReminderSlot> Global_Reminders;

namespace {

constexpr std::string_view FileHeader = "RSaveFile";
constexpr std::string_view FileVersion = "001";
constexpr std::size_t FirstSlots = 51;
constexpr std::size_t FreeSlotsAfterLoad = 21;
constexpr std::size_t SlotStep = 20;
constexpr std::size_t LeastRecordBytes = 7; // header and version
constexpr std::size_t UsualRecordBytes = 256;
constexpr std::int64_t CountPosition = 13; // behind header and version, counted from 1

TableFile File_OfReminders;

bool Is_Saved(const ReminderSlot& slot) {
    return slot.Used && !slot.Pending;
}

std::vector<ReminderSlot> New_Table(std::size_t slots) {
    return std::vector<ReminderSlot>(slots);
}

TableLoad Read_Table(std::string_view content, std::vector<ReminderSlot>& table) {
    RecordReader stream(content);
    if (const auto result = stream.Get_Start(FileHeader, FileVersion); result != TableLoad::Loaded)
        return result;
    const std::size_t count = stream.Get_Count(LeastRecordBytes);
    table.reserve(count + FreeSlotsAfterLoad);
    for (std::size_t index = 0; index < count; ++index) {
        auto reminder = std::make_unique<ReminderClass>();
        if (const auto result = reminder->LoadData_From_File(stream); result != TableLoad::Loaded)
            return result;
        table.push_back({true, false, std::move(reminder)});
    }
    table.resize(count + FreeSlotsAfterLoad);
    return stream.Result();
}

void Date_Example(ReminderClass& example, Day today) {
    const CalendarDate date = DayToDate(today);
    if (example.rs_SRYear == 0 && example.rs_SRDay != 0 && example.rs_SRMonth != 0) {
        // The same date every year; its Day is what the date page shows it by.
        example.rs_SRLongday = DateToDay(example.rs_SRDay, example.rs_SRMonth, date.year);
        return;
    }
    example.Set_ExactDate(date, today);
}

// An example for an exact date that names none is for the day of the first start.
void Date_Examples(Day today) {
    for (ReminderSlot& slot : Global_Reminders) {
        if (!slot.Used || slot.Reminder.Peek().rs_DateType_Used != DateType::ExactDate ||
            slot.Reminder.Peek().rs_SRLongday != 0)
            continue;
        Date_Example(*slot.Reminder, today);
    }
}

} // namespace

void Init_Reminders() {
    Global_Reminders = New_Table(FirstSlots);
    File_OfReminders = {};
}

TableLoad Load_Reminders(const QString& fileName) {
    std::vector<ReminderSlot> table;
    const TableLoad result = File_OfReminders.Load(
        fileName, [&table](std::string_view content) { return Read_Table(content, table); });
    if (result != TableLoad::NoFile)
        Global_Reminders =
            result == TableLoad::Loaded ? std::move(table) : New_Table(FreeSlotsAfterLoad);
    return result;
}

void RemindersEncoding::Begin() {
    stream = {};
    stream.Reserve(Global_Reminders.size() * UsualRecordBytes);
    stream.Put_Header(FileHeader);
    stream.Put_Header(FileVersion);
    stream.Put_Long(0);
    next = 0;
    encoded.clear();
    begun = true;
}

bool RemindersEncoding::Is_StillTheTable() const {
    auto known = encoded.begin();
    for (const ReminderSlot& slot : Global_Reminders) {
        if (Is_Saved(slot) && (known == encoded.end() || *known++ != &slot.Reminder.Peek())) {
            return false;
        }
    }
    return known == encoded.end();
}

bool RemindersEncoding::Step(std::size_t slots) {
    if (!begun) {
        Begin();
    }
    // A table that changes all the time is taken in one piece in the end.
    constexpr int mostRestarts = 5;
    if (restarts >= mostRestarts) {
        slots = Global_Reminders.size();
    }
    for (; slots > 0 && next < Global_Reminders.size(); --slots, ++next) {
        const ReminderSlot& slot = Global_Reminders[next];
        if (Is_Saved(slot)) {
            slot.Reminder.Peek().SaveData_To_File(stream);
            encoded.push_back(&slot.Reminder.Peek());
        }
    }
    if (next < Global_Reminders.size()) {
        return false;
    }
    if (!Is_StillTheTable()) {
        ++restarts;
        begun = false;
        return false;
    }
    stream.Put_LongAt(CountPosition, static_cast<std::int32_t>(encoded.size()));
    return true;
}

std::optional<std::string> RemindersEncoding::Take_Bytes() {
    return stream.Failed() ? std::nullopt : std::optional(stream.Take_Bytes());
}

TableFile& Reminders_File() {
    return File_OfReminders;
}

bool Save_Reminders(const QString& fileName) {
    RemindersEncoding encoding;
    encoding.Step(Global_Reminders.size());
    const std::optional<std::string> bytes = encoding.Take_Bytes();
    return bytes && File_OfReminders.Save(fileName, *bytes);
}

TableLoad Load_AccountReminders(const QString& accountFolder, const QString& exampleFile) {
    const QString fileName = accountFolder + "/reminders.dat"_L1;
    const TableLoad result = Load_Reminders(fileName);
    if (result == TableLoad::Loaded)
        platform::Files::Get().Copy(fileName, accountFolder + "/reminders.bak"_L1, true);
    if (result == TableLoad::NoFile && Load_Reminders(exampleFile) != TableLoad::NoFile)
        Date_Examples(Get_TodayDay());
    return result;
}

std::int32_t Get_NewReminderID(std::int32_t& id2) {
    id2 = platform::Clock::Get().Milliseconds();
    // The lowest free number is at most the number of slots, whatever ids a file has brought.
    std::vector<bool> taken(Global_Reminders.size() + 1);
    for (const ReminderSlot& slot : Global_Reminders) {
        if (!slot.Used || slot.Reminder.Peek().rs_ID < 0)
            continue;
        const auto id = static_cast<std::size_t>(slot.Reminder.Peek().rs_ID);
        if (id < taken.size())
            taken[id] = true;
    }
    const auto free = std::find(taken.begin(), taken.end(), false);
    return static_cast<std::int32_t>(free - taken.begin());
}

std::int32_t Find_ReminderIndex(std::int32_t id, std::int32_t id2) {
    const auto found = std::find_if(Global_Reminders.begin(), Global_Reminders.end(),
                                    [id, id2](const ReminderSlot& slot) {
                                        return slot.Used && slot.Reminder.Peek().rs_ID == id &&
                                               slot.Reminder.Peek().rs_ID2 == id2;
                                    });
    if (found == Global_Reminders.end())
        return -1;
    return static_cast<std::int32_t>(found - Global_Reminders.begin());
}

void Settle_IdPair(std::int32_t index) {
    const auto at = static_cast<std::size_t>(index);
    const std::int32_t id = Global_Reminders[at].Reminder.Peek().rs_ID;
    const std::int32_t id2 = Global_Reminders[at].Reminder.Peek().rs_ID2;
    const auto Renew = [](const ReminderSlot& slot) {
        slot.Reminder->rs_ID = Get_NewReminderID(slot.Reminder->rs_ID2);
    };
    if (Find_ReminderIndex(id, id2) != index) {
        Renew(Global_Reminders[at]);
        return;
    }
    for (std::size_t later = at + 1; later < Global_Reminders.size(); ++later) {
        const ReminderSlot& slot = Global_Reminders[later];
        if (slot.Used && slot.Reminder.Peek().rs_ID == id && slot.Reminder.Peek().rs_ID2 == id2)
            Renew(slot);
    }
}

void Delete_ReminderSlot(std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= Global_Reminders.size())
        return;
    auto target = static_cast<std::size_t>(index);
    Global_Reminders[target] = {};
    for (std::size_t source = target + 1; source < Global_Reminders.size(); ++source) {
        if (!Global_Reminders[source].Used)
            continue;
        Global_Reminders[target++] = std::move(Global_Reminders[source]);
        Global_Reminders[source] = {};
    }
}

std::int32_t Take_FreeReminderSlot() {
    const auto free = std::find_if(Global_Reminders.begin(), Global_Reminders.end(),
                                   [](const ReminderSlot& slot) { return !slot.Used; });
    const auto index = static_cast<std::int32_t>(free - Global_Reminders.begin());
    if (free == Global_Reminders.end())
        Global_Reminders.resize(Global_Reminders.size() + SlotStep);
    return index;
}

ReminderRef Add_Reminder(std::unique_ptr<ReminderClass> reminder, NewReminder state) {
    const std::int32_t index = Take_FreeReminderSlot();
    Global_Reminders[static_cast<std::size_t>(index)] = {true, state == NewReminder::Pending,
                                                         std::move(reminder)};
    return ReminderRef::Of_Slot(index);
}
