// From the start of the process to the first frame on the screen, with a long list in it.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "collection.h"
#include "library/file_scan_recursive.h"
#include "ratio/ratio.h"
#include "screen.h"

namespace {

using namespace kivu;

constexpr int emulators = 100;
constexpr int games = library::FileScanRecursive::limit;

double SecondsToFirstFrame(bench::Screen& screen, const std::filesystem::path& home,
                           const std::vector<std::string>& words) {
    screen.WaitUntilEmpty();
    const std::vector<std::string> environment{"DISPLAY=" + screen.Name(),
                                               "QT_QPA_PLATFORM=xcb",
                                               "LC_ALL=C.UTF-8",
                                               "HOME=" + home.string(),
                                               "XDG_CONFIG_HOME=" + home.string(),
                                               "XDG_RUNTIME_DIR=" + home.string()};
    std::unique_ptr<bench::ChildProcess> program;
    bool painted = false;
    const double seconds = bench::Seconds([&] {
        program = std::make_unique<bench::ChildProcess>(words, environment);
        painted = screen.WaitForFirstFrame([&] { return program->Runs(); });
    });
    if (!painted) throw std::runtime_error(words[0] + " has painted nothing");
    return seconds;
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

        bench::Screen screen;
        bench::Ratio ratio;
        ratio.name = "start to first frame, 31,999 games, against a bare Qt list";
        ratio.goal = 1.5;
        ratio.repetitions = 15;
        ratio.ours = [&] { return SecondsToFirstFrame(screen, home, {program.string()}); };
        ratio.yardstick = [&] {
            return SecondsToFirstFrame(screen, home, {KIVU_BARE_QT, std::to_string(games)});
        };
        // The first starts write the defaults into the profiles and fill the font cache.
        ratio.ours();
        ratio.yardstick();
        return bench::RunRatios(argc, argv, {ratio});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
