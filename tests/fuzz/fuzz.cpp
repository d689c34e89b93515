#include "fuzz.h"

#include "core/date_text.h"
#include "core/time_routines.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Ground ground;
    ground.clock.Set(2026, 3, 2, 9, 0);
    ground.Bytes().assign(reinterpret_cast<const char*>(data), size);
    Init_TimeRoutines();
    Init_DateText();
    Try(ground);
    return 0;
}
