#include "controls/step_timer.h"

#include "platform/clock.h"

#include <algorithm>
#include <utility>

void StepTimer::Start(int milliseconds, std::function<void()> step) {
    waiting = std::make_unique<QObject>();
    platform::Clock::Get().Call_Later(std::max(milliseconds, 0), waiting.get(),
                                      [this, step = std::move(step)] {
                                          // The step may start the next one.
                                          const auto done = std::exchange(waiting, nullptr);
                                          step();
                                      });
}
