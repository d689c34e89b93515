#include "platform/record_text.h"

#include "platform/code_page.h"

#include <optional>

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

char To_Char(unsigned value) {
    return static_cast<char>(static_cast<unsigned char>(value));
}

// UTF-8 in which a lone surrogate is written like any other unit, so that no text is changed:
// the toolkit's own conversion would put a question mark in its place.
std::string To_Utf8(const QString& text) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()) * 3);
    for (qsizetype at = 0; at < text.size(); ++at) {
        char32_t point = text[at].unicode();
        if (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
            point = QChar::surrogateToUcs4(text[at], text[at + 1]);
            ++at;
        }
        if (point < 0x80) {
            bytes += To_Char(point);
            continue;
        }
        const int tail = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
        constexpr unsigned leads[] = {0, 0xC0, 0xE0, 0xF0};
        bytes += To_Char(leads[tail] | point >> (6 * tail));
        for (int left = tail - 1; left >= 0; --left)
            bytes += To_Char(0x80 | (point >> (6 * left) & 0x3F));
    }
    return bytes;
}

// Nothing when the bytes are no sequence of code points. What this lets through although To_Utf8
// would write it otherwise is sorted out by the caller, who writes the result again.
std::optional<QString> From_Utf8(std::string_view bytes) {
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (std::size_t at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[at++]);
        if (lead >= 0xF8 || (lead >= 0x80 && lead < 0xC0))
            return std::nullopt;
        std::size_t tail = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        char32_t point = tail == 0 ? lead : lead & (0x3FU >> tail);
        if (tail > bytes.size() - at)
            return std::nullopt;
        for (; tail > 0; --tail) {
            const auto next = static_cast<unsigned char>(bytes[at++]);
            if ((next & 0xC0) != 0x80)
                return std::nullopt;
            point = point << 6 | (next & 0x3FU);
        }
        if (point > QChar::LastValidCodePoint)
            return std::nullopt;
        if (QChar::requiresSurrogates(point)) {
            text += QChar(QChar::highSurrogate(point));
            text += QChar(QChar::lowSurrogate(point));
        } else {
            text += QChar(static_cast<char16_t>(point));
        }
    }
    return text;
}

std::string Encode_BeyondAscii(const QString& text) {
    if (std::optional<std::string> page = platform::To_CodePage(text)) {
        // A text that only looks like the mark and what follows it would be read as another one.
        if (!page->starts_with(Utf8Mark) || Decode_Text(*page) == text)
            return std::move(*page);
    }
    return std::string(Utf8Mark) + To_Utf8(text);
}

} // namespace

void Append_EncodedText(std::string& bytes, const QString& text) {
    const std::size_t start = bytes.size();
    const auto size = static_cast<std::size_t>(text.size());
    bytes.resize(start + size);
    char* target = bytes.data() + start;
    const char16_t* source = reinterpret_cast<const char16_t*>(text.utf16());
    unsigned all = 0;
    for (std::size_t at = 0; at < size; ++at) {
        all |= source[at];
        target[at] = To_Char(source[at]);
    }
    if (all < 0x80)
        return;
    bytes.resize(start);
    bytes += Encode_BeyondAscii(text);
}

std::string Encode_Text(const QString& text) {
    std::string bytes;
    Append_EncodedText(bytes, text);
    return bytes;
}

QString Decode_Text(std::string_view bytes) {
    if (bytes.empty())
        return {};
    unsigned all = 0;
    for (const char byte : bytes)
        all |= static_cast<unsigned char>(byte);
    if (all < 0x80)
        return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (bytes.starts_with(Utf8Mark)) {
        const std::optional<QString> text = From_Utf8(bytes.substr(Utf8Mark.size()));
        if (text && Encode_Text(*text) == bytes)
            return *text;
    }
    return platform::From_CodePage(bytes);
}

bool Fits_RecString(const QString& text) {
    return Encode_Text(text).size() <= MaxRecStringBytes;
}
