#pragma once

#include <gmock/gmock.h>
#include <string_view>

#include "launch/uae_configuration.h"
#include "settings/winuae_group.h"
#include "settings_room.h"
#include "testing/md5.h"

namespace kivu::settings {

using kivu::testing::Md5;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using Answer = platform::Answer;

inline constexpr const char* masterName = "C:\\Kivu\\Config\\Kivu_Master.uaecfg";

// An emulator that was switched to with the template on.
struct Winuae : ::testing::Test, SettingsRoom {
    Winuae() {
        files.AddFile("D:\\Emu\\winuae.exe", "MZ");
        files.AddFile("D:\\Games\\a.adf", "x");
        Master("a=1\r\nfloppy1=x\r\n");
        form.MasterConfigName = masterName;
    }
    void Master(std::string_view bytes) { files.AddFile(masterName, bytes); }
    std::string OnDisk() const { return files.BytesOf(masterName); }
    void OpenWindow() {
        winuae.LoadMaster();
        Open("D:\\Emu\\winuae.exe", "D:\\Games\\");
        window.UseMasterConfig.SetValue(1);
        window.SaveBtn.SetEnabled(false);
    }
    bool Import(std::string_view bytes) {
        files.AddFile("D:\\Emu\\other.uae", bytes);
        fileDialogs.answers = {"D:\\Emu\\other.uae"};
        window.Command1.Click();
        return TakeBoxes().empty();
    }
};

}  // namespace kivu::settings
