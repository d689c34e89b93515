// What the fuzz targets share. Each is the file of its name and defines Try: it reads any bytes as
// the program reads such a file, and uses what they held.
#pragma once

#include "support/fake_clock.h"
#include "support/memory_files.h"

#include <string>

struct Ground {
    FakeClock clock;
    MemoryFiles files;
    const QString file = QStringLiteral("file"); // holds the bytes

    std::string& Bytes() { return files.content[file]; }
};

void Try(Ground& ground);

// Says what must hold of any bytes.
inline void Must(bool holds) {
    if (!holds) {
        __builtin_trap();
    }
}
