// A click that fills the drives, against the plain way to compare the same names.

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/form1.h"
#include "hosts/linux/file_system_linux.h"
#include "launch/drive_slots.h"
#include "ratio/ratio.h"
#include "text/paths.h"

namespace {

using namespace kivu;

constexpr int rounds = 2000;  // a single click is too short to time
constexpr int clicked = 4;    // row in the middle of the others: 4 before it, 14 behind
constexpr int rows = 19;
constexpr std::size_t nameLength = 100;

// Names of 100 characters as neighbours in a collection have them: a few disks of one game among
// other titles with the same facts behind them.
std::vector<std::string> Names() {
    static constexpr const char* titles[] = {"Wonderful Adventures of Captain Comet",
                                             "Wondrous Travels beyond the Silver Moon",
                                             "World of Wires and other Short Stories"};
    std::vector<std::string> names;
    for (int row = 0; row < rows; ++row) {
        const bool sameGame = row >= 3 && row < 6;
        std::string name = sameGame ? "Wolf and Fox in the Enchanted Forest"
                                    : titles[static_cast<std::size_t>(row) % 3];
        name += " (1990)(Some Publisher)(Disk " + std::to_string(row % 9 + 1) + " of 9)[a]";
        name.resize(nameLength - 4, 'x');
        names.push_back(name + ".adf");
    }
    return names;
}

class SilentBeeper : public platform::Beeper {
 public:
    void Beep() override {}
};

// The edit distance by a full table, no limit and nothing left out: what a textbook gives.
int PlainDistance(const std::string& a, const std::string& b) {
    std::vector<std::vector<int>> table(a.size() + 1, std::vector<int>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i)
        table[i][0] = static_cast<int>(i);
    for (std::size_t j = 0; j <= b.size(); ++j)
        table[0][j] = static_cast<int>(j);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const int change = table[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            table[i][j] = std::min({change, table[i - 1][j] + 1, table[i][j - 1] + 1});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
        }
    }
    return table[a.size()][b.size()];
}

struct Panel {
    Panel() : ini(files), drives(form, ini, beeper) {
        int number = 100;
        for (const std::string& name : Names()) {
            form.UAE_FULL.AddItem("/games/" + std::to_string(number++) + "/" + name);
            form.UAE_Short.AddItem(name);
        }
        form.UAE_FULL.SetListIndex(clicked);
        form.UAE_Short.SetListIndex(clicked);
        form.ShortListHasFocus = true;
    }
    int Filled() const {
        return static_cast<int>(std::count_if(form.DiskSlots.begin(), form.DiskSlots.end(),
                                              [](const auto& disk) { return !disk.empty(); }));
    }

    hosts::LinuxFileSystem files;
    SilentBeeper beeper;
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini;
    launch::DriveSlots drives;
};

double Ours(Panel& panel) {
    panel.form.DiskSlots = {};
    const double seconds = bench::Seconds([&] {
        for (int round = 0; round < rounds; ++round)
            panel.drives.SelectSimilarDisks(clicked, 4, 14, 5);
    });
    if (panel.Filled() != 3) throw std::runtime_error("the drives are not filled right");
    return seconds / rounds;
}

double Plain(const std::vector<std::string>& names) {
    int near = 0;
    const double seconds = bench::Seconds([&] {
        for (int round = 0; round < rounds / 10; ++round) {
            for (const std::string& name : names)
                near += PlainDistance(name, names[clicked]) < 5 ? 1 : 0;
        }
    });
    if (near != 3 * rounds / 10) throw std::runtime_error("the plain distance is not right");
    return seconds / (rounds / 10.0);
}

}  // namespace

int main(int argc, char** argv) {
    Panel panel;
    const std::vector<std::string> names = Names();
    bench::Ratio ratio;
    ratio.name = "drives filled for a click against full-table distances";
    ratio.goal = 0.3;
    ratio.ours = [&panel] { return Ours(panel); };
    ratio.yardstick = [&names] { return Plain(names); };
    return bench::RunRatios(argc, argv, {ratio});
}
