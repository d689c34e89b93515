// Bytes as hex digits.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Two upper-case digits and a blank for each byte: "41 42 ".
std::string Hex_OfBytes(std::string_view bytes);
// Bytes of one or two digits with blanks between them, or of two digits without. Nothing when there
// is any other character; no byte at all is an empty list.
std::optional<std::string> Bytes_OfHex(std::string_view hexText);
