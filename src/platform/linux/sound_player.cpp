#include "platform/linux/sound_player.h"

#include "platform/linux/sound_output.h"

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace platform {

namespace {

using SteadyClock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto WhilePlaying = 50ms; // between two looks whether the sound has ended
constexpr auto Linger = 300ms;      // the device's own buffer still has to sound
constexpr auto MissingFor = 30s;    // before a device is looked for again for a tone
constexpr auto ToneIsLate = 2s;     // then it would only puzzle
constexpr auto WaitAtEnd = 1s;

struct Wanted {
    std::string alias;
    std::string path;
    int from = 0;
};

// What the thread has to do next.
struct Task {
    std::optional<Wanted> play;
    bool stop = false;
    bool tone = false;
};

} // namespace

struct SoundPlayer::Shared {
    std::mutex guard;
    std::condition_variable changed;
    Task task;
    std::string playing; // alias of the file on the output
    SteadyClock::time_point toneAsked;
    std::optional<SteadyClock::time_point> missingSince;
    bool isStarted = false;
    bool isQuitting = false;
    bool isFinished = false;
    std::function<void()> noOutput;

    void Run();
    void Carry_Out(const Task& next, SoundOutput& output);
    Task Next(bool isOpen);
    static void Start(const std::shared_ptr<Shared>& shared);
};

void SoundPlayer::Shared::Start(const std::shared_ptr<Shared>& shared) {
    if (std::exchange(shared->isStarted, true)) {
        return;
    }
    // Signals belong to the thread of the windows.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread([shared] { shared->Run(); }).detach();
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

// Waits for something to do: without end while the device is closed, a moment while it is open.
Task SoundPlayer::Shared::Next(bool isOpen) {
    std::unique_lock lock(guard);
    const auto isWanted = [this] { return isQuitting || task.play || task.stop || task.tone; };
    if (isOpen) {
        changed.wait_for(lock, WhilePlaying, isWanted);
    } else {
        changed.wait(lock, isWanted);
    }
    Task next = std::exchange(task, {});
    next.tone = next.tone && SteadyClock::now() - toneAsked < ToneIsLate;
    if (next.play) {
        playing = next.play->alias;
    }
    return next;
}

void SoundPlayer::Shared::Carry_Out(const Task& next, SoundOutput& output) {
    if (next.stop) {
        output.Stop_File();
    }
    if (!next.play && !next.tone) {
        return;
    }
    const bool isOpen = output.Open();
    {
        const std::lock_guard lock(guard);
        missingSince = isOpen ? std::nullopt : std::optional(SteadyClock::now());
    }
    if (isOpen && next.play) {
        output.Play_File(next.play->path, next.play->from);
    }
    if (next.tone && (!isOpen || !output.Play_Tone())) {
        noOutput();
    }
}

void SoundPlayer::Shared::Run() {
    {
        SoundOutput output;
        bool isOpen = false;
        auto lastSound = SteadyClock::now();
        for (;;) {
            const Task next = Next(isOpen);
            {
                const std::lock_guard lock(guard);
                if (isQuitting) {
                    break;
                }
            }
            Carry_Out(next, output);
            if (output.Is_Sounding()) {
                lastSound = SteadyClock::now();
            }
            isOpen = SteadyClock::now() - lastSound < Linger;
            if (!isOpen) {
                output.Close();
            }
        }
    }
    const std::lock_guard lock(guard);
    isFinished = true;
    changed.notify_all();
}

SoundPlayer::SoundPlayer(std::function<void()> noOutput) : shared(std::make_shared<Shared>()) {
    shared->noOutput = std::move(noOutput);
}

SoundPlayer::~SoundPlayer() {
    std::unique_lock lock(shared->guard);
    shared->isQuitting = true;
    shared->changed.notify_all();
    if (shared->isStarted) {
        shared->changed.wait_for(lock, WaitAtEnd, [this] { return shared->isFinished; });
    }
}

void SoundPlayer::Play_File(const std::string& alias, const std::string& path, int from) {
    const std::lock_guard lock(shared->guard);
    Shared::Start(shared);
    shared->task.play = Wanted{alias, path, from};
    shared->changed.notify_all();
}

void SoundPlayer::Stop_File(const std::string& alias) {
    const std::lock_guard lock(shared->guard);
    if (shared->task.play && shared->task.play->alias == alias) {
        shared->task.play.reset();
    }
    if (shared->playing == alias) {
        shared->task.stop = true;
        shared->changed.notify_all();
    }
}

bool SoundPlayer::Play_Tone() {
    const std::lock_guard lock(shared->guard);
    const auto now = SteadyClock::now();
    if (shared->missingSince && now - *shared->missingSince < MissingFor) {
        return false;
    }
    Shared::Start(shared);
    shared->task.tone = true;
    shared->toneAsked = now;
    shared->changed.notify_all();
    return true;
}

} // namespace platform
