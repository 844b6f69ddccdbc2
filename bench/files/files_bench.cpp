// The dialog for files over a directory of 100,000, against a plain listing of the same directory.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "forms/window_host.h"
#include "hosts/linux/file_system_linux.h"
#include "hosts/linux/user_store_linux.h"
#include "platform/beeper.h"
#include "ratio/ratio.h"
#include "support/directory_lists.h"
#include "support/file_dialog_window.h"
#include "text/collation.h"

namespace {

using namespace kivu;

constexpr int files = 100'000;

// Gone with the program.
class Directory {
 public:
    Directory() : path(std::filesystem::temp_directory_path() / "kivu-bench-files") {
        std::filesystem::remove_all(path);
        std::filesystem::create_directory(path);
        for (int i = 0; i < files; ++i) {
            // In no order.
            const int number = static_cast<int>(i * 7919LL % files);
            std::ofstream(path / ("Game " + std::to_string(number) + " (1990)(Maker).adf"));
        }
    }
    ~Directory() { std::filesystem::remove_all(path); }
    const std::filesystem::path path;
};

class Order : public forms::Collation {
 public:
    int Compare(std::string_view a, std::string_view b) const override {
        return text::CompareText(a, b);
    }
    std::uint64_t Rank(std::string_view text) const override { return text::SortRank(text); }
};

class Silent : public platform::ProgramStarter, public platform::Dialogs, public platform::Beeper {
 public:
    void Beep() override {}
    std::error_code Run(const platform::StartRequest&) override { return {}; }
    std::error_code RunAndWait(const platform::StartRequest&,
                               const std::function<bool()>&) override {
        return {};
    }
    std::error_code EditText(const std::string&) override { return {}; }
    bool UsesShell() const override { return true; }
    std::error_code Open(const std::string&) override { return {}; }
    platform::Answer MessageBox(const std::string&, const std::string&, platform::Buttons,
                                platform::Icon) override {
        return platform::Answer::Ok;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
};

class NoScreen : public forms::WindowHost {
 public:
    forms::Size Room(const forms::Form*) const override { return {}; }

 protected:
    void Serve(forms::Form&, const std::function<bool()>&) override {}
};

// From the question to the rows.
double Ours(const Directory& directory) {
    hosts::LinuxFileSystem disk;
    hosts::LinuxUserStore store;
    Silent silent;
    Order order;
    NoScreen screen;
    support::DirectoryLists lists(disk);
    support::FilesWindow window(forms::Toolkit{nullptr, &order, &lists, &screen}, false,
                                {disk, store, silent, silent}, silent);
    const double seconds = bench::Seconds([&] {
        window.Ask({support::FilesForm::openFile, directory.path.string(), "", "*.adf"});
    });
    if (window.GetForm().File1.ListCount() != files)
        throw std::runtime_error("the dialog does not show all files");
    return seconds;
}

double Plain(const Directory& directory) {
    std::vector<std::string> names;
    const double seconds = bench::Seconds([&] {
        for (const auto& entry : std::filesystem::directory_iterator(directory.path))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
    });
    if (names.size() != static_cast<std::size_t>(files))
        throw std::runtime_error("the listing is not whole");
    return seconds;
}

}  // namespace

int main(int argc, char** argv) {
    const Directory directory;
    bench::Ratio ratio;
    ratio.name = "dialog over 100,000 files against a plain sorted listing";
    ratio.goal = 2;
    ratio.ours = [&directory] { return Ours(directory); };
    ratio.yardstick = [&directory] { return Plain(directory); };
    ratio.repetitions = 10;
    return bench::RunRatios(argc, argv, {ratio});
}
