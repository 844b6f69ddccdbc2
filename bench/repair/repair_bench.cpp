// The repair of favourites that have all gone, against the one that writes, reads and walks step by
// step. Both work on the real disk.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "core/form1.h"
#include "favourites/repair_favoriten.h"
#include "hosts/linux/file_system_linux.h"
#include "ratio/ratio.h"
#include "repair/plain_repair.h"
#include "testing/quiet_ports.h"

namespace {

using namespace kivu;
namespace fs = std::filesystem;

constexpr int games = 31999;
constexpr int missing = 1001;

struct Silent : platform::Dialogs, platform::EventPump, platform::Clock {
    platform::Answer MessageBox(const std::string& text, const std::string&, platform::Buttons,
                                platform::Icon) override {
        report = text;
        return platform::Answer::Ok;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    void DoEvents() override {}
    platform::TimeOfDay Now() const override { return {}; }
    std::chrono::milliseconds Steady() const override { return {}; }
    void Rest(std::chrono::milliseconds) override {}

    std::string report;
};

std::string GameName(int number) {
    return "Game of Some Words " + std::to_string(10000 + number) + " (1990)(Maker)(Disk 1 of 2)";
}

// A program directory with the favourites; the disk is the one of temporary files.
class Directory {
 public:
    Directory() {
        std::string name = (fs::temp_directory_path() / "kivu-repair-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no directory");
        root = name;
        fs::create_directories(root / "Config" / "Amiga");
    }
    ~Directory() {
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    fs::path Store() const { return root / "Config" / "Amiga" / "Favoriten.ini"; }

    fs::path root;
};

struct Outcome {
    std::string report;
    std::string bytes;
};

// Repairs a new store, and gives the seconds of that alone.
template <typename Run>
double Repair(const Directory& directory, Outcome& outcome, Run run) {
    std::ofstream store(directory.Store(), std::ios::binary | std::ios::trunc);
    store << "[Favoriten]\r\n";
    for (int number = 0; number < missing; ++number) {
        const std::string key = "Fav" + std::to_string(number);
        const std::string name = "Lost " + GameName(number);
        store << key << "_Name=" << name << "\r\n"
              << key << "_FullPath=/Roms/" << name << ".adf\r\n";
    }
    store.close();

    hosts::LinuxFileSystem files;
    Silent host;
    core::Form1 form{forms::Toolkit{}};
    form.AppDir = directory.root.string() + "/";
    form.FavoritenIni = directory.Store().string();
    profile::Ini ini(files);
    core::EventPacer pacer(host, host);
    core::BusyState busy(form, host);
    testing::QuietGames lists;
    favourites::Favoriten favourites(form, ini, files, lists);
    for (int number = 0; number < games; ++number)
        form.UAE_FULL.AddItem(form.AppDir + "Roms/" + GameName(number) + ".adf");
    favourites.LoadFavoriten();
    if (form.FavoritenListe.ListCount() != missing) throw std::runtime_error("no favourites");
    const double seconds = bench::Seconds([&] { run(form, favourites, busy, pacer, host, files); });
    std::ostringstream bytes;
    bytes << std::ifstream(directory.Store(), std::ios::binary).rdbuf();
    outcome = {host.report, bytes.str()};
    return seconds;
}

}  // namespace

int main(int argc, char** argv) {
    const Directory directory;
    Outcome plain, ours;
    bench::Ratio ratio;
    ratio.name = "repair of 1,001 lost favourites against step by step";
    ratio.goal = 0.02;
    ratio.repetitions = 2;
    ratio.ours = [&] {
        return Repair(directory, ours,
                      [](auto& form, auto& store, auto& busy, auto& pacer, auto& dialogs, auto&) {
                          favourites::Repair(form, store, busy, pacer, dialogs).RepairFavoriten();
                      });
    };
    ratio.yardstick = [&] {
        return Repair(
            directory, plain,
            [](auto& form, auto& store, auto& busy, auto& pacer, auto& dialogs, auto& files) {
                bench::PlainRepair(form, store, busy, pacer, dialogs, files).RepairFavoriten();
            });
    };
    const int code = bench::RunRatios(argc, argv, {ratio});
    const bool both = !plain.bytes.empty() && !ours.bytes.empty();
    if (both && (plain.bytes != ours.bytes || plain.report != ours.report)) {
        std::fprintf(stderr, "the two repairs come out differently\n");
        return EXIT_FAILURE;
    }
    return code;
}
