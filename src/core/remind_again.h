// "Remind me again in": reminders that the user sent away for some minutes, in a queue that
// outlives the run, and the choices of minutes from a text file that the user may edit.
#pragma once

#include "core/table_file.h"
#include "core/time_routines.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class ReminderRef;

struct RA_Entry {
    ::Day Day = 0;
    std::int32_t Minute = 0; // Minute of that day
    std::int32_t ID = 0;
    std::int32_t ID2 = 0;
    bool operator==(const RA_Entry&) const = default;
};

extern std::vector<RA_Entry> Global_RA_Reminders;   // 0..100 at first, grown by 10
extern std::int32_t Global_RA_Last;                 // last used index; -1 = empty
extern std::vector<std::int32_t> Global_RA_Options; // minutes, one for each entry of the menu

// An empty queue and the built-in choices.
void Init_RA_Reminders();

enum class OptionsFile { Leave, Write };
// The built-in choices; Write puts them into the file too.
void Set_Default_RA_Options(const QString& fileName, OptionsFile file);
// "runagain.txt". A missing file, and one without any choice, is written anew; one with more
// choices than the table takes, or that cannot be read, stays as it is, and the built-in ones hold.
void Load_RA_Options(const QString& fileName);
// "5 minutes", "1 hour " (with the blank), "1 hour and 30 minutes", "59 minute".
QString RA_Caption(std::int32_t minutes);

struct RA_Time {
    ::Day Day = 0;
    std::int32_t Minute = 0;
    bool operator==(const RA_Time&) const = default;
};
RA_Time RA_TargetTime(const Moment& now, std::int32_t minutes);
// Queues the reminder by entry "option" of the menu; false for an entry that is not there.
bool Choose_RA(std::int32_t option, std::int32_t id, std::int32_t id2);
void Add_RA_Reminder(std::int32_t id, std::int32_t id2, Day day, std::int32_t minute);
// Moves the last entry to its place; an index outside does nothing.
void Remove_RA_Reminder(std::int32_t index);

enum class RA_Due { NotYet, Deliver, Drop };
RA_Due RA_Check(const RA_Entry& entry, const Moment& now);
// A pass would take an entry out of the queue now.
bool RA_Is_Due(const Moment& now);
// One pass over the queue. Entries of deleted reminders go silently.
void Check_RA_Reminders(const std::function<void(const ReminderRef& due)>& deliver);

// "rareminders.dat". After a failure the queue is as it was.
TableLoad Load_RA_Reminders(const QString& fileName);
// What stands behind the entries in the file stays there. False: nothing was replaced.
bool Save_RA_Reminders(const QString& fileName);
// The bytes of that file, with the tail of the one that stands there; nothing when that cannot be
// read.
std::optional<std::string> Encode_RA_Reminders(const QString& fileName);
// The queue's file, for who writes it beside the interface.
TableFile& RA_File();
