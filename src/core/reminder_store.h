// The table of all reminders of the account, and its file.
#pragma once

#include "core/record_stream.h"
#include "core/reminder.h"
#include "core/reminder_tick.h"
#include "core/table_file.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class ReminderRef;

// A slot's own reminder, used like a unique_ptr. It remembers until when a check has nothing to ask
// it. Whoever reaches it otherwise than by Peek may change it, and makes it asked again; what is
// reached is for the handler at hand, not to be kept.
class ReminderOwner {
public:
    ReminderOwner() = default;
    ReminderOwner(std::nullptr_t) {}
    ReminderOwner(std::unique_ptr<ReminderClass> reminder) : Reminder(std::move(reminder)) {
        ReminderTick::Note_Change();
    }

    ReminderClass* get() const {
        End_Quiet();
        return Reminder.get();
    }
    ReminderClass* operator->() const { return get(); }
    ReminderClass& operator*() const { return *get(); }
    // To read only.
    const ReminderClass& Peek() const { return *Reminder; }
    explicit operator bool() const { return Reminder != nullptr; }
    bool operator==(std::nullptr_t) const { return Reminder == nullptr; }
    void reset() { *this = {}; }

    MinuteCount Quiet_Until() const { return QuietUntil; }
    bool Is_Quiet(MinuteCount now) const { return now < QuietUntil; }
    // Engine_CheckRunReminder, which finds the next quiet time.
    bool Check_Run(const Moment& now) const {
        return Reminder->Engine_CheckRunReminder(now, QuietUntil);
    }
    void End_Quiet() const {
        QuietUntil = 0;
        ReminderTick::Note_Change();
    }

private:
    mutable MinuteCount QuietUntil = 0;
    std::unique_ptr<ReminderClass> Reminder;
};

struct ReminderSlot {
    bool Used = false;    // then Reminder is there
    bool Pending = false; // being built by a dialog: not fired, not saved
    ReminderOwner Reminder;
};

extern std::vector<ReminderSlot> Global_Reminders;

// 0..50, all free.
void Init_Reminders();

// Loads the table. Without a file it stays as it is; after a failure it is empty (0..20), and the
// file's damaged bytes are kept aside before a later save replaces them.
TableLoad Load_Reminders(const QString& fileName);
// Writes the used slots that are not pending. False: nothing was replaced.
bool Save_Reminders(const QString& fileName);

// The file's bytes, made a few slots at a time while the program goes on.
class RemindersEncoding {
public:
    // Encodes so many more slots. True: all of them, as the table stands now. Slots that came, went
    // or moved meanwhile start it anew.
    bool Step(std::size_t slots);
    // Once; nothing when a text is too long for its field.
    std::optional<std::string> Take_Bytes();

private:
    void Begin();
    bool Is_StillTheTable() const;

    RecordWriter stream;
    std::size_t next = 0;
    std::vector<const ReminderClass*> encoded;
    bool begun = false;
    int restarts = 0;
};
// The file of the table, for who writes it beside the interface.
TableFile& Reminders_File();

// The load at the start of the program: "reminders.dat" of the account's folder, copied to
// "reminders.bak". Without one it is a new account: it gets the starter reminders as far as they
// can be read.
TableLoad Load_AccountReminders(const QString& accountFolder, const QString& exampleFile);

// The lowest rs_ID that no used slot has, and the millisecond clock as the second number.
std::int32_t Get_NewReminderID(std::int32_t& id2);
// Slot of the used reminder with this pair of numbers, or -1.
std::int32_t Find_ReminderIndex(std::int32_t id, std::int32_t id2);
// Leaves the pair of the used slot to it alone, before anything is told by it: the first slot that
// has the pair is the one that was found by it so far, and keeps it; others get a fresh one.
void Settle_IdPair(std::int32_t index);
// Frees a slot; the used ones behind it move down in order. An index outside does nothing.
void Delete_ReminderSlot(std::int32_t index);
// A free slot; the table grows by 20 when there is none.
std::int32_t Take_FreeReminderSlot();
// Puts a reminder into a free slot.
enum class NewReminder { Ready, Pending };
ReminderRef Add_Reminder(std::unique_ptr<ReminderClass> reminder,
                         NewReminder state = NewReminder::Ready);
