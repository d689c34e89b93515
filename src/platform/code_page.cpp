#include "platform/code_page.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

// 0x80..0x9F; everywhere else the byte is the character. 81, 8D, 8F, 90 and 9D are unassigned.
constexpr std::array<char16_t, 32> Middle{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned MiddleStart = 0x80;
constexpr unsigned MiddleEnd = MiddleStart + Middle.size();

} // namespace

QString From_CodePage(std::string_view bytes) {
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isMiddle = code >= MiddleStart && code < MiddleEnd;
        text.append(QChar(isMiddle ? Middle[code - MiddleStart] : char16_t{code}));
    }
    return text;
}

std::optional<std::string> To_CodePage(const QString& text) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar letter : text) {
        const char16_t unit = letter.unicode();
        if (unit < MiddleStart || (unit >= MiddleEnd && unit <= 0xFF)) {
            bytes.push_back(static_cast<char>(unit));
            continue;
        }
        const auto found = std::find(Middle.begin(), Middle.end(), unit);
        if (found == Middle.end()) {
            return std::nullopt;
        }
        bytes.push_back(static_cast<char>(MiddleStart + (found - Middle.begin())));
    }
    return bytes;
}

} // namespace platform
