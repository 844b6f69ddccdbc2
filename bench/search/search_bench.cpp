// Searching at each key and through the caches of all emulators, against the plainest way over the
// same data.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "collection.h"
#include "forms/user_input.h"
#include "grep_run.h"
#include "headless_host.h"
#include "library/list_cache.h"
#include "library/short_names.h"
#include "ratio/ratio.h"
#include "wiring/routines.h"

namespace {

using namespace kivu;

constexpr int titles = library::FileScanRecursive::limit;
constexpr int emulators = 100;
constexpr int gamesOfEach = 20000;

void Check(bool held, const char* otherwise) {
    if (!held) throw std::runtime_error(otherwise);
}

std::string CacheOf(const std::vector<std::string>& paths, int emulator) {
    std::string cache;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        // Titles that differ, and a word that few of them have.
        const std::string mark = " " + std::to_string(i) + (i % 4000 == 7 ? " Zzyzx" : "");
        const std::size_t slash = paths[i].rfind('/') + 1;
        const std::string path = "../../Collections/" + std::to_string(emulator) + "/" +
                                 paths[i].substr(0, slash) + "E" + std::to_string(emulator) + mark +
                                 " " + paths[i].substr(slash);
        library::AppendCacheEntry(cache, path, library::CutShortName(path, ")", true));
    }
    return cache;
}

// A launcher over many emulators with a list cache each; the first has `titles` games and is the
// one that is loaded.
struct Fixture {
    Fixture() {
        const std::vector<std::string> paths = bench::CollectionPaths(titles);
        const std::vector<std::string> fewer(paths.begin(), paths.begin() + gamesOfEach);
        for (int i = 0; i < emulators; ++i) {
            const std::string name = "Emulator " + std::to_string(1000 + i);
            const std::filesystem::path home = directory.Path() / "Config" / name;
            std::filesystem::create_directories(home);
            std::ofstream(home / "Kivu_Cache.txt", std::ios::binary)
                << CacheOf(i == 0 ? paths : fewer, i);
            caches.push_back((home / "Kivu_Cache.txt").string());
        }
        std::ofstream(directory.Path() / "Config" / "Kivu.ini")
            << "[Settings]\r\nLastEmulator=Emulator 1000\r\n";
        launcher = std::make_unique<wiring::Launcher>(host.Services(directory.Path().string()),
                                                      nullptr, [] {});
        launcher->Start();
        // The many caches of the long search are all of one size.
        std::ofstream(caches[0], std::ios::binary) << CacheOf(fewer, 0);
        Check(Window().WIthoutDoubles.ListCount() > gamesOfEach, "the list has not been loaded");
    }

    core::Form1& Window() { return launcher->MainWindow(); }

    bench::TemporaryDirectory directory;
    bench::HeadlessHost host;
    std::vector<std::string> caches;
    std::unique_ptr<wiring::Launcher> launcher;
};

// The last letter of a text is typed. The rare words stand near the end of the list.
bench::Ratio KeyRatio(Fixture& fixture, const std::string& name, const std::string& text) {
    bench::Ratio ratio;
    ratio.name = name;
    ratio.goal = 0.5;
    ratio.ours = [&fixture, text] {
        core::Form1& form = fixture.Window();
        forms::UserInput hands(form);
        form.Label2.Click();
        form.SearchDblsTxt.SetFocus();
        // Nothing is kept of the round before.
        form.SearchDblsTxt.SetText("another text");
        const std::string before = text.substr(0, text.size() - 1);
        form.SearchDblsTxt.SetField({before, static_cast<int>(before.size()), 0});
        form.WIthoutDoubles.SetListIndex(0);
        const forms::Key last = forms::KeyOf(static_cast<unsigned char>(text.back()));
        return bench::Seconds([&] {
            hands.Stroke(last);
            // A look at the results: they are in order from here on.
            Check(!form.SuchErgList.List(0).empty(), "nothing found");
        });
    };
    const std::string word = text.substr(0, text.find(' '));
    ratio.yardstick = [&fixture, word] {
        const auto& rows = fixture.Window().WIthoutDoubles.Rows();
        return bench::Seconds([&] {
            std::size_t found = 0;
            for (const std::string& row : rows)
                found += strcasestr(row.c_str(), word.c_str()) ? 1 : 0;
            Check(found > 0, "nothing found");
        });
    };
    return ratio;
}

bench::Ratio AllRatio(Fixture& fixture, const std::string& name, const std::string& text) {
    bench::Ratio ratio;
    ratio.name = name;
    ratio.goal = 0.5;
    ratio.repetitions = 15;
    ratio.ours = [&fixture, text] {
        core::Form1& form = fixture.Window();
        form.SearchDblsTxt.SetText(text);
        return bench::Seconds([&] {
            fixture.launcher->All().globalSearch.SearchAllBtn_Click();
            Check(!form.GlobalSearchList.List(0).empty(), "nothing found");
        });
    };
    ratio.yardstick = [&fixture, text] {
        return bench::Seconds([&] { bench::RunGrep(text, fixture.caches); });
    };
    return ratio;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        Fixture fixture;
        const auto& rows = fixture.Window().WIthoutDoubles.Rows();
        const std::string& late = rows[rows.size() - 5];
        const std::string rare = "zzyzx e0";
        std::fprintf(stderr, "rows %zu, such as \"%s\"\n", rows.size(), late.c_str());
        return bench::RunRatios(
            argc, argv,
            {KeyRatio(fixture, "key in the search box, few hits, against strcasestr", rare),
             KeyRatio(fixture, "key in the search box, all rows hit, against strcasestr", "19 e0"),
             KeyRatio(fixture, "first search of a word, few hits, against strcasestr", "zz"),
             KeyRatio(fixture, "first search of a word, all rows hit, against strcasestr", "19"),
             AllRatio(fixture, "search of 100 caches, few hits, against grep -icF", "zzyzx"),
             AllRatio(fixture, "search of 100 caches, frequent letters, against grep -icF",
                      "19999")});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
