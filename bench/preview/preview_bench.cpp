// Looking for a game's picture in large directories, against reading such a directory once.

#include <array>
#include <cstdio>
#include <dirent.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

#include "core/form1.h"
#include "hosts/linux/file_system_linux.h"
#include "hosts/linux/name_indexes.h"
#include "ratio/ratio.h"
#include "ui/layout.h"
#include "ui/preview_pictures.h"

namespace {

using namespace kivu;
namespace fs = std::filesystem;

constexpr int fileCount = 100'000;  // in each of the two directories
constexpr int rounds = 200;         // a single selection is too short to time

// Images and pictures of a large collection, beside one another on the disk.
class Collection {
 public:
    Collection() {
        std::string pattern = (fs::temp_directory_path() / "kivu-preview-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) throw std::runtime_error("no directory to work in");
        root = pattern;
        Fill(Games(), ".adf");
        Fill(Pictures(), ".png");
        // From here on nothing changes any more.
        for (const std::string& directory : {Games(), Pictures()})
            fs::last_write_time(directory,
                                fs::file_time_type::clock::now() - std::chrono::hours(1));
    }
    ~Collection() {
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

    std::string Profile() const { return root + "/Config/Amiga/"; }
    std::string Games() const { return root + "/roms/games/"; }
    std::string Pictures() const { return Profile() + "Pictures/"; }

 private:
    static void Fill(const std::string& directory, const std::string& ending) {
        fs::create_directories(directory);
        static constexpr std::array<const char*, 4> titles{"Turrican", "Monkey Island",
                                                           "North and South", "Xenon"};
        for (int i = 0; i < fileCount; ++i) {
            const std::string name = std::string(titles[static_cast<std::size_t>(i) % 4]) + " " +
                                     std::to_string(i * 7919LL % 1'000'003) + " (1990)(Maker)";
            std::ofstream(directory + name + ending);
        }
    }

    std::string root;
};

class NoPictures : public ui::PictureLoading {
 public:
    void Load(const std::string&, forms::PictureBox&, std::function<void(bool)>) override {}
    void Drop(forms::PictureBox&) override {}
    bool LoadSkin(const std::string&, const std::string&,
                  std::function<void(forms::Picture)>) override {
        return false;
    }
};

class AtOnce : public platform::Background {
 public:
    void Run(std::function<void()> work, std::function<void()> done) override { work(), done(); }
};

// A game of which no try finds a picture.
struct Window {
    explicit Window(const Collection& collection) {
        form.StartPfad = collection.Profile();
        form.TxtRomPath.SetText(collection.Games());
        form.UAE_FULL.AddItem(collection.Games() + "Nowhere (1990)(Maker)(Disk 1 of 2).adf");
        previews.ShowGamePreview(0);
    }

    hosts::LinuxFileSystem files;
    AtOnce background;
    NoPictures loader;
    core::Form1 form{forms::Toolkit{}};
    ui::Layout layout{form};
    ui::PreviewPictures previews{form, {files, background}, layout, loader};
};

double Selection(Window& window) {
    const double seconds = bench::Seconds([&] {
        for (int round = 0; round < rounds; ++round)
            window.previews.ShowGamePreview(0);
    });
    if (window.form.VorschauBild.Visible()) throw std::runtime_error("there is a picture");
    return seconds / rounds;
}

double Pass(const std::string& directory) {
    int count = 0;
    const double seconds = bench::Seconds([&] {
        DIR* opened = ::opendir(directory.c_str());
        if (!opened) return;
        while (::readdir(opened))
            ++count;
        ::closedir(opened);
    });
    if (count < fileCount) throw std::runtime_error("the directory could not be read");
    return seconds;
}

double Building(const Collection& collection, const hosts::LinuxFileSystem& files,
                std::size_t* bytes) {
    hosts::NameIndexes indexes;
    const double seconds = bench::Seconds([&] {
        for (const std::string& directory : {collection.Games(), collection.Pictures()})
            if (!indexes.Of(directory,
                            [&](const std::string& path) { return files.ReadDirectory(path); }))
                throw std::runtime_error("no index");
    });
    if (bytes) *bytes = indexes.Bytes();
    return seconds;
}

}  // namespace

int main(int argc, char** argv) {
    const Collection collection;
    Window window(collection);
    bench::Ratio selection;
    selection.name = "look-ups of a selection against reading a directory once";
    selection.goal = 0.01;
    selection.ours = [&] { return Selection(window); };
    selection.yardstick = [&] { return Pass(collection.Games()); };
    selection.repetitions = 20;
    bench::Ratio building;
    building.name = "both indexes of names built against reading both once";
    building.goal = 2.5;
    building.ours = [&] { return Building(collection, window.files, nullptr); };
    building.yardstick = [&] { return Pass(collection.Games()) + Pass(collection.Pictures()); };
    building.repetitions = 20;
    bench::Ratio memory;
    memory.name = "memory of both indexes against 150 bytes a name";
    memory.goal = 1;
    memory.unit = "MB";
    memory.ours = [&] {
        std::size_t bytes = 0;
        Building(collection, window.files, &bytes);
        return static_cast<double>(bytes) / 1e6;
    };
    memory.yardstick = [] { return 150.0 * 2 * fileCount / 1e6; };
    memory.repetitions = 1;
    return bench::RunRatios(argc, argv, {selection, building, memory});
}
