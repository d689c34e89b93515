#include "controls/tooltip_texts.h"

#include "platform/files.h"
#include "platform/record_text.h"

#include <QStringList>

#include <charconv>

using namespace Qt::StringLiterals;

namespace {

// A help text that was really written stays far below these.
constexpr std::size_t MostBytes = std::size_t{1} << 20;
constexpr std::size_t LongestLine = 4000;

std::string_view Trim_Blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

struct SectionStart {
    std::int64_t Number = 0;
    std::string_view Title;
};

// A number with any count of digits is a number, though it may be none of the table's.
std::optional<std::int64_t> To_Number(std::string_view text) {
    text = Trim_Blanks(text);
    const std::string_view digits = text.substr(!text.empty() && text.front() == '-' ? 1 : 0);
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    std::int64_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() ? number : -1;
}

std::optional<SectionStart> Section_Start(std::string_view line) {
    const std::size_t open = line.find('[');
    if (open == std::string_view::npos)
        return std::nullopt;
    const std::size_t close = line.find(']', open + 1);
    if (close == std::string_view::npos)
        return std::nullopt;
    const auto number = To_Number(line.substr(open + 1, close - open - 1));
    if (!number)
        return std::nullopt;
    return SectionStart{*number, Trim_Blanks(line.substr(close + 1))};
}

// Takes lines one by one and puts each section into its slot when it ends.
class TooltipReader {
public:
    void Take_Line(std::string_view line) {
        if (const auto start = Section_Start(line)) {
            End_Section();
            number = start->Number;
            title = Decode_Text(start->Title);
        } else if (!line.empty()) {
            lines.append(Decode_Text(line));
        }
    }
    void End_Section() {
        if (number >= 0 && number <= HighestTooltip) {
            const auto slot = static_cast<std::size_t>(number);
            if (slot >= table.size())
                table.resize(slot + 1);
            table[slot] = {title, lines.join("\r\n"_L1)};
        }
        lines.clear();
    }

    std::vector<TooltipText> table = std::vector<TooltipText>(FirstTooltipSlots);

private:
    std::int64_t number = -1; // none before the first section
    QString title;
    QStringList lines;
};

} // namespace

std::vector<TooltipText> Global_Tooltips(FirstTooltipSlots);
bool Global_TooltipsLoaded = false;

std::optional<std::vector<TooltipText>> Parse_Tooltips(std::string_view bytes) {
    if (bytes.size() > MostBytes || bytes.find('\0') != std::string_view::npos)
        return std::nullopt;
    TooltipReader reader;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        const std::string_view line = bytes.substr(0, end);
        if (line.size() > LongestLine)
            return std::nullopt;
        reader.Take_Line(Trim_Blanks(line));
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    reader.End_Section();
    return std::move(reader.table);
}

bool Load_Tooltips(const QString& fileName) {
    Global_Tooltips.assign(FirstTooltipSlots, {});
    Global_TooltipsLoaded = false;
    const auto bytes = platform::Files::Get().Read(fileName);
    auto table = bytes ? Parse_Tooltips(*bytes) : std::nullopt;
    if (!table)
        return false;
    Global_Tooltips = std::move(*table);
    Global_TooltipsLoaded = true;
    return true;
}
