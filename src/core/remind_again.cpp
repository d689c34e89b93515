#include "core/remind_again.h"

#include "core/date_text.h"
#include "core/record_stream.h"
#include "core/reminder_ref.h"
#include "core/reminder_tick.h"
#include "platform/files.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

using namespace Qt::StringLiterals;

std::vector<RA_Entry> Global_RA_Reminders;
std::int32_t Global_RA_Last = -1;
std::vector<std::int32_t> Global_RA_Options;

namespace {

constexpr std::string_view FileHeader = "RA_Reminders";
constexpr std::size_t EntryBytes = 16;
constexpr std::size_t FirstEntries = 101;
constexpr std::size_t EntryStep = 10;
constexpr std::size_t MostOptions = 101;
// Sent past midnight, a reminder comes a minute late; that is meant.
constexpr std::int64_t LastMinute = 1439;

constexpr std::int32_t defaultOptions[] = {5, 10, 15, 30, 45, 60, 90, 120};

TableFile File_OfQueue;

std::string Default_OptionsText() {
    std::string text = "// List of options in the \"Remind me again\" menu\r\n"
                       "//\r\n"
                       "// This values are in minutes\r\n"
                       "\r\n";
    for (const std::int32_t minutes : defaultOptions)
        text += std::to_string(minutes) + "\r\n";
    return text;
}

// 0 for what is no number of minutes, like the lines of comment.
std::int32_t Read_Minutes(std::string_view item) {
    bool isNumber = false;
    const double value = QLocale::c().toDouble(
        QString::fromLatin1(item.data(), qsizetype(item.size())).trimmed(), &isNumber);
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    if (!isNumber || !std::isfinite(value) || std::abs(value) > most)
        return 0;
    return static_cast<std::int32_t>(std::nearbyint(value));
}

// Nothing when there are more than the table takes.
std::optional<std::vector<std::int32_t>> Read_Options(std::string_view text) {
    std::vector<std::int32_t> options;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of(",\r\n");
        const std::int32_t minutes = Read_Minutes(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        if (minutes == 0)
            continue;
        if (options.size() == MostOptions)
            return std::nullopt;
        options.push_back(minutes);
    }
    return options;
}

std::size_t Used_Entries() {
    const std::size_t used = Global_RA_Last < 0 ? 0 : static_cast<std::size_t>(Global_RA_Last) + 1;
    return std::min(used, Global_RA_Reminders.size());
}

TableLoad Read_Queue(std::string_view content) {
    RecordReader stream(content);
    if (stream.Get_Start(FileHeader) != TableLoad::Loaded)
        return TableLoad::Invalid;
    const std::size_t count = stream.Get_CountOfLast(EntryBytes);
    if (stream.Failed())
        return TableLoad::Invalid;
    Global_RA_Last = static_cast<std::int32_t>(count) - 1;
    if (count == 0)
        return TableLoad::Loaded;
    Global_RA_Reminders.resize(count);
    for (RA_Entry& entry : Global_RA_Reminders) {
        entry.Day = stream.Get_Long();
        entry.Minute = stream.Get_Long();
        entry.ID = stream.Get_Long();
        entry.ID2 = stream.Get_Long();
    }
    return TableLoad::Loaded;
}

} // namespace

void Init_RA_Reminders() {
    Global_RA_Reminders.assign(FirstEntries, {});
    Global_RA_Last = -1;
    File_OfQueue = {};
    Set_Default_RA_Options({}, OptionsFile::Leave);
}

void Set_Default_RA_Options(const QString& fileName, OptionsFile file) {
    Global_RA_Options.assign(std::begin(defaultOptions), std::end(defaultOptions));
    if (file == OptionsFile::Write)
        platform::Files::Get().Replace(fileName, Default_OptionsText());
}

void Load_RA_Options(const QString& fileName) {
    platform::Files& files = platform::Files::Get();
    if (files.Is_Absent(fileName)) {
        Set_Default_RA_Options(fileName, OptionsFile::Write);
        return;
    }
    const std::optional<std::string> text = files.Read(fileName);
    auto options = text ? Read_Options(*text) : std::nullopt;
    if (!options)
        Set_Default_RA_Options(fileName, OptionsFile::Leave);
    else if (options->empty())
        Set_Default_RA_Options(fileName, OptionsFile::Write);
    else
        Global_RA_Options = std::move(*options);
}

QString RA_Caption(std::int32_t minutes) {
    const bool hasRest = minutes % 60 != 0 && minutes >= 60;
    QString text = MinutesToHM(minutes);
    text.replace(u'h', (minutes / 60 < 2 ? u" hour "_s : u" hours "_s) +
                           (hasRest ? u"and "_s : QString()));
    // 59 counts as one minute here: that is how the menu reads.
    text.replace(u'm', minutes % 60 == 59 || minutes == 1 ? u" minute"_s : u" minutes"_s);
    return text;
}

RA_Time RA_TargetTime(const Moment& now, std::int32_t minutes) {
    const std::int64_t minute = std::int64_t{now.Minute} + minutes;
    const std::int64_t days = minute > LastMinute ? (minute - 1) / LastMinute : 0;
    return {static_cast<Day>(now.Today + days),
            static_cast<std::int32_t>(minute - days * LastMinute)};
}

bool Choose_RA(std::int32_t option, std::int32_t id, std::int32_t id2) {
    if (option < 0 || static_cast<std::size_t>(option) >= Global_RA_Options.size())
        return false;
    const RA_Time time =
        RA_TargetTime(Read_Moment(), Global_RA_Options[static_cast<std::size_t>(option)]);
    Add_RA_Reminder(id, id2, time.Day, time.Minute);
    return true;
}

void Add_RA_Reminder(std::int32_t id, std::int32_t id2, Day day, std::int32_t minute) {
    const std::size_t index = Used_Entries();
    if (index >= Global_RA_Reminders.size())
        Global_RA_Reminders.resize(index + EntryStep);
    Global_RA_Reminders[index] = {day, minute, id, id2};
    Global_RA_Last = static_cast<std::int32_t>(index);
    ReminderTick::Note_Change();
}

void Remove_RA_Reminder(std::int32_t index) {
    if (index < 0 || index > Global_RA_Last)
        return;
    Global_RA_Reminders[static_cast<std::size_t>(index)] =
        Global_RA_Reminders[static_cast<std::size_t>(Global_RA_Last)];
    --Global_RA_Last;
}

RA_Due RA_Check(const RA_Entry& entry, const Moment& now) {
    if (now.Today == entry.Day && now.Minute >= entry.Minute)
        return RA_Due::Deliver;
    return now.Today > entry.Day ? RA_Due::Drop : RA_Due::NotYet;
}

bool RA_Is_Due(const Moment& now) {
    const auto end = Global_RA_Reminders.begin() + static_cast<std::ptrdiff_t>(Used_Entries());
    return std::any_of(Global_RA_Reminders.begin(), end, [&now](const RA_Entry& entry) {
        return RA_Check(entry, now) != RA_Due::NotYet;
    });
}

void Check_RA_Reminders(const std::function<void(const ReminderRef&)>& deliver) {
    const std::int32_t bound = Global_RA_Last;
    Moment now = Read_Moment();
    // An entry that moves to the place of a removed one waits for the next pass.
    for (std::int32_t index = 0; index <= bound && index <= Global_RA_Last; ++index) {
        const RA_Entry entry = Global_RA_Reminders[static_cast<std::size_t>(index)];
        const RA_Due due = RA_Check(entry, now);
        if (due == RA_Due::NotYet)
            continue;
        // A delivery may handle events, another pass among them: the entry goes first.
        Remove_RA_Reminder(index);
        if (due == RA_Due::Drop)
            continue;
        if (const std::int32_t slot = Find_ReminderIndex(entry.ID, entry.ID2); slot != -1) {
            deliver(ReminderRef::Of_Slot(slot));
            now = Read_Moment();
        }
    }
}

TableLoad Load_RA_Reminders(const QString& fileName) {
    return File_OfQueue.Load(fileName, Read_Queue);
}

std::optional<std::string> Encode_RA_Reminders(const QString& fileName) {
    const std::size_t used = Used_Entries();
    RecordWriter stream;
    stream.Put_Header(FileHeader);
    stream.Put_Long(static_cast<std::int32_t>(used) - 1);
    for (std::size_t index = 0; index < used; ++index) {
        const RA_Entry& entry = Global_RA_Reminders[index];
        stream.Put_Long(entry.Day);
        stream.Put_Long(entry.Minute);
        stream.Put_Long(entry.ID);
        stream.Put_Long(entry.ID2);
    }
    std::string content = stream.Bytes();
    // The file never gets shorter: what earlier, longer queues left in it stays.
    platform::Files& files = platform::Files::Get();
    const std::optional<std::string> old = files.Read(fileName);
    if (!old && !files.Is_Absent(fileName))
        return std::nullopt;
    if (old && old->size() > content.size())
        content.append(*old, content.size());
    return content;
}

TableFile& RA_File() {
    return File_OfQueue;
}

bool Save_RA_Reminders(const QString& fileName) {
    const std::optional<std::string> content = Encode_RA_Reminders(fileName);
    return content && File_OfQueue.Save(fileName, *content);
}
