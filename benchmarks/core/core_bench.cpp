// What a tick, a load and a save cost, each as a ratio to a plain pass over as much memory that is
// measured in the same run, in turn with it.
#include "core/record_stream.h"
#include "core/reminder_store.h"
#include "platform/files.h"
#include "row.h"
#include "sample_reminders.h"
#include "support/fake_clock.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t sizes[] = {10000, 100000, 1000000};
constexpr int rounds = 5;
constexpr double Frame = 1.0 / 60; // s

// Files in memory: what the disk and its sync cost is not measured here. The content is given away
// by the read.
class MemoryFiles : public platform::Files {
public:
    bool Exists(const QString&) override { return true; }
    std::optional<std::string> Read(const QString&) override { return std::move(content); }
    bool Replace(const QString&, const std::string& bytes) override {
        benchmark::DoNotOptimize(bytes.data());
        return true;
    }
    bool Copy(const QString&, const QString&, bool) override { return true; }
    platform::FileStamp Stamp(const QString&) override { return {}; }
    void Sweep(const QString&) override {}
    bool Make_Folder(const QString&) override { return true; }
    std::optional<QStringList> Empty_Files(const QString&) override { return {}; }

    std::string content;
};

// As large as a reminder, and as many.
struct Stone {
    std::int32_t field = 1;
    char rest[sizeof(ReminderClass) - sizeof(std::int32_t)];
};

struct Sample {
    std::vector<ReminderSlot> reminders;
    std::vector<std::unique_ptr<Stone>> stones;
    std::string bytes; // of the file
};

FakeClock* wallClock = nullptr;
MemoryFiles* files = nullptr;
std::map<std::int64_t, Sample> samples;

std::string Bytes_OfTable() {
    RecordWriter stream;
    stream.Put_Header("RSaveFile001");
    stream.Put_Long(static_cast<std::int32_t>(Global_Reminders.size()));
    for (const ReminderSlot& slot : Global_Reminders)
        slot.Reminder.Peek().SaveData_To_File(stream);
    return stream.Bytes();
}

void Make_Sample(std::int64_t size) {
    Sample& sample = samples[size];
    Make_SampleReminders(static_cast<std::size_t>(size));
    sample.bytes = Bytes_OfTable();
    sample.reminders = std::move(Global_Reminders);
    for (std::int64_t index = 0; index < size; ++index)
        sample.stones.push_back(std::make_unique<Stone>());
}

void Tick(benchmark::State& state, std::int64_t size) {
    Global_Reminders.swap(samples[size].reminders);
    ReminderTick tick;
    std::int64_t delivered = 0;
    for (auto _ : state) {
        wallClock->Advance(60'000);
        tick.Check([&delivered](const ReminderRef&) { ++delivered; });
    }
    benchmark::DoNotOptimize(delivered);
    Global_Reminders.swap(samples[size].reminders);
}

// The first tick after midnight asks every reminder again: the dearest tick of a day.
void New_Day(benchmark::State& state, std::int64_t size) {
    Global_Reminders.swap(samples[size].reminders);
    ReminderTick tick;
    for (auto _ : state) {
        state.PauseTiming();
        wallClock->Advance(86400000);
        state.ResumeTiming();
        tick.Check([](const ReminderRef&) {});
    }
    Global_Reminders.swap(samples[size].reminders);
}

void Walk(benchmark::State& state, std::int64_t size) {
    const auto& stones = samples[size].stones;
    for (auto _ : state) {
        std::int64_t sum = 0;
        for (const auto& stone : stones)
            sum += stone->field;
        benchmark::DoNotOptimize(sum);
    }
}

template <class Work>
void Time_Once(benchmark::State& state, Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(spent.count());
}

void Load(benchmark::State& state, std::int64_t size) {
    for (auto _ : state) {
        files->content = samples[size].bytes;
        Time_Once(state, [] { benchmark::DoNotOptimize(Load_Reminders(u"bench"_s)); });
        Global_Reminders.clear();
    }
}

void Save(benchmark::State& state, std::int64_t size) {
    Global_Reminders.swap(samples[size].reminders);
    for (auto _ : state)
        Time_Once(state, [] { benchmark::DoNotOptimize(Save_Reminders(u"bench"_s)); });
    Global_Reminders.swap(samples[size].reminders);
}

// Only as much as it takes to find the end of each record.
std::int64_t Walk_Lengths(const std::string& bytes) {
    RecordReader stream(bytes);
    const auto skip = [&stream](std::int64_t count) {
        stream.Get_Header(static_cast<std::size_t>(count));
    };
    skip(12);
    const std::int32_t count = stream.Get_Long();
    for (std::int32_t index = 0; index < count; ++index) {
        skip(35);
        skip(stream.Get_Long());
        skip(stream.Get_Long());
        skip(32);
        skip(stream.Get_Long());
        for (int function = 0; function < ReminderClass::FunctionCount; ++function) {
            skip(3);
            skip(stream.Get_Integer());
            skip(1);
            skip(stream.Get_Integer());
        }
        skip((stream.Get_Long() + 1) * 8);
        skip(stream.Get_Long());
        skip(stream.Get_Long());
        skip(16);
    }
    return stream.Failed() ? -1 : stream.Position();
}

void Lengths(benchmark::State& state, std::int64_t size) {
    const std::string& bytes = samples[size].bytes;
    if (Walk_Lengths(bytes) != static_cast<std::int64_t>(bytes.size()) + 1)
        state.SkipWithError("the walk over the lengths lost its way");
    for (auto _ : state)
        Time_Once(state, [&bytes] { benchmark::DoNotOptimize(Walk_Lengths(bytes)); });
}

// Keeps the times of every round, in seconds; shows nothing.
class RoundReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                times[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                            static_cast<double>(run.iterations));
            }
        }
    }
    double Median(const std::string& name, std::int64_t size) {
        std::vector<double>& all = times[name + '/' + std::to_string(size)];
        if (all.empty()) {
            return 0;
        }
        std::sort(all.begin(), all.end());
        return all[all.size() / 2];
    }

private:
    std::map<std::string, std::vector<double>> times;
};

std::string Microseconds(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%.0f us", seconds * 1e6);
    return text;
}

void Print(RoundReporter& reporter, const std::string& what, const std::string& subject,
           const std::string& yardstick, double limit) {
    const double small = reporter.Median(subject, sizes[0]);
    const double spent = reporter.Median(subject, sizes[1]);
    const double plain = reporter.Median(yardstick, sizes[1]);
    Print_Row({what + ", 100,000 reminders", Microseconds(spent),
               Microseconds(plain) + " " + yardstick, spent / plain, limit, spent / small,
               reporter.Median(subject, sizes[2]) / small});
}

void Register(const char* name, std::int64_t size, void (*run)(benchmark::State&, std::int64_t),
              bool manual) {
    auto* bench = benchmark::RegisterBenchmark((name + ("/" + std::to_string(size))).c_str(),
                                               [run, size](benchmark::State& s) { run(s, size); });
    bench->Repetitions(rounds)->MinTime(0.1)->Unit(benchmark::kMicrosecond);
    if (manual)
        bench->UseManualTime();
}

} // namespace

int main(int argc, char** argv) {
    FakeClock clock;
    MemoryFiles memory;
    wallClock = &clock;
    files = &memory;
    platform::Files::Provide(&memory);
    Init_TimeRoutines();
    Init_Reminders();

    std::vector<std::string> arguments(argv, argv + argc);
    arguments.emplace_back("--benchmark_enable_random_interleaving=true");
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    for (const std::int64_t size : sizes) {
        Make_Sample(size);
        Register("tick", size, Tick, false);
        Register("newday", size, New_Day, false);
        Register("walk", size, Walk, false);
        Register("load", size, Load, true);
        Register("lengths", size, Lengths, true);
        Register("save", size, Save, true);
    }
    RoundReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    Print(reporter, "a check", "tick", "walk", 3);
    // The first check of a day is to stay below a frame.
    const double newDay = reporter.Median("newday", sizes[1]);
    const double small = reporter.Median("newday", sizes[0]);
    Print_Row({"first check of a day, 100,000 reminders", Microseconds(newDay), "16,667 us frame",
               newDay / Frame, 1, newDay / small, reporter.Median("newday", sizes[2]) / small});
    Print(reporter, "load", "load", "lengths", 10);
    Print(reporter, "save", "save", "load", 2);
    platform::Files::Provide(nullptr);
    return 0;
}
