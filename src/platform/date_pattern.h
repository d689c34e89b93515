// Turns a locale's date format, as the toolkit spells it, into a pattern of the program's kind.
#pragma once

#include <QString>

namespace platform {

// "dd", "mm" and "yyyy" or "yy" with separators, at most 10 characters; empty when the format
// writes its months as words.
QString Date_Pattern(const QString& format);

} // namespace platform
