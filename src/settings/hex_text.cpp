#include "settings/hex_text.h"

namespace {

int Digit_Value(char letter) {
    if (letter >= '0' && letter <= '9')
        return letter - '0';
    if (letter >= 'A' && letter <= 'F')
        return letter - 'A' + 10;
    if (letter >= 'a' && letter <= 'f')
        return letter - 'a' + 10;
    return -1;
}

} // namespace

std::string Hex_OfBytes(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    text.reserve(bytes.size() * 3);
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += digits[value >> 4];
        text += digits[value & 15];
        text += ' ';
    }
    return text;
}

std::optional<std::string> Bytes_OfHex(std::string_view hexText) {
    std::string bytes;
    int high = -1; // the first digit of a byte that may have a second
    const auto finish = [&](int value) {
        bytes += static_cast<char>(static_cast<unsigned char>(value));
        high = -1;
    };
    for (const char letter : hexText) {
        const int digit = Digit_Value(letter);
        if (letter == ' ' && high != -1)
            finish(high);
        else if (digit != -1 && high != -1)
            finish(high * 16 + digit);
        else if (digit != -1)
            high = digit;
        else if (letter != ' ')
            return std::nullopt;
    }
    if (high != -1)
        finish(high);
    return bytes;
}
