#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "ui/layout.h"
#include "ui/preview_pictures.h"

namespace kivu::ui {

// A disk that tells where it was looked into.
struct WatchedDisk : kivu::testing::MemoryFileSystem {
    std::optional<std::string> FirstMatch(const std::string& directory, std::string_view prefix,
                                          std::string_view ending,
                                          std::string_view preferredStem) const override {
        looks.push_back(directory + std::string(prefix) + "*" +
                        (ending.empty() ? ".*" : std::string(ending)));
        return MemoryFileSystem::FirstMatch(directory, prefix, ending, preferredStem);
    }
    mutable std::vector<std::string> looks;
};

// Shows every file at once as a picture of this size, or when it is let.
struct ScriptedLoader : PictureLoading {
    void Load(const std::string& path, forms::PictureBox& target,
              std::function<void(bool)> done) override {
        target.SetPicture({});
        pending = [this, path, &target, done] {
            const bool shown = !path.ends_with(".nfo");
            if (shown) {
                auto bitmap = std::make_shared<forms::Bitmap>();
                bitmap->width = bitmap->height = 1;
                target.SetPicture({path, bitmap});
                target.Move(target.Left(), target.Top(), width, height);
            }
            done(shown);
        };
        if (!late) Let();
    }
    void Drop(forms::PictureBox&) override { pending = nullptr; }
    bool LoadSkin(const std::string&, const std::string&,
                  std::function<void(forms::Picture)>) override {
        return false;
    }
    void Let() {
        if (const auto run = std::exchange(pending, nullptr)) run();
    }

    std::function<void()> pending;
    bool late = false;
    int width = 4800, height = 3840;
};

// The collection of an Amiga, with one game.
struct PreviewRoom : ::testing::Test {
    PreviewRoom() {
        form.ConfigPath = "/opt/kivu/Config/";
        form.StartPfad = "/opt/kivu/Config/Amiga 500/";
        form.TxtRomPath.SetText("/roms/amiga/");
        form.txtWinUAEExe.SetText("/emu/uae/fs-uae");
        disk.AddDirectory(form.StartPfad);
        disk.AddDirectory("/roms/amiga");
        disk.AddFile("/emu/uae/fs-uae", "x");
        form.EmuListbox.AddItem("Amiga 500");
        form.VorschauBild.onResize = [this] { layout.VorschauBild_Resize(); };
        form.Move(0, 0, 14400, 10200);
        form.WindowReady = true;
        layout.Form_Resize();
        previews.hooks.StartEmulator = [this](const std::string& name, bool ask) {
            started.push_back(name + (ask ? "?" : ""));
        };
        Game("Turrican (1990)(Rainbow)(Disk 1 of 2).adf");
    }
    void Game(const std::string& name) {
        form.UAE_FULL.Clear();
        form.UAE_FULL.AddItem("/roms/amiga/" + name);
        form.UAE_Short.Clear();
        form.UAE_Short.AddItem(name);
        form.UAE_Short.SetListIndex(0);
    }
    void MakeAllDirectories() {
        for (const char* name : {"/opt/kivu/Config/Amiga 500/Pictures", "/roms/snap",
                                 "/roms/Titles", "/emu/uae/Titles", "/emu/uae/Pictures"})
            disk.AddDirectory(name);
    }
    void Files(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            disk.AddFile(name, "x");
    }
    // The file on view; "(none)", or "(empty)" for a frame that shows nothing.
    std::string Shown() const {
        if (!form.VorschauBild.Visible()) return "(none)";
        const bool seen = form.GamePictureVis.Visible() || form.GamePicture.Visible();
        const std::string& source = form.GamePictureVis.GetPicture().source;
        return seen && !source.empty() ? source : "(empty)";
    }
    std::string ShowGame(const std::string& name) {
        Game(name);
        previews.ShowGamePreview(0);
        return Shown();
    }

    WatchedDisk disk;
    kivu::testing::ScriptedHost host{disk};
    core::Form1 form{forms::Toolkit{}};
    Layout layout{form};
    ScriptedLoader loader;
    PreviewPictures previews{form, {disk, host.background}, layout, loader};
    std::vector<std::string> started;
};

}  // namespace kivu::ui
