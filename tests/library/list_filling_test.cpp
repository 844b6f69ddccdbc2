// Ways by which lists of many games are filled fast, seen from outside: nobody notices them.

#include <gmock/gmock.h>

#include "core/busy_state.h"
#include "core/form1.h"
#include "library/file_scan_recursive.h"
#include "library/game_lists.h"
#include "library/scan_source.h"
#include "profile/ini.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"
#include "text/collation.h"

namespace kivu::library {
namespace {

using ::testing::ElementsAre;

class TextOrder : public forms::Collation {
 public:
    int Compare(std::string_view a, std::string_view b) const override {
        return text::CompareText(a, b);
    }
};

struct ListFilling : ::testing::Test {
    explicit ListFilling(char separator = '/') : files(separator) {
        lists.ports.front = front;
        lists.ports.watch = watch;
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    TextOrder order;
    ScanSource source{files};
    core::Form1 form{forms::Toolkit{nullptr, &order, &source}};
    profile::Ini ini{files};
    core::EventPacer pacer{host.events, host.clock};
    core::BusyState busy{form, host.events};
    FileScanRecursive scanner{form, source, host.beeper, pacer};
    kivu::testing::QuietFront front;
    kivu::testing::QuietWatch watch;
    kivu::testing::QuietChoice choice;
    kivu::testing::QuietSwitching switching;
    GameLists lists{form, ini, files, busy, pacer, scanner, {choice, switching}};

    void LoadCache(const std::string& text) {
        form.AppDir = files.Separator() == '/' ? "/kivu/" : "C:\\kivu\\";
        form.CacheName = form.AppDir + "Kivu_Cache.txt";
        files.AddFile(form.CacheName, text);
        lists.LoadCacheList();
    }
};

TEST_F(ListFilling, ASecondScanWithAnotherPatternFindsTheDirectoryWhereTheFirstEnded) {
    files.AddFile("/roms/a/one.adf", "");
    files.AddFile("/roms/a/two.ipf", "");
    files.AddFile("/roms/b/three.ipf", "");
    scanner.ScanFiles("/roms", "*.adf", "", nullptr);
    EXPECT_THAT(scanner.Result_list().Rows(), ElementsAre("/roms/a/one.adf"));
    scanner.ScanFiles("/roms", "*.ipf", "", nullptr);
    EXPECT_THAT(scanner.Result_list().Rows(), ElementsAre("/roms/a/two.ipf", "/roms/b/three.ipf"));
}

TEST_F(ListFilling, ACacheInOrderFillsBothListsAsItStands) {
    LoadCache("/a (1)(x)(Disk 1).adf\r\nA\r\n/B.adf\r\nB\r\n/c.adf\r\nC\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(),
                ElementsAre("/kivu/a (1)(x)(Disk 1).adf", "/kivu/B.adf", "/kivu/c.adf"));
    EXPECT_THAT(form.UAE_Short.Rows(), ElementsAre("A", "B", "C"));
}

TEST_F(ListFilling, ACacheInAnotherOrderIsSortedWithItsNames) {
    LoadCache(
        "/b.adf\r\nname of b\r\n/A.adf\r\nname of a\r\n/\xC3\xA4.adf\r\nname of \xC3\xA4\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(),
                ElementsAre("/kivu/A.adf", "/kivu/\xC3\xA4.adf", "/kivu/b.adf"));
    EXPECT_THAT(form.UAE_Short.Rows(), ElementsAre("name of a", "name of \xC3\xA4", "name of b"));
}

TEST_F(ListFilling, ACacheOfAnotherCodePageBecomesReadableWhereTheGameIsThere) {
    files.AddFile("/kivu/\xC3\xA4.adf", "");
    LoadCache("/\xE4.adf\r\n\xE4\r\n/b.adf\r\n\xC3\xB6\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(), ElementsAre("/kivu/\xC3\xA4.adf", "/kivu/b.adf"));
    EXPECT_THAT(form.UAE_Short.Rows(), ElementsAre("\xC3\xA4", "\xC3\xB6"));
}

TEST_F(ListFilling, BytesThatAreNoTextStayForADriveThatIsMountedLater) {
    LoadCache("/media/\xE4.adf\r\n\xE4\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(), ElementsAre("/kivu/media/\xE4.adf"));
    EXPECT_THAT(form.UAE_Short.Rows(), ElementsAre("\xC3\xA4"));
}

TEST_F(ListFilling, BytesThatAreNoTextStayWhereBothNamesAreThere) {
    files.AddFile("/kivu/\xE4.adf", "");
    files.AddFile("/kivu/\xC3\xA4.adf", "");
    LoadCache("/\xE4.adf\r\n\xE4\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(), ElementsAre("/kivu/\xE4.adf"));
}

TEST_F(ListFilling, ARescanByItsButtonLeavesTheFocusOnTheFreshList) {
    form.CurrentEmuIndex = 0;
    form.LoadBtn.SetEnabled(true);
    form.LoadBtn.SetFocus();
    lists.RescanByButton();
    EXPECT_TRUE(form.UAE_Short.HasFocus());
    form.ExitBtn.SetFocus();
    lists.RescanByButton();
    EXPECT_TRUE(form.ExitBtn.HasFocus());
}

TEST_F(ListFilling, APathOfAWindowsHostIsInItsCodePage) {
    LoadCache("\\\xE4.adf\r\n\xE4\r\n..\\\xE4.adf\r\n\xE4\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(), ElementsAre("/\xC3\xA4.adf", "/kivu/\xC3\xA4.adf"));
}

struct WindowsListFilling : ListFilling {
    WindowsListFilling() : ListFilling('\\') {}
};

TEST_F(WindowsListFilling, ACacheInTheCodePageGivesTextWhetherTheGameIsThereOrNot) {
    files.AddFile("C:\\kivu\\\xC3\xA4.adf", "");
    LoadCache("\\\xE4.adf\r\n\xE4\r\n\\\xF6.adf\r\n\xF6\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(),
                ElementsAre("C:\\kivu\\\xC3\xA4.adf", "C:\\kivu\\\xC3\xB6.adf"));
    EXPECT_THAT(form.UAE_Short.Rows(), ElementsAre("\xC3\xA4", "\xC3\xB6"));
}

TEST_F(WindowsListFilling, AGameBesidesADirectoryThatBeginsLikeTheProgramsComesBack) {
    form.CurrentEmuIndex = 0;
    form.AppDir = "C:\\kivu\\";
    form.StartPfad = "C:\\kivu\\Config\\A\\";
    form.CacheName = form.StartPfad + "Kivu_Cache.txt";
    files.AddDirectory(form.StartPfad);
    files.AddFile("C:\\kivu2\\Roms\\a.adf", "");
    files.AddFile("C:\\kivu2\\Wait..\\b.adf", "");
    form.TxtRomPath.SetText("C:\\kivu2\\");
    lists.LoadBtn_Click();
    const std::vector<std::string> scanned = form.UAE_FULL.Rows();
    EXPECT_THAT(scanned, ElementsAre("C:\\kivu2\\Roms\\a.adf", "C:\\kivu2\\Wait..\\b.adf"));
    lists.LoadCacheList();
    EXPECT_EQ(form.UAE_FULL.Rows(), scanned);
}

TEST_F(WindowsListFilling, ACacheOfAPosixHostAndOneOfANetworkShareGivePathsThatExist) {
    LoadCache("/Sub/a.adf\r\nA\r\n../b.adf\r\nB\r\n\\\\nas\\c.adf\r\nC\r\n");
    EXPECT_THAT(form.UAE_FULL.Rows(),
                ElementsAre("\\\\nas\\c.adf", "C:\\b.adf", "C:\\kivu\\Sub\\a.adf"));
    EXPECT_THAT(form.UAE_Short.Rows(), ElementsAre("C", "B", "A"));
}

TEST_F(ListFilling, TheSimpleListHoldsARunOfEqualNamesOnce) {
    form.UAE_FULL.AddItems({"/1", "/2", "/3", "/4", "/5", "/6", "/7"});
    form.UAE_Short.AddItems({"", "A", "A", "", "A", "a", "A"});
    lists.BuildDoublesList();
    EXPECT_THAT(form.WIthoutDoubles.Rows(), ElementsAre("A", "a", "A"));
    form.UAE_Short.SetList(5, "b");
    lists.BuildDoublesList();
    EXPECT_THAT(form.WIthoutDoubles.Rows(), ElementsAre("A", "b", "A"));
}

TEST_F(ListFilling, TheSimpleListHasARowForFilesOnly) {
    form.UAE_FULL.AddItems({"/1"});
    form.UAE_Short.AddItems({"A", "B"});
    lists.BuildDoublesList();
    EXPECT_THAT(form.WIthoutDoubles.Rows(), ElementsAre("A"));
    form.UAE_FULL.Clear();
    lists.BuildDoublesList();
    EXPECT_EQ(form.WIthoutDoubles.ListCount(), 0);
}

TEST_F(ListFilling, BuildingTheSimpleListAnewTakesItsSelectionAwayWithoutAClick) {
    form.UAE_FULL.AddItems({"/1", "/2"});
    form.UAE_Short.AddItems({"A", "B"});
    lists.BuildDoublesList();
    form.WIthoutDoubles.SetListIndex(1);
    int clicks = 0;
    form.WIthoutDoubles.onClick = [&] { ++clicks; };
    lists.BuildDoublesList();
    EXPECT_EQ(form.WIthoutDoubles.ListIndex(), -1);
    EXPECT_EQ(clicks, 0);
    EXPECT_THAT(form.WIthoutDoubles.Rows(), ElementsAre("A", "B"));
}

}  // namespace
}  // namespace kivu::library
