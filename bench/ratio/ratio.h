#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kivu::bench {

// Our way of doing something against a yardstick, on the same machine in the same run.
struct Ratio {
    // One repetition; gives the seconds that count, or throws std::runtime_error if it could not
    // be done.
    using Run = std::function<double()>;

    std::string name;
    double goal = 1;  // ours by yardstick is to be at most this
    Run ours;
    Run yardstick;
    int repetitions = 50;
    // What is measured: "ms" for seconds, which are shown as milliseconds; "MB" for megabytes.
    std::string unit = "ms";
};

// Runs the repetitions of all sides in a random order, so that a slow minute of the machine meets
// everybody, and writes a line for each ratio to standard output, its fields parted by tabs: name,
// the least of ours, the least of the yardstick, goal, unit. Gives the exit code of the program:
// not 0 when a run failed or an option is unknown. Takes the options of Google Benchmark.
int RunRatios(int argc, char** argv, const std::vector<Ratio>& ratios);

// Seconds that a call takes by the steady clock.
double Seconds(const std::function<void()>& call);

}  // namespace kivu::bench
