// From the start of the process to the first frame on the screen, with a long list in it, and what
// the program takes of the machine from then on.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <thread>

#include "collection.h"
#include "library/file_scan_recursive.h"
#include "ratio/ratio.h"
#include "screen.h"

namespace {

using namespace kivu;
using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;

constexpr int emulators = 100;
constexpr int games = library::FileScanRecursive::limit;
constexpr double frame = 1.0 / 60;  // seconds
// A start has more to do after its first frame.
constexpr auto settling = 1s;
constexpr auto resting = 3s;

using Words = std::vector<std::string>;

// A program on a screen, after its first frame.
struct Started {
    std::unique_ptr<bench::ChildProcess> program;
    double seconds = 0;  // to the first frame
    std::chrono::nanoseconds begin{};
};

class Starter {
 public:
    explicit Starter(std::filesystem::path home) : home(std::move(home)) {}

    Started Start(const Words& words, const Words& more = {},
                  const std::string& errors = "/dev/null") {
        screen.WaitUntilEmpty();
        Words environment{"DISPLAY=" + screen.Name(),
                          "QT_QPA_PLATFORM=xcb",
                          "LC_ALL=C.UTF-8",
                          "HOME=" + home.string(),
                          "XDG_CONFIG_HOME=" + home.string(),
                          "XDG_RUNTIME_DIR=" + home.string()};
        environment.insert(environment.end(), more.begin(), more.end());
        Started started;
        bool painted = false;
        started.begin = SteadyClock::now().time_since_epoch();
        started.seconds = bench::Seconds([&] {
            started.program = std::make_unique<bench::ChildProcess>(words, environment, errors);
            painted = screen.WaitForFirstFrame([&] { return started.program->Runs(); });
        });
        if (!painted) throw std::runtime_error(words[0] + " has painted nothing");
        return started;
    }

 private:
    bench::Screen screen;
    std::filesystem::path home;
};

std::filesystem::path ProcessFile(const Started& started, const char* name) {
    return std::filesystem::path("/proc") / std::to_string(started.program->Id()) / name;
}

double ResidentMegabytes(const Started& started) {
    std::ifstream status(ProcessFile(started, "status"));
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == "VmRSS:" && status >> kilobytes) return kilobytes / 1024;
    }
    throw std::runtime_error("the memory of a process is not told");
}

// That all threads have run so far.
double ProcessorSeconds(const Started& started) {
    double nanoseconds = 0;
    for (const auto& thread : std::filesystem::directory_iterator(ProcessFile(started, "task"))) {
        double ran = 0;
        std::ifstream(thread.path() / "schedstat") >> ran;
        nanoseconds += ran;
    }
    return nanoseconds / 1e9;
}

bench::Ratio StartRatio(Starter& starter, const std::string& name, const Words& program,
                        const std::function<void()>& prepare) {
    bench::Ratio ratio;
    ratio.name = name;
    ratio.goal = 1.5;
    ratio.repetitions = 15;
    ratio.ours = [&starter, program, prepare] {
        prepare();
        return starter.Start(program).seconds;
    };
    ratio.yardstick = [&starter] {
        return starter.Start({KIVU_BARE_QT, std::to_string(games)}).seconds;
    };
    return ratio;
}

bench::Ratio MemoryRatio(Starter& starter, const Words& program) {
    bench::Ratio ratio;
    ratio.name = "memory with 31,999 games against a bare Qt list";
    ratio.goal = 1.3;
    ratio.repetitions = 2;
    ratio.unit = "MB";
    const auto taken = [&starter](const Words& words) {
        const Started started = starter.Start(words);
        std::this_thread::sleep_for(settling);
        return ResidentMegabytes(started);
    };
    ratio.ours = [taken, program] { return taken(program); };
    ratio.yardstick = [taken] { return taken({KIVU_BARE_QT, std::to_string(games)}); };
    return ratio;
}

bench::Ratio IdleRatio(Starter& starter, const Words& program) {
    bench::Ratio ratio;
    ratio.name = "processor time in three seconds of rest against a frame";
    ratio.goal = 1;
    ratio.repetitions = 2;
    ratio.ours = [&starter, program] {
        const Started started = starter.Start(program);
        std::this_thread::sleep_for(settling);
        const double before = ProcessorSeconds(started);
        std::this_thread::sleep_for(resting);
        return ProcessorSeconds(started) - before;
    };
    ratio.yardstick = [] { return frame; };
    return ratio;
}

// The least milliseconds from the start to each stage that the program tells of.
void PrintStages(Starter& starter, const Words& program, const std::filesystem::path& messages) {
    std::vector<std::string> stages;
    std::map<std::string, double> least;
    const auto note = [&](const std::string& stage, double seconds) {
        const auto [known, isNew] = least.emplace(stage, seconds);
        if (isNew) stages.push_back(stage);
        known->second = std::min(known->second, seconds);
    };
    for (int round = 0; round < 10; ++round) {
        const Started started =
            starter.Start(program,
                          {"QT_LOGGING_RULES=kivu.start.debug=true",
                           "QT_MESSAGE_PATTERN=%{message}", "QT_FORCE_STDERR_LOGGING=1"},
                          messages.string());
        std::ifstream lines(messages);
        for (std::string line; std::getline(lines, line);) {
            const std::size_t tab = line.find('\t');
            if (tab == std::string::npos) continue;
            const std::chrono::nanoseconds at(std::atoll(line.c_str() + tab));
            note(line.substr(0, tab), std::chrono::duration<double>(at - started.begin).count());
        }
        note("first frame", started.seconds);
    }
    std::printf("Stages of the start:");
    for (const std::string& stage : stages)
        std::printf(" %s %.1f ms%s", stage.c_str(), least[stage] * 1000,
                    stage == stages.back() ? "\n" : ",");
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const bench::TemporaryDirectory directory;
        const std::filesystem::path home = directory.Path() / "home";
        std::filesystem::create_directory(home);
        std::filesystem::permissions(home, std::filesystem::perms::owner_all);
        bench::MakeProgramDirectory(directory.Path(), emulators, games);
        // The launcher's data lies beside its program file.
        const std::filesystem::path program = directory.Path() / "Kivu";
        std::filesystem::copy_file(KIVU_PROGRAM, program);
        const Words words{program.string()};

        Starter starter(home);
        // The very first starts fill the font cache.
        starter.Start(words);
        starter.Start({KIVU_BARE_QT, std::to_string(games)});
        const auto asNew = [&] { bench::WriteProfiles(directory.Path(), emulators); };
        const auto asUsed = [&] {
            if (std::filesystem::file_size(directory.Path() / "Config" / "Kivu.ini") < 100)
                starter.Start(words);
        };
        const int result = bench::RunRatios(
            argc, argv,
            {StartRatio(starter, "start to first frame, 31,999 games, against a bare Qt list",
                        words, asUsed),
             StartRatio(starter, "first start to first frame, against a bare Qt list", words,
                        asNew),
             MemoryRatio(starter, words), IdleRatio(starter, words)});
        PrintStages(starter, words, directory.Path() / "messages");
        return result;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
