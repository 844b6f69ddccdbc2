#include "hosts/windows/file_system_windows.h"

#include <gmock/gmock.h>

#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

using ::testing::IsEmpty;
using testing::ScratchDirectory;
using ::testing::UnorderedElementsAre;

class FileSystemWindows : public ::testing::Test {
 protected:
    std::vector<std::string> Names(const std::string& path) const {
        std::vector<std::string> names;
        const auto entries = files.ListDirectory(path);
        for (const auto& entry : entries.value())
            names.push_back(entry.name + (entry.isDirectory ? "/" : ""));
        return names;
    }
    // False: this system or user makes no links. Wine says yes and makes none.
    bool MakeLink(const std::string& name, const std::string& target, DWORD flags = 0) const {
        ::CreateSymbolicLinkW(directory.WidePath(name).c_str(), Wide(target).c_str(),
                              flags | SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE);
        const DWORD attributes = directory.Attributes(name);
        return attributes != INVALID_FILE_ATTRIBUTES &&
               (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    }

    const testing::CurrentDirectoryKeeper keeper;
    ScratchDirectory directory;
    WindowsFileSystem files;
};

TEST_F(FileSystemWindows, ListsFilesAndDirectories) {
    directory.Write("game.adf", "x");
    directory.Write(".dotted", "x");
    directory.MakeDirectory("sub");
    auto names = Names(directory.Root());
    // Wine hides names with a dot in front.
    std::erase(names, ".dotted");
    EXPECT_THAT(names, UnorderedElementsAre("game.adf", "sub/"));
    EXPECT_THAT(Names(directory.Root() + "\\"), ::testing::IsSupersetOf(names));
    EXPECT_THAT(Names(directory.Path("sub")), IsEmpty());
}

TEST_F(FileSystemWindows, LeavesOutWhatIsHidden) {
    directory.Write("desktop.ini", "x");
    directory.MakeDirectory("covers");
    if (!directory.SetAttributes("desktop.ini", FILE_ATTRIBUTE_HIDDEN) ||
        !directory.SetAttributes("covers", FILE_ATTRIBUTE_HIDDEN)) {
        GTEST_SKIP() << "this disk keeps no hidden attribute";
    }
    EXPECT_THAT(Names(directory.Root()), IsEmpty());
    EXPECT_TRUE(files.FileExists(directory.Path("desktop.ini")));
}

TEST_F(FileSystemWindows, NamesKeepTheirCharacters) {
    const std::vector<std::string> names = {
        "Gr\xc3\xbc\xc3\x9f"
        "e.adf",
        "\xe6\x97\xa5\xe6\x9c\xac.adf",       // beyond every western code page
        "\xf0\x9f\x8e\xae.adf",               // two units of UTF-16
        "a'b$c`e;f&g [x]^%TEMP%(1)!,=+.adf",  // what a command processor acts upon
        "dot at the end.",
        "blank at the end ",
        std::string(250, 'n')};
    for (const auto& name : names)
        directory.Write(name, name);
    EXPECT_THAT(Names(directory.Root()), ::testing::UnorderedElementsAreArray(names));
    for (const auto& name : names) {
        EXPECT_TRUE(files.FileExists(directory.Path(name))) << name;
        EXPECT_EQ(files.ReadFile(directory.Path(name)), name);
        EXPECT_FALSE(files.WriteFile(directory.Path(name), "new")) << name;
        EXPECT_EQ(directory.Read(name), "new");
        EXPECT_FALSE(files.DeleteFile(directory.Path(name))) << name;
    }
    EXPECT_EQ(directory.Count(), 0u);
}

TEST_F(FileSystemWindows, ANameThatIsNoUtf16Survives) {
    const std::string name = "lone \xed\xa0\x80.adf";
    const Handle made(::CreateFileW(directory.WidePath(name).c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_NEW, 0, nullptr));
    if (!made) GTEST_SKIP() << "no such names here: Wine's disks hold UTF-8";
    EXPECT_THAT(Names(directory.Root()), UnorderedElementsAre(name));
    EXPECT_TRUE(files.FileExists(directory.Path(name)));
}

TEST_F(FileSystemWindows, OnlyFilesOfThisNameExist) {
    directory.Write("Game.adf", "x");
    for (const std::string name : {"Game.adf", "game.ADF", ".\\Game.adf", "sub\\..\\Game.adf"})
        EXPECT_TRUE(files.FileExists(directory.Path(name))) << name;
    EXPECT_TRUE(files.FileExists(directory.Root() + "/Game.adf"));
    for (const std::string name : {"*.adf", "Game.ad?", "Game.adf\\", "Game.adf/", "Game.adf.",
                                   "Game.adf ", "Game.adf::$DATA", "Game.adf\\x", "", "."}) {
        EXPECT_FALSE(files.FileExists(directory.Path(name))) << name;
    }
    EXPECT_FALSE(files.FileExists(directory.Root()));
    EXPECT_FALSE(files.FileExists(""));
    EXPECT_FALSE(files.FileExists("\"" + directory.Path("Game.adf") + "\""));
    EXPECT_FALSE(files.FileExists(directory.Path("Game.adf") + std::string("\0x", 2)));
}

TEST_F(FileSystemWindows, TellsDirectoriesFromFiles) {
    directory.Write("file", "x");
    directory.MakeDirectory("sub");
    for (const std::string name : {"sub", "SUB", "sub\\", "sub/", "sub\\.", ""})
        EXPECT_TRUE(files.IsDirectory(directory.Path(name))) << name;
    for (const std::string name : {"file", "missing", "su?", "sub."})
        EXPECT_FALSE(files.IsDirectory(directory.Path(name))) << name;
    EXPECT_TRUE(files.IsDirectory("C:\\"));
    EXPECT_FALSE(files.IsDirectory(""));
}

TEST_F(FileSystemWindows, DeviceNamesAreNoFilesAndNothingWaitsForThem) {
    ASSERT_FALSE(files.ChangeDirectory(directory.Root()));
    directory.Write("game.adf", "x");
    for (const std::string name :
         {"CON", "NUL", "nul.txt", "COM1", "LPT1", "CONIN$", "AUX.adf", ".\\NUL", "\\\\.\\NUL",
          "//./CON", "\\\\?\\GLOBALROOT\\Device\\Null", "\\\\localhost\\pipe\\kivu", "CON:"}) {
        EXPECT_FALSE(files.FileExists(name)) << name;
        EXPECT_FALSE(files.IsDirectory(name)) << name;
        EXPECT_EQ(files.IdentityOf(name), std::nullopt) << name;
        EXPECT_EQ(files.ReadFile(name), std::nullopt) << name;
        EXPECT_EQ(files.OpenFile(name), nullptr) << name;
        EXPECT_EQ(files.ShortPathName(name), "") << name;
        EXPECT_EQ(files.CreationTime(name), std::nullopt) << name;
        EXPECT_TRUE(files.WriteFile(name, "x")) << name;
        EXPECT_TRUE(files.AppendFile(name, "x")) << name;
        EXPECT_TRUE(files.MakeDirectory(name)) << name;
        EXPECT_TRUE(files.MoveFile("game.adf", name)) << name;
    }
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileSystemWindows, ADeviceThatADiskShowsIsNotRead) {
    const std::string zeros = "Z:\\dev\\zero", full = "Z:\\dev\\full";
    const Handle device(
        ::CreateFileW(Wide(full).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!device) GTEST_SKIP() << "only Wine shows devices as files";
    EXPECT_EQ(files.ReadFile(zeros), std::nullopt);
    EXPECT_EQ(files.OpenFile(zeros), nullptr);
    EXPECT_TRUE(files.WriteFile(full, "x"));
    EXPECT_TRUE(files.AppendFile(full, "x"));
    EXPECT_EQ(::GetFileType(device.Get()), static_cast<DWORD>(FILE_TYPE_CHAR));
}

TEST_F(FileSystemWindows, ADirectoryHasOneIdentityWhateverPathLeadsToIt) {
    directory.MakeDirectory("Long Directory Name");
    const std::string path = directory.Path("Long Directory Name");
    const auto identity = files.IdentityOf(path);
    ASSERT_TRUE(identity);
    EXPECT_EQ(files.IdentityOf(directory.Path("LONG DIRECTORY NAME\\.")), identity);
    EXPECT_EQ(files.IdentityOf(files.ShortPathName(path)), identity);
    EXPECT_NE(files.IdentityOf(directory.Root()), identity);
    EXPECT_EQ(files.IdentityOf(directory.Path("missing")), std::nullopt);
    EXPECT_FALSE(files.IsLink(path));
    EXPECT_FALSE(files.IsLink(directory.Path("missing")));
    EXPECT_FALSE(files.IsLink(""));
}

TEST_F(FileSystemWindows, AFileThatSomebodyHasForHimselfIsStillThere) {
    directory.Write("file", "x");
    const Handle alone(::CreateFileW(directory.WidePath("file").c_str(), GENERIC_READ, 0, nullptr,
                                     OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(alone);
    EXPECT_TRUE(files.FileExists(directory.Path("file")));
    EXPECT_TRUE(files.IdentityOf(directory.Path("file")));
    EXPECT_EQ(files.ReadFile(directory.Path("file")), std::nullopt);
}

TEST_F(FileSystemWindows, LinksAreFollowed) {
    directory.MakeDirectory("sub");
    directory.Write("sub\\file", "x");
    if (!MakeLink("linked", "sub", SYMBOLIC_LINK_FLAG_DIRECTORY) || !MakeLink("link", "sub\\file"))
        GTEST_SKIP() << "no symbolic links here: Wine 8 makes none";
    ASSERT_TRUE(MakeLink("dangling", "nowhere"));
    EXPECT_THAT(Names(directory.Root()), UnorderedElementsAre("sub/", "linked/", "link"));
    EXPECT_TRUE(files.IsLink(directory.Path("linked")));
    EXPECT_TRUE(files.IsLink(directory.Path("dangling")));
    EXPECT_EQ(files.IdentityOf(directory.Path("linked")), files.IdentityOf(directory.Path("sub")));
    const auto listing = files.ReadDirectory(directory.Root());
    ASSERT_TRUE(listing);
    EXPECT_EQ(listing->identity, files.IdentityOf(directory.Root()));
    for (const auto& item : listing->items)
        EXPECT_EQ(item.isLink, listing->Name(item) == "linked") << listing->Name(item);
    EXPECT_TRUE(files.FileExists(directory.Path("link")));
    EXPECT_FALSE(files.FileExists(directory.Path("linked")));
    EXPECT_FALSE(files.FileExists(directory.Path("dangling")));
    EXPECT_EQ(files.ResolvedPath(directory.Path("linked\\file")),
              files.ResolvedPath(directory.Path("sub\\file")));
    EXPECT_FALSE(files.WriteFile(directory.Path("link"), "new"));
    EXPECT_EQ(directory.Read("sub\\file"), "new");
    EXPECT_TRUE(files.IsLink(directory.Path("link")));
    EXPECT_TRUE(files.WriteFile(directory.Path("dangling"), "new"));
    EXPECT_FALSE(files.DeleteFile(directory.Path("link")));
    EXPECT_EQ(directory.Read("sub\\file"), "new");
}

TEST_F(FileSystemWindows, APathIsResolvedOrStaysAsItIs) {
    directory.MakeDirectory("Sub Directory");
    directory.Write("Sub Directory\\Game.adf", "x");
    const std::string resolved =
        files.ResolvedPath(directory.Path("sub directory\\..\\SUB DIRECTORY\\game.ADF"));
    EXPECT_TRUE(resolved.ends_with("\\Sub Directory\\Game.adf")) << resolved;
    EXPECT_EQ(resolved[1], ':');
    EXPECT_EQ(files.ResolvedPath(directory.Path("missing")), directory.Path("missing"));
    EXPECT_EQ(files.ResolvedPath(""), "");
}

TEST_F(FileSystemWindows, TellsWhenAFileWasMade) {
    directory.Write("file", "x");
    struct _stat64 status {};
    ASSERT_EQ(::_wstat64(Wide(directory.Path("file")).c_str(), &status), 0);
    EXPECT_EQ(files.CreationTime(directory.Path("file")), status.st_ctime);
    EXPECT_EQ(files.CreationTime(directory.Path("missing")), std::nullopt);
}

TEST_F(FileSystemWindows, GoesFromDirectoryToDirectory) {
    directory.MakeDirectory("Gr\xc3\xbc\xc3\x9f");
    ASSERT_FALSE(files.ChangeDirectory(directory.Root()));
    ASSERT_FALSE(files.ChangeDirectory("Gr\xc3\xbc\xc3\x9f\\"));
    EXPECT_EQ(files.CurrentDirectory(), directory.Path("Gr\xc3\xbc\xc3\x9f"));
    EXPECT_FALSE(files.WriteFile("here", "x"));
    EXPECT_EQ(directory.Read("Gr\xc3\xbc\xc3\x9f\\here"), "x");
    EXPECT_TRUE(files.ChangeDirectory(directory.Path("missing")));
    EXPECT_TRUE(files.ChangeDirectory(""));
    EXPECT_FALSE(files.ChangeDirectory("C:\\"));
    EXPECT_EQ(files.CurrentDirectory(), "C:\\");
}

TEST_F(FileSystemWindows, PathsMayBeLongerThan260Characters) {
    std::string deep;
    for (int level = 0; level < 8; ++level) {
        deep += (level > 0 ? "\\" : "") + std::string(60, 'd');
        ASSERT_FALSE(files.MakeDirectory(directory.Path(deep)));
    }
    const std::string path = directory.Path(deep + "\\My Game With A Long Name.adf");
    EXPECT_FALSE(files.WriteFile(path, "one"));
    EXPECT_FALSE(files.WriteFile(path, "two"));
    EXPECT_FALSE(files.AppendFile(path, "more"));
    EXPECT_EQ(files.ReadFile(path), "twomore");
    EXPECT_TRUE(files.FileExists(path));
    EXPECT_TRUE(files.IdentityOf(path));
    EXPECT_TRUE(files.CreationTime(path));
    EXPECT_EQ(files.ResolvedPath(path), path);
    EXPECT_THAT(Names(directory.Path(deep)), UnorderedElementsAre("My Game With A Long Name.adf"));
    const std::string shortPath = files.ShortPathName(path);
    EXPECT_EQ(files.IdentityOf(shortPath), files.IdentityOf(path)) << shortPath;
    EXPECT_FALSE(shortPath.starts_with("\\\\?"));
    EXPECT_EQ(files.LongPathName(shortPath), path);
    EXPECT_FALSE(files.MoveFile(path, path + "x"));
    EXPECT_FALSE(files.DeleteFile(path + "x"));
    EXPECT_THAT(Names(directory.Path(deep)), IsEmpty());
}

TEST_F(FileSystemWindows, KnowsTheDrivesAndTheHomeDirectory) {
    const auto drives = files.Drives();
    EXPECT_NE(std::find(drives.begin(), drives.end(), "C:\\"), drives.end());
    EXPECT_TRUE(files.IsDirectory(files.HomeDirectory())) << files.HomeDirectory();
}

}  // namespace
}  // namespace kivu::hosts
