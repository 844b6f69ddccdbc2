#include "ratio/ratio.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <map>
#include <stdexcept>

namespace kivu::bench {

namespace {

// Keeps the least time of each side.
class LeastTimes : public benchmark::BenchmarkReporter {
 public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            const std::string& side = run.run_name.function_name;
            if (run.error_occurred) {
                std::fprintf(stderr, "%s: %s\n", side.c_str(), run.error_message.c_str());
                failed = true;
                continue;
            }
            const double seconds =
                run.real_accumulated_time / static_cast<double>(std::max<long>(run.iterations, 1));
            const auto [place, isFirst] = least.emplace(side, seconds);
            if (!isFirst) place->second = std::min(place->second, seconds);
        }
    }

    std::map<std::string, double> least;
    bool failed = false;
};

void Register(const std::string& side, const Ratio::Run& run, int repetitions) {
    benchmark::RegisterBenchmark(side.c_str(),
                                 [run](benchmark::State& state) {
                                     for (auto round : state) {
                                         (void)round;
                                         try {
                                             state.SetIterationTime(run());
                                         } catch (const std::runtime_error& error) {
                                             state.SkipWithError(error.what());
                                             return;
                                         }
                                     }
                                 })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(repetitions);
}

std::string OurSide(const Ratio& ratio) {
    return ratio.name + ", ours";
}

std::string Yardstick(const Ratio& ratio) {
    return ratio.name + ", yardstick";
}

}  // namespace

int RunRatios(int argc, char** argv, const std::vector<Ratio>& ratios) {
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleaved.data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    for (const Ratio& ratio : ratios) {
        Register(OurSide(ratio), ratio.ours, ratio.repetitions);
        Register(Yardstick(ratio), ratio.yardstick, ratio.repetitions);
    }
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::Shutdown();

    for (const Ratio& ratio : ratios) {
        const auto ours = times.least.find(OurSide(ratio));
        const auto yardstick = times.least.find(Yardstick(ratio));
        if (ours == times.least.end() || yardstick == times.least.end()) continue;
        std::printf("%s\t%.6f\t%.6f\t%g\t%s\n", ratio.name.c_str(), ours->second, yardstick->second,
                    ratio.goal, ratio.unit.c_str());
    }
    return times.failed ? 1 : 0;
}

double Seconds(const std::function<void()>& call) {
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace kivu::bench
