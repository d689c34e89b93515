// How a text stands in a file: in the system's single-byte code page, or, when the page cannot
// hold it, as UTF-8 behind the bytes EF BB BF. Every text comes back as it was.
#pragma once

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>

// The most bytes that a text with a 16-bit count can have.
constexpr std::size_t MaxRecStringBytes = 65535;

std::string Encode_Text(const QString& text);
void Append_EncodedText(std::string& bytes, const QString& text);
// Any bytes can be read. They are taken as UTF-8 only when Encode_Text would give exactly them.
QString Decode_Text(std::string_view bytes);
// Whether the text may stand in a field with a 16-bit count: what edits such a field stops there.
bool Fits_RecString(const QString& text);
