#include "core/categories.h"

#include "core/reminder_store.h"
#include "platform/files.h"
#include "platform/record_text.h"

#include <QSet>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

std::vector<CategoryEntry> Global_Categories;
const QString NoCategoryText = u"--"_s;

namespace {

constexpr std::size_t FirstEntries = 11;
constexpr std::size_t EntryStep = 10;

TableFile File_OfCategories;

const CategoryEntry defaultCategories[] = {
    {u"Work"_s, u"Write"_s},
    {u"Hobbies"_s, u"Laptop"_s},
    {u"Birthdays"_s, u"Gift"_s},
    {u"Family"_s, u"Home"_s},
    {u"TV"_s, u"TV"_s},
    {u"Appointments"_s, u"Planner"_s},
    {u"Phone Calls"_s, u"Mobile"_s},
    {u"Misc"_s, {}},
};

std::size_t Count_Categories() {
    const auto end = std::find_if(Global_Categories.begin(), Global_Categories.end(),
                                  [](const CategoryEntry& entry) { return entry.Name.isEmpty(); });
    return static_cast<std::size_t>(end - Global_Categories.begin());
}

void Add_Category(std::size_t index, CategoryEntry entry) {
    if (index >= Global_Categories.size())
        Global_Categories.resize(Global_Categories.size() + EntryStep);
    Global_Categories[index] = std::move(entry);
}

// A name that is empty would end the list in front of the entries behind it.
void Read_Line(std::string_view line, std::size_t& count) {
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    const std::size_t middle = line.find(';');
    if (middle == 0 || middle == line.npos || line.find(';', middle + 1) != line.npos)
        return;
    Add_Category(count++,
                 {Decode_Text(line.substr(0, middle)), Decode_Text(line.substr(middle + 1))});
}

TableLoad Read_Lines(std::string_view bytes) {
    std::size_t count = 0;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        Read_Line(bytes.substr(0, end), count);
        bytes.remove_prefix(end == bytes.npos ? bytes.size() : end + 1);
    }
    return TableLoad::Loaded;
}

// Each word begins with a capital.
QString Proper_Case(const QString& text) {
    QString proper = text;
    for (qsizetype at = 0; at < proper.size(); ++at)
        if (at == 0 || proper[at - 1] == u' ')
            proper[at] = proper[at].toUpper();
    return proper;
}

} // namespace

void Init_Categories() {
    Global_Categories.assign(FirstEntries, {});
    File_OfCategories = {};
}

TableLoad Load_Categories(const QString& fileName) {
    Global_Categories.assign(FirstEntries, {});
    const TableLoad result = File_OfCategories.Load(fileName, Read_Lines);
    if (Global_Categories.front().Name.isEmpty())
        std::copy(std::begin(defaultCategories), std::end(defaultCategories),
                  Global_Categories.begin());
    return result;
}

std::string Encode_Categories() {
    std::string bytes;
    for (std::size_t index = 0; index < Count_Categories(); ++index) {
        const CategoryEntry& entry = Global_Categories[index];
        std::string line = Encode_Text(entry.Name);
        const std::size_t middle = line.size();
        line += ';';
        Append_EncodedText(line, entry.Icon);
        // What the form of a line cannot hold is left out, so that its neighbours stay readable;
        // its reminders bring the name back.
        if (line.find(';') != middle || line.rfind(';') != middle ||
            line.find_first_of("\r\n") != line.npos)
            continue;
        bytes += line;
        bytes += "\r\n";
    }
    return bytes;
}

TableFile& Categories_File() {
    return File_OfCategories;
}

void Save_Categories(const QString& fileName) {
    File_OfCategories.Save(fileName, Encode_Categories());
}

int Find_Category(const QString& name) {
    const QString lower = name.toLower();
    const auto found = std::find_if(
        Global_Categories.begin(), Global_Categories.end(),
        [&lower](const CategoryEntry& entry) { return entry.Name.toLower() == lower; });
    return found == Global_Categories.end() ? -1
                                            : static_cast<int>(found - Global_Categories.begin());
}

QStringList Category_Names() {
    QStringList names;
    for (std::size_t index = 0; index < Count_Categories(); ++index)
        names << Global_Categories[index].Name;
    return names;
}

QString Icon_OfCategory(const QString& name) {
    const int index = name.isEmpty() ? -1 : Find_Category(name);
    return index == -1 ? QString() : Global_Categories[static_cast<std::size_t>(index)].Icon;
}

void Sync_CategoriesFromReminders() {
    std::size_t count = Count_Categories();
    QSet<QString> known;
    for (const ReminderSlot& slot : Global_Reminders) {
        if (!slot.Used)
            continue;
        const ReminderClass& reminder = slot.Reminder.Peek();
        if (reminder.rs_Category.isEmpty() || known.contains(reminder.rs_Category))
            continue;
        if (Find_Category(reminder.rs_Category) == -1)
            Add_Category(count++, {reminder.rs_Category, reminder.rs_Icon});
        known.insert(reminder.rs_Category);
    }
}

void Delete_Category(const QString& name) {
    const QString lower = name.trimmed().toLower();
    for (const ReminderSlot& slot : Global_Reminders) {
        if (slot.Used && slot.Reminder.Peek().rs_Category.trimmed().toLower() == lower)
            slot.Reminder->rs_Category.clear();
    }
    const int index = Find_Category(lower);
    if (index == -1)
        return;
    Global_Categories.erase(Global_Categories.begin() + index);
    Global_Categories.emplace_back();
}

QString Category_FromText(const QString& text) {
    const QString clean = text.simplified();
    if (clean == NoCategoryText)
        return {};
    return clean == clean.toLower() ? Proper_Case(clean) : clean;
}
