// Starts with names and paths that only a POSIX host has.
#include "scenarios/launches.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

TEST_F(Launch, NoCharacterOfANameIsEverActedUpon) {
    const std::string name = "It's; $(touch x) `id` \"q\" & | > < * ? \\ %PATH% !.adf";
    tree.Write("Roms/Alpha/" + name, "x");
    Start();
    Call("StartGame", tree.Path("Roms/Alpha/" + name));
    EXPECT_THAT(StartFile(),
                HasSubstr("'" + tree.Path("Roms/Alpha/It") +
                          "'\\''s; $(touch x) `id` \"q\" & | > < * ? \\ %PATH% !.adf' &\n"));
    EXPECT_EQ(Do("boxes")["value"], Json::array());
}

TEST_F(Launch, WindowsProgramRunsThroughWineWithItsPaths) {
    tree.Write("Emu/winuae.exe", "MZ");
    tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/winuae.exe"},
                               {"WinUAE_UseMasterConfig", "0"},
                               {"EmulatorParameterAddDiskPath", "1"}});
    Start();
    Call("StartGame", Bee());
    std::string wine = "Z:" + Bee();
    std::replace(wine.begin(), wine.end(), '/', '\\');
    EXPECT_THAT(StartFile(), HasSubstr("'wine' '" + tree.Path("Emu/winuae.exe") + "' '" + wine));
    EXPECT_EQ(Get("CurrentRunninApplication"), "winuae.exe");
}

TEST_F(Launch, NameThatNoBatchFileCanTakeIsLoggedAsRefused) {
    const std::string game = "Roms/Alpha/100%OS% & more.adf";
    tree.Write("Emu/emu.bat", "");
    tree.Write(game, "x");
    tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/emu.bat"},
                               {"WinUAE_UseMasterConfig", "0"},
                               {"EmulatorParameterAddDiskPath", "1"}});
    Start();
    Do("log");
    Call("StartGame", tree.Path(game));
    EXPECT_EQ(Do("log")["value"],
              Json::array({"not launched, no batch file can take this name: " + tree.Path(game)}));
    EXPECT_EQ(Do("runs")["value"], Json::array());
}

}  // namespace
}  // namespace kivu::scenarios
