// What a gap between two checks has swallowed: while the machine slept, the process was stopped or
// the clock was set forward, hours went by that nobody was told of.
#pragma once

#include "core/time_routines.h"

#include <cstdint>
#include <vector>

struct SwallowedRun {
    std::int32_t Slot = 0; // in Global_Reminders
    ::Day Day = 0;
    std::int32_t Minute = 0; // of that day
};

// A check that is later by this is a gap: the check of every second takes up to five minutes later
// what was due in between.
constexpr std::int32_t LongestPause = 5; // minutes

// The "At" setups whose minute lies between two checks more than LongestPause apart, on a day on
// which their reminder was due, and that cannot fire any more; the newest first. Of a gap of more
// than 60 days its last 60 count. Moves the anchors of the schedules as the checks of those days
// would have done. Nothing when the clock went back.
std::vector<SwallowedRun> Take_SwallowedRuns(const Moment& before, const Moment& now);
