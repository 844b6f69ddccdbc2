// Names and entries that only a POSIX file system holds.
#include <sys/stat.h>

#include "scenarios/all_search.h"
#include "scenarios/faults.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

TEST_F(Faults, LinksThatLoopEndTheScanAndCountNothingTwice) {
    std::filesystem::create_directory_symlink(tree.Path("Roms"), tree.Path("Roms/Alpha/loop"));
    std::filesystem::create_directory_symlink(".", tree.Path("Roms/Alpha/self"));
    Start();
    Scan();
    // The loop leads out of the tree, where there is one more game.
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 4);
    ExpectUsable();
}

TEST_F(Faults, OddEntriesAreLeftOut) {
    std::filesystem::create_symlink("/nowhere", tree.Path("Roms/Alpha/dangling.adf"));
    ASSERT_EQ(::mkfifo(tree.Path("Roms/Alpha/pipe.adf").c_str(), 0600), 0);
    tree.Write("Roms/Alpha/.hidden.adf");
    tree.Write("Roms/Alpha/line\nbreak.adf");
    tree.Write("Roms/Alpha/carriage\rreturn.adf");
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 3);
    ExpectUsable();
}

TEST_F(Faults, NameThatIsNoUtf8ComesThroughTheCacheAndIsStarted) {
    const std::string name = "B\xe4r [long].adf";
    tree.Write("Roms/Alpha/" + name, "x");
    Start();
    Scan();
    EXPECT_EQ(Form().UAE_Short.List(2), "Bär [long]");
    Start();
    ASSERT_EQ(Form().UAE_FULL.List(2), tree.Path("Roms/Alpha/" + name));
    EXPECT_EQ(Form().UAE_Short.List(2), "Bär [long]");
    LaunchBee();
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_tmp.bat"), HasSubstr(name));
}

TEST_F(Faults, NameOf255BytesIsStarted) {
    const std::string name = std::string(251, 'n') + ".adf";
    tree.Write("Roms/Alpha/" + name, "x");
    Start();
    Scan();
    EXPECT_EQ(Form().UAE_Short.List(3), std::string(251, 'n'));
    Do("click", "Form1.Label3");
    Do("dblclick", "Form1.UAE_Short", 3);
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_tmp.bat"), HasSubstr(name));
}

TEST_F(AllSearchScenario, AnEmulatorWithAColonInItsNameCannotBeStarted) {
    tree.AddEmulator("C: Sixty Four");
    tree.WriteCache("C: Sixty Four", {{"/Roms/C/Ant (1984)(M).d64", "Ant (1984)(M)"}});
    Start();
    SearchAll("1984");
    ASSERT_EQ(Get("GlobalSearchList.ListCount"), 1);
    Do("key", "Form1.GlobalSearchList", "Enter");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_TRUE(Visible("GlobalSearchList"));
}

}  // namespace
}  // namespace kivu::scenarios
