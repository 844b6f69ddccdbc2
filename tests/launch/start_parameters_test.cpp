#include "launch/start_parameters.h"

#include <gtest/gtest.h>

namespace kivu::launch {
namespace {

using Words = std::vector<std::string>;

TEST(StartParameters, PadWithOneBlankOnEachSide) {
    StartParameters parameters;
    parameters.AppendTyped("  -f ");
    parameters.Pad();
    EXPECT_EQ(parameters.Text(), " -f ");
    parameters.AppendPath("C:\\x.uaecfg", "C:\\x.uaecfg");
    parameters.Pad();
    EXPECT_EQ(parameters.Text(), " -f C:\\x.uaecfg ");
}

TEST(StartParameters, SplitWhatTheUserTypedAndKeepAPathWhole) {
    StartParameters parameters;
    parameters.AppendTyped("-cheat \"two words\" -x=1");
    parameters.Pad();
    parameters.AppendPath("\"/roms/My \\\"Game\\\".zip\"", "/roms/My \"Game\".zip");
    EXPECT_EQ(parameters.Words(), (Words{"-cheat", "two words", "-x=1", "/roms/My \"Game\".zip"}));
}

TEST(StartParameters, GiveAWindowsProgramPathsThatWineUnderstands) {
    StartParameters parameters(true);
    parameters.AppendPath("/roms/a.adf", "/roms/a.adf");
    EXPECT_EQ(parameters.Words(), Words{"Z:\\roms\\a.adf"});
    EXPECT_EQ(parameters.Text(), "Z:\\roms\\a.adf");
}

TEST(StartParameters, MakePathsHarmlessInABatchFileButNotTypedTexts) {
    StartParameters parameters;
    parameters.AppendTyped("-x & y%1");
    parameters.Pad();
    parameters.AppendPath("C:\\A&B\\100%.adf", "C:\\A&B\\100%.adf");
    EXPECT_EQ(parameters.BatchText(), " -x & y%1 \"C:\\A&B\\100%%.adf\"");
    EXPECT_EQ(parameters.Text(), " -x & y%1 C:\\A&B\\100%.adf");
    EXPECT_TRUE(parameters.IsBatchSafe());
}

TEST(StartParameters, SayWhenNothingMakesAPathHarmless) {
    StartParameters parameters;
    parameters.AppendPath("C:\\a\"b", "C:\\a\"b");
    EXPECT_FALSE(parameters.IsBatchSafe());
}

TEST(StartFile, HasTwoLinesForTheCommandProcessor) {
    EXPECT_EQ(BatchStartFile("C:\\PROGRA~1\\WinUAE\\",
                             StartCommand("\"C:\\Program Files\\WinUAE\\winuae.exe\"",
                                          "-f C:\\Kivu\\Config\\AMIGA5~1\\KIVU_S~1.UAE")),
              "cd C:\\PROGRA~1\\WinUAE\\\r\n"
              "Start \"\" \"C:\\Program Files\\WinUAE\\winuae.exe\" -f "
              "C:\\Kivu\\Config\\AMIGA5~1\\KIVU_S~1.UAE\r\n");
}

TEST(StartFile, EndsTheCommandWithoutBlanksWhenThereAreNoParameters) {
    EXPECT_EQ(StartCommand("emu.exe", "  "), "Start \"\" emu.exe");
}

TEST(StartFile, QuotesEveryWordForTheShell) {
    EXPECT_EQ(
        ShellStartFile("/opt/my emu/", {"/opt/my emu/emu", "-f", "/roms/Tom's & $HOME `x`;.adf"}),
        "cd '/opt/my emu/'\n'/opt/my emu/emu' '-f' '/roms/Tom'\\''s & $HOME `x`;.adf' &\n");
}

TEST(StartFile, LeavesTheDirectoryOutWhenThereIsNone) {
    EXPECT_EQ(ShellStartFile("", {"dosbox"}), "'dosbox' &\n");
}

}  // namespace
}  // namespace kivu::launch
