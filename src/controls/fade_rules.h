// The arithmetic of a fade, on plain data. Alphas run from 1 to 254, times are milliseconds.
#pragma once

#include <cstdint>
#include <span>

enum class FadeDirection : std::int32_t { In = 0, Out = 1 };

inline constexpr std::int16_t FaintestAlpha = 1;
inline constexpr std::int16_t StrongestAlpha = 254;

// How far a fade has come.
struct FadeStep {
    std::int16_t CurrentAlpha = FaintestAlpha;
    FadeDirection Direction = FadeDirection::In;
};

constexpr std::int16_t Target_Alpha(FadeDirection direction) {
    return direction == FadeDirection::In ? StrongestAlpha : FaintestAlpha;
}

// The step of one round, without its sign. setAlphaTimes: what one update of each window in motion
// took. The dearer they are the larger the step, so that a fade lasts about as long anywhere.
std::int16_t Alpha_Step(std::span<const std::int32_t> setAlphaTimes);
// The alpha after one more round.
std::int16_t Next_Alpha(const FadeStep& fade, std::int16_t step);
// The alpha has passed its target, or the time is up. passed: since the start of the fade.
bool Fade_Is_Over(const FadeStep& fade, std::int32_t passed);
