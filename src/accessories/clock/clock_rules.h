// What the clock does with its time, on plain numbers: reading its boxes, stepping, and how fast a
// held button repeats.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

inline constexpr int ClockMinutes = 1440;

struct ClockTime {
    int Hour = 0;   // 0..23
    int Minute = 0; // 0..59
    bool operator==(const ClockTime&) const = default;
};

enum class StepButton : std::int8_t { HourUp = 0, HourDown = 1, MinuteUp = 2, MinuteDown = 3 };
inline constexpr int StepButtonCount = 4;

struct Stepped {
    ClockTime Time;
    bool MinuteWrapped = false;
};

ClockTime To_ClockTime(int minutesValue);
int To_MinutesValue(const ClockTime& time);

// The time after one click.
Stepped Step_Time(ClockTime time, StepButton button);

// What a box says, held within 0..limit; nothing for what is no number.
std::optional<int> Read_Box(const QString& text, int limit);
QString Two_Digits(int number);

// Milliseconds until the repeat after the next one of a held button.
inline constexpr int FirstRepeatInterval = 500;
int Next_RepeatInterval(int interval);
