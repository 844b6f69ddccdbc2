#include <algorithm>

#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

// Short (8.3) and long names.
class PathNamesWindows : public ::testing::Test {
 protected:
    const testing::CurrentDirectoryKeeper keeper;
    testing::ScratchDirectory directory;
    WindowsFileSystem files;
    const std::string root = files.LongPathName(directory.Root());
};

std::string NameIn(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

TEST_F(PathNamesWindows, AShortNameLeadsToTheSameFileAndBack) {
    for (const std::string name : {"My Long Game Name (Disk 1).adf", "a.b.c.adf",
                                   "Gr\xc3\xbc\xc3\x9f"
                                   "e aus K\xc3\xb6ln.adf",
                                   "plain.adf"}) {
        directory.Write(name, name);
        const std::string path = root + "\\" + name;
        const std::string shortPath = files.ShortPathName(path);
        EXPECT_EQ(files.ReadFile(shortPath), name);
        EXPECT_EQ(files.IdentityOf(shortPath), files.IdentityOf(path));
        EXPECT_EQ(files.LongPathName(shortPath), path);
        EXPECT_EQ(files.LongPathName(path), path);
    }
    EXPECT_EQ(NameIn(files.ShortPathName(directory.Path("plain.adf"))).size(), 9u);
}

TEST_F(PathNamesWindows, AreThoseOfTheAnsiCalls) {
    for (const std::string name : {"My Long Game Name.adf", "plain.adf"}) {
        const std::string path = directory.Write(name, "x");
        char buffer[1024];
        ASSERT_GT(::GetShortPathNameA(path.c_str(), buffer, sizeof buffer), 0u);
        EXPECT_EQ(files.ShortPathName(path), buffer);
        const std::string shortPath = buffer;
        ASSERT_GT(::GetLongPathNameA(shortPath.c_str(), buffer, sizeof buffer), 0u);
        EXPECT_EQ(files.LongPathName(shortPath), buffer);
    }
}

TEST_F(PathNamesWindows, AShortNameHasNoBlankAndStaysWithinTheCodePage) {
    const std::string name = "\xe6\x97\xa5\xe6\x9c\xac game of japan.adf";
    directory.Write(name, "x");
    const std::string shortName = NameIn(files.ShortPathName(directory.Path(name)));
    if (shortName == name) GTEST_SKIP() << "this drive has no short names";
    EXPECT_LE(shortName.size(), 12u);
    EXPECT_TRUE(std::ranges::all_of(shortName, [](unsigned char c) { return c > 32 && c < 127; }))
        << shortName;
    EXPECT_EQ(files.DecodeText(files.EncodeText(shortName)), shortName);
    EXPECT_EQ(files.ReadFile(directory.Path(shortName)), "x");
    EXPECT_EQ(NameIn(files.LongPathName(directory.Path(shortName))), name);
}

TEST_F(PathNamesWindows, ThereIsNoneOfWhatIsNotThere) {
    directory.Write("My Game.adf", "x");
    for (const std::string& path :
         {directory.Path("missing"), directory.Path("missing\\My Game.adf"),
          "\"" + directory.Path("My Game.adf") + "\"", directory.Path("My*.adf"), std::string(),
          std::string("\"\""), directory.Path("My Game.adf") + std::string("\0", 1)}) {
        EXPECT_EQ(files.ShortPathName(path), "") << path;
        EXPECT_EQ(files.LongPathName(path), "") << path;
    }
}

TEST_F(PathNamesWindows, ADirectoryKeepsItsClosingSeparator) {
    directory.MakeDirectory("My Long Directory");
    const std::string shortPath = files.ShortPathName(directory.Path("My Long Directory\\"));
    EXPECT_TRUE(shortPath.ends_with('\\')) << shortPath;
    EXPECT_EQ(files.LongPathName(shortPath), root + "\\My Long Directory\\");
    EXPECT_EQ(files.ShortPathName("C:\\"), "C:\\");
}

TEST_F(PathNamesWindows, ARelativePathStaysRelative) {
    directory.Write("My Long Game Name.adf", "x");
    ASSERT_FALSE(files.ChangeDirectory(directory.Root()));
    const std::string shortPath = files.ShortPathName("My Long Game Name.adf");
    EXPECT_EQ(shortPath.find('\\'), std::string::npos) << shortPath;
    EXPECT_EQ(files.ReadFile(shortPath), "x");
    EXPECT_EQ(files.LongPathName(shortPath), "My Long Game Name.adf");
}

TEST_F(PathNamesWindows, ANameWithADotAtItsEndIsNotThatWithout) {
    directory.Write("name.", "dotted");
    EXPECT_EQ(files.ShortPathName(directory.Path("name")), "");
    EXPECT_EQ(files.ReadFile(files.LongPathName(directory.Path("name."))), "dotted");
}

TEST_F(PathNamesWindows, TheSeparatorIsABackslash) {
    EXPECT_EQ(files.Separator(), '\\');
}

}  // namespace
}  // namespace kivu::hosts
