// The launcher's long jobs against what the same data costs at the least.

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

#include "collection.h"
#include "headless_host.h"
#include "ratio/ratio.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;

constexpr int scannedFiles = 30000;
constexpr int games = library::FileScanRecursive::limit;

void Check(bool held, const char* otherwise) {
    if (!held) throw std::runtime_error(otherwise);
}

// A launcher over a data directory of its own.
struct Fixture {
    explicit Fixture(int emulators) {
        bench::MakeProgramDirectory(directory.Path(), emulators, games);
        launcher = std::make_unique<wiring::Launcher>(host.Services(directory.Path().string()),
                                                      nullptr, [] {});
        launcher->Start();
    }

    core::Form1& Window() { return launcher->MainWindow(); }

    bench::TemporaryDirectory directory;
    bench::HeadlessHost host;
    std::unique_ptr<wiring::Launcher> launcher;
};

// Runs `find` over the directory, its output thrown away.
void Find(const std::string& directory) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::string words[] = {"find", directory, "-type", "f"};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(),
                         nullptr};
    pid_t child = 0;
    const int failure = posix_spawnp(&child, "find", &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    Check(failure == 0, "find cannot be started");
    int status = 0;
    Check(waitpid(child, &status, 0) == child && status == 0, "find failed");
}

bench::Ratio ScanRatio(Fixture& fixture) {
    // Made when it is first wanted: a filter may leave the scan out.
    const auto tree = [&fixture] {
        const std::filesystem::path path = fixture.directory.Path() / "Tree";
        if (!std::filesystem::exists(path))
            bench::MakeFiles(path, bench::CollectionPaths(scannedFiles));
        return path.string();
    };
    bench::Ratio ratio;
    ratio.name = "scan of 30,000 files against find -type f";
    ratio.goal = 1;
    ratio.ours = [&fixture, tree] {
        library::FileScanRecursive& scanner = fixture.launcher->All().scanner;
        const std::string path = tree();
        return bench::Seconds([&] {
            const int found =
                scanner.ScanFiles(path, "*.*", "Scan: ", &fixture.Window().LoadingBtn);
            Check(found == scannedFiles, "the scan has lost files");
            // A look at the first row: the list is in order from here on.
            Check(!scanner.Result_list().List(0).empty(), "the scan's list is empty");
        });
    };
    ratio.yardstick = [tree] {
        const std::string path = tree();
        return bench::Seconds([&] { Find(path); });
    };
    return ratio;
}

bench::Ratio SortedFillRatio() {
    const auto order = std::make_shared<wiring::TextOrder>();
    const auto rows =
        std::make_shared<const std::vector<std::string>>(bench::CollectionPaths(games));
    bench::Ratio ratio;
    ratio.name = "sorted list filled with 31,999 rows against std::sort";
    ratio.goal = 1.5;
    ratio.ours = [=] {
        forms::Form form("Form", forms::Toolkit{nullptr, order.get(), nullptr});
        forms::ListBox list(&form, "List", forms::ListControl::Order::sorted);
        return bench::Seconds([&] {
            for (const std::string& row : *rows)
                list.AddItem(row);
            Check(list.Rows().size() == rows->size(), "the list has lost rows");
        });
    };
    ratio.yardstick = [=] {
        std::vector<std::string> sorted = *rows;
        return bench::Seconds([&] {
            std::sort(sorted.begin(), sorted.end(),
                      [&](const std::string& a, const std::string& b) {
                          return order->Compare(a, b) < 0;
                      });
        });
    };
    return ratio;
}

void SwitchTo(Fixture& fixture, int emulator) {
    core::Form1& window = fixture.Window();
    window.EmuListbox.SetListIndex(emulator);
    fixture.launcher->All().emulatorSwitch.SelectEmulator(false);
    Check(window.CurrentEmuIndex == emulator, "the emulator has not been switched to");
    // A look at a row of each, as the window takes one at those in sight.
    Check(window.UAE_FULL.ListCount() == games && window.UAE_Short.ListCount() == games &&
              window.UAE_FULL.List(games - 1).starts_with('/') &&
              !window.UAE_Short.List(games - 1).empty() && !window.WIthoutDoubles.List(1).empty(),
          "the switch has not filled the lists");
}

bench::Ratio SwitchRatio(Fixture& fixture) {
    bench::Ratio ratio;
    ratio.name = "emulator switch with 31,999 games against std::getline";
    ratio.goal = 4;
    ratio.repetitions = 100;
    ratio.ours = [&fixture] {
        const int other = 1 - fixture.Window().CurrentEmuIndex;
        const double before = fixture.host.SecondsWriting();
        const double whole = bench::Seconds([&] { SwitchTo(fixture, other); });
        // The lists stand before the profile is written, and the yardstick writes nothing.
        return whole - (fixture.host.SecondsWriting() - before);
    };
    ratio.yardstick = [&fixture] {
        return bench::Seconds([&] {
            std::ifstream file(bench::CachePath(fixture.directory.Path(), 0));
            std::string line;
            int lines = 0;
            while (std::getline(file, line))
                ++lines;
            Check(lines == 2 * games, "the cache has lost lines");
        });
    };
    return ratio;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        Fixture fixture(2);
        Check(fixture.Window().CurrentEmuIndex == 0, "the launcher has not started");
        return bench::RunRatios(argc, argv,
                                {ScanRatio(fixture), SortedFillRatio(), SwitchRatio(fixture)});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
