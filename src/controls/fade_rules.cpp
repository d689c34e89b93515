#include "controls/fade_rules.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr std::int32_t LongestFadeIn = 600;  // ms
constexpr std::int32_t LongestFadeOut = 601; // ms, and over when it is reached
constexpr std::int64_t LargestStep = 255;    // ends any fade in one round

} // namespace

std::int16_t Alpha_Step(std::span<const std::int32_t> setAlphaTimes) {
    const std::int64_t sum =
        std::accumulate(setAlphaTimes.begin(), setAlphaTimes.end(), std::int64_t{0});
    return sum > 3 ? static_cast<std::int16_t>(std::min(sum / 3, LargestStep)) : std::int16_t{1};
}

std::int16_t Next_Alpha(const FadeStep& fade, std::int16_t step) {
    const int change = fade.Direction == FadeDirection::In ? step : -step;
    return static_cast<std::int16_t>(fade.CurrentAlpha + change);
}

bool Fade_Is_Over(const FadeStep& fade, std::int32_t passed) {
    if (fade.Direction == FadeDirection::In) {
        return fade.CurrentAlpha > StrongestAlpha || passed > LongestFadeIn;
    }
    return fade.CurrentAlpha < FaintestAlpha || passed >= LongestFadeOut;
}
