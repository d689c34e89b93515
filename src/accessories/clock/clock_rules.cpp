#include "accessories/clock/clock_rules.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int LastHour = 23;
constexpr int LastMinute = 59;
constexpr int QuickRepeat = 200; // ms
constexpr int QuickestStep = 51;
constexpr int RepeatStep = 10;

} // namespace

ClockTime To_ClockTime(int minutesValue) {
    const int minutes = std::clamp(minutesValue, 0, ClockMinutes - 1);
    return {minutes / 60, minutes % 60};
}

int To_MinutesValue(const ClockTime& time) {
    return time.Hour * 60 + time.Minute;
}

Stepped Step_Time(ClockTime time, StepButton button) {
    const int sign = button == StepButton::HourDown || button == StepButton::MinuteDown ? -1 : 1;
    Stepped result{time, false};
    if (button == StepButton::MinuteUp || button == StepButton::MinuteDown) {
        int minute = time.Minute + sign;
        result.MinuteWrapped = minute < 0 || minute > LastMinute;
        // The way up passes over 0: from 59 on to 1, and that is meant.
        if (minute < 0)
            minute += 60;
        else if (minute > LastMinute)
            minute -= 59;
        result.Time.Minute = minute;
        if (!result.MinuteWrapped)
            return result;
    }
    result.Time.Hour = std::clamp(time.Hour + sign, 0, LastHour);
    return result;
}

std::optional<int> Read_Box(const QString& text, int limit) {
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber ? std::optional(std::clamp(number, 0, limit)) : std::nullopt;
}

QString Two_Digits(int number) {
    return u"%1"_s.arg(number, 2, 10, QLatin1Char('0'));
}

int Next_RepeatInterval(int interval) {
    if (interval > QuickRepeat)
        return QuickRepeat;
    return interval >= QuickestStep ? interval - RepeatStep : interval;
}
