#include "delivery/missed_reminders.h"

#include "controls/the_screen.h"
#include "core/date_text.h"
#include "core/swallowed_runs.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastTextWidth = 180;
constexpr int MostRows = 10;
constexpr int RowHeight = 16;
constexpr int BelowRows = 20; // the label under the list
constexpr int BesideText = 40;
constexpr int FromToolbar = 15;

// The day whose run was missed; nothing when none was.
std::optional<Day> Find_MissedDay(ReminderClass& reminder, const Moment& now) {
    // Here the date is compared as a Day, which only an earlier list has stored.
    if (reminder.rs_LastExecutedDate == now.Today)
        return std::nullopt;
    if (reminder.Engine_CheckDate(now) && reminder.Check_ReminderWasMissedToday(now))
        return now.Today;
    const Day previous = reminder.GetPrevious_RunDate(now);
    // A reminder that fired holds a Serial, which is above any Day: it is never in this list. That
    // is meant.
    if (previous == NoDay || previous <= reminder.rs_LastExecutedDate || previous >= now.Today ||
        previous < reminder.rs_DayCreated)
        return std::nullopt;
    reminder.rs_LastExecutedDate = now.Today;
    return previous;
}

QString Day_Prefix(Day missed, Day today) {
    if (missed == today)
        return u"Today: "_s;
    return missed == today - 1 ? u"Yesterday: "_s : DayToDateString(missed) + ": "_L1;
}

MissedEntry Make_Row(std::int32_t index, Day missed, Day today) {
    const ReminderRef reminder = ReminderRef::Of_Slot(index);
    QString text = reminder.Peek()->rs_Text;
    text.replace("\r\n"_L1, " - "_L1);
    return {Day_Prefix(missed, today) + text, reminder, missed};
}

} // namespace

std::vector<MissedEntry> List_SwallowedReminders(const Moment& before, const Moment& now) {
    std::vector<MissedEntry> rows;
    for (const SwallowedRun& run : Take_SwallowedRuns(before, now)) {
        ReminderClass& reminder = *Global_Reminders[static_cast<std::size_t>(run.Slot)].Reminder;
        // The list of the next start does not offer it again: of today it looks for a Serial, of
        // the days before for a Day. What has fired today keeps its Serial.
        if (run.Day == now.Today) {
            reminder.rs_LastExecutedDate = now.TodaySerial;
        } else if (reminder.rs_LastExecutedDate != now.TodaySerial) {
            reminder.rs_LastExecutedDate = now.Today;
        }
        rows.push_back(Make_Row(run.Slot, run.Day, now.Today));
    }
    return rows;
}

std::vector<MissedEntry> List_MissedReminders(const Moment& now) {
    std::vector<MissedEntry> rows;
    const auto count = static_cast<std::int32_t>(Global_Reminders.size());
    for (std::int32_t index = 0; index < count; ++index) {
        const ReminderSlot& slot = Global_Reminders[static_cast<std::size_t>(index)];
        if (!slot.Used || slot.Pending || !slot.Reminder.Peek().rs_Enabled)
            continue;
        ReminderClass& reminder = *slot.Reminder;
        const std::optional<Day> missed = Find_MissedDay(reminder, now);
        if (!missed)
            continue;
        rows.push_back(Make_Row(index, *missed, now.Today));
    }
    std::stable_sort(
        rows.begin(), rows.end(),
        [](const MissedEntry& one, const MissedEntry& other) { return one.Day > other.Day; });
    return rows;
}

MissedPlace Place_MissedWindow(int rows, int widestText, int frameHeight,
                               const ToolbarRect& toolbar, const QRect& screen) {
    MissedPlace place;
    const int shownRows = std::clamp(rows + 1, 2, MostRows);
    place.Height = shownRows * RowHeight + BelowRows + frameHeight;
    // A text of any length must not make a window that nobody can take hold of.
    place.Width = std::min(std::max(widestText, LeastTextWidth), screen.width()) + BesideText;
    place.Width = std::min(place.Width, screen.width());
    place.Top = toolbar.Bottom + FromToolbar;
    if (place.Top + place.Height > screen.bottom() + 1)
        place.Top = toolbar.Top - FromToolbar - place.Height;
    const QRect inside = Moved_Into(screen, {toolbar.Left, place.Top, place.Width, place.Height});
    place.Top = inside.top();
    place.Left = inside.left();
    return place;
}
