#pragma once

#include <string>

#include "scenarios/scenario.h"
#include "testing/picture_files.h"

namespace kivu::scenarios {

// Pictures of Ant, of Bee and of both emulators; Beta's Cat has none.
class PreviewScenario : public LoadedScenario {
 protected:
    PreviewScenario() {
        options.language = "English";
        Paint("Config/Alpha/Pictures/Ant (1990).bmp");
        Paint("Roms/Alpha/Bee (1991)(Maker).png");
        Paint("Config/Alpha/Skin/Alpha.bmp");
        Paint("Config/Beta/Skin/Loading.bmp");
    }
    // A picture of so many pixels.
    void Paint(const std::string& name, unsigned width = 32, unsigned height = 24) {
        tree.Write(name, name.ends_with(".png") ? testing::PngFile(width, height, 0xff336699)
                                                : testing::BmpHead(width, height));
    }
    // The name of the file on view; "(none)", or "(empty)" for a frame that shows nothing.
    std::string Shown() {
        if (!Visible("VorschauBild")) return "(none)";
        const bool seen = Visible("GamePictureVis") || Visible("GamePicture");
        const std::string path = Text("GamePictureVis.Picture");
        if (!seen || path.empty()) return "(empty)";
        return path.substr(path.find_last_of("/\\") + 1);
    }
    bool Zoomed() { return Visible("GamePicture") && Visible("VorschauBild"); }
    void Zoom() {
        Do("click", "Form1.GamePictureVis");
        EXPECT_TRUE(Zoomed());
    }
    int Number(const std::string& name) { return Get(name).get<int>(); }
    // The frame stands where it stands without a zoom.
    bool InPlace() {
        return !Visible("GamePicture") &&
               Number("SettingsFrame.Top") ==
                   Number("VorschauBild.Top") + Number("VorschauBild.Height") &&
               Number("VorschauBild.Left") == Number("SettingsFrame.Left") &&
               Number("GamePictureVis.Width") == Number("VorschauBild.Width") &&
               Number("GamePictureVis.Height") == Number("VorschauBild.Height");
    }
    void SearchAllFor(const char* text) {
        Do("set", "Form1.SearchDblsTxt.Text", text);
        Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    }
    void ChooseEmulator(int row) {
        Do("focus", "Form1.EmuListbox");
        Do("dblclick", "Form1.EmulatorLongListbox", row);
    }
    const std::string ant = "Ant (1990).bmp", bee = "Bee (1991)(Maker).png";
};

}  // namespace kivu::scenarios
