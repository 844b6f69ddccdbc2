#pragma once

#include <array>
#include <string>

#include "scenarios/settings.h"

namespace kivu::scenarios {

// The three files that one save of the settings window writes: the program's profile, the
// emulator's, and WinUAE's master configuration.
class SavedFiles : public WinuaeSettings {
 protected:
    using Files = std::array<std::string, 3>;
    static constexpr const char* names[] = {programProfile, profile, "Config/Kivu_Master.uaecfg"};

    // Over fresh files, and with a window whose defaults have been stored before.
    void OpenAgain(std::function<void()> user) {
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"},
                                   {"EmulatorPath", "/Emu/winuae.exe"},
                                   {"WinUAE_UseMasterConfig", "1"}});
        std::filesystem::remove(testing::PathOf(tree.Path(names[2])));
        Start();
        Open([&] {
            Set("TxtMasterConfig.Text", "a=1\r\n");
            Save();
            Key("Escape");
        });
        EXPECT_TRUE(Boxes().empty());
        Open(std::move(user));
    }
    // Something else in each of the files.
    void ChangeAll() {
        Set("ResetScreenRes.Value", 1);
        Set("UAELaunchParaneter.Text", "-x");
        Set("TxtMasterConfig.Text", "b=2\r\n");
    }
    void ExpectNew() {
        EXPECT_EQ(StoredByProgram("ResetScreenResolution"), "1");
        EXPECT_EQ(Stored("EmulatorParameter"), "-x");
        EXPECT_EQ(tree.Read(names[2]), "b=2\r\n\r\n");
    }

    Files OnDisk() const {
        Files files;
        for (std::size_t i = 0; i < files.size(); ++i)
            files[i] = tree.Read(names[i]);
        return files;
    }
    void PutBack(const Files& files) const {
        for (std::size_t i = 0; i < files.size(); ++i)
            tree.Write(names[i], files[i]);
    }
};

}  // namespace kivu::scenarios
