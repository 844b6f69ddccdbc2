#include <filesystem>
#include <gmock/gmock.h>

#include "host_files.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

// What the launcher relies on in each host's files.
namespace kivu::testing {
namespace {

using ::testing::UnorderedElementsAre;

class FilesContract : public ::testing::Test {
 protected:
    std::vector<std::string> Names(const std::string& path) const {
        std::vector<std::string> names;
        const auto entries = files.ListDirectory(path);
        for (const auto& entry : entries.value())
            names.push_back(entry.name + (entry.isDirectory ? "/" : ""));
        return names;
    }
    static std::string ReadThrough(platform::FileSystem::Reader& reader, std::size_t block) {
        std::string bytes, buffer(block, '\0');
        while (const std::size_t count = reader.Read(buffer.data(), buffer.size()))
            bytes.append(buffer, 0, count);
        return bytes;
    }

    const TemporaryDirectory directory;
    HostFileSystem files;
};

TEST_F(FilesContract, ListsFilesAndDirectories) {
    directory.Write("game.adf", "x");
    fs::create_directory(directory.Path("sub"));
    EXPECT_THAT(Names(directory.Root()), UnorderedElementsAre("game.adf", "sub/"));
    EXPECT_THAT(Names(directory.Path("sub")), ::testing::IsEmpty());
}

TEST_F(FilesContract, AListOfAMissingDirectoryOrAFileIsNone) {
    directory.Write("file", "x");
    EXPECT_EQ(files.ListDirectory(directory.Path("missing")), std::nullopt);
    EXPECT_EQ(files.ListDirectory(directory.Path("file")), std::nullopt);
    EXPECT_EQ(files.ListDirectory(""), std::nullopt);
    EXPECT_EQ(files.ListDirectory(directory.Root() + std::string("\0/x", 3)), std::nullopt);
}

TEST_F(FilesContract, ADirectoryHoldsSomethingOrNothing) {
    EXPECT_EQ(files.HasEntries(directory.Root()), false);
    fs::create_directory(directory.Path("sub"));
    EXPECT_EQ(files.HasEntries(directory.Root()), true);
    EXPECT_EQ(files.HasEntries(directory.Path("sub")), false);
    directory.Write("sub/file", "x");
    EXPECT_EQ(files.HasEntries(directory.Path("sub")), true);
    for (const std::string& none : {directory.Path("missing"), directory.Path("sub/file"),
                                    std::string(), directory.Root() + std::string("\0/x", 3)})
        EXPECT_EQ(files.HasEntries(none), std::nullopt) << none;
}

TEST_F(FilesContract, NoPatternIsAFile) {
    directory.Write("Game.adf", "x");
    EXPECT_TRUE(files.FileExists(directory.Path("Game.adf")));
    for (const std::string name : {"*.adf", "Game.ad?", "Game.adf/", "Game.adf/x"})
        EXPECT_FALSE(files.FileExists(directory.Path(name))) << name;
    EXPECT_FALSE(files.FileExists(directory.Root()));
    EXPECT_FALSE(files.FileExists(""));
    EXPECT_FALSE(files.FileExists("\"" + directory.Path("Game.adf") + "\""));
    EXPECT_FALSE(files.FileExists(directory.Path("Game.adf") + std::string("\0x", 2)));
}

TEST_F(FilesContract, ADirectoryHasOneIdentityWhateverPathLeadsToIt) {
    fs::create_directory(directory.Path("sub"));
    const auto identity = files.IdentityOf(directory.Path("sub"));
    ASSERT_TRUE(identity);
    EXPECT_EQ(files.IdentityOf(directory.Path("sub/../sub/.")), identity);
    EXPECT_NE(files.IdentityOf(directory.Root()), identity);
    EXPECT_EQ(files.IdentityOf(directory.Path("missing")), std::nullopt);
    EXPECT_FALSE(files.IsLink(directory.Path("sub")));
    EXPECT_FALSE(files.IsLink(""));
}

TEST_F(FilesContract, ReadsWholeFilesOfAnyBytes) {
    const std::string bytes("a\0b\r\n\xff\x1a", 7);
    const std::string large(3'000'000, 'x');
    directory.Write("bytes", bytes);
    directory.Write("empty", "");
    directory.Write("large", large);
    EXPECT_EQ(files.ReadFile(directory.Path("bytes")), bytes);
    EXPECT_EQ(files.ReadFile(directory.Path("empty")), "");
    EXPECT_EQ(files.ReadFile(directory.Path("large")), large);
}

TEST_F(FilesContract, GivesAFileInBlocks) {
    std::string bytes;
    for (int i = 0; i < 10000; ++i)
        bytes += static_cast<char>(i % 251);
    directory.Write("file", bytes);
    for (const std::size_t block : {std::size_t{1}, std::size_t{4096}, std::size_t{100000}}) {
        const auto reader = files.OpenFile(directory.Path("file"));
        ASSERT_NE(reader, nullptr);
        EXPECT_EQ(ReadThrough(*reader, block), bytes);
        char more = 0;
        EXPECT_EQ(reader->Read(&more, 1), 0U);
    }
}

TEST_F(FilesContract, ReadsOnlyFiles) {
    directory.Write("empty", "");
    EXPECT_NE(files.OpenFile(directory.Path("empty")), nullptr);
    for (const std::string& path : {directory.Root(), directory.Path("missing"), std::string(),
                                    directory.Path(std::string("empty\0", 6))}) {
        EXPECT_EQ(files.OpenFile(path), nullptr) << path;
        EXPECT_EQ(files.ReadFile(path), std::nullopt) << path;
    }
}

TEST_F(FilesContract, WritesAndReplaces) {
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), "old"));
    EXPECT_EQ(directory.Read("file"), "old");
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), std::string("n\0\r\nw", 5)));
    EXPECT_EQ(directory.Read("file"), std::string("n\0\r\nw", 5));
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(FilesContract, NeverReplacesADirectory) {
    fs::create_directory(directory.Path("sub"));
    EXPECT_EQ(files.WriteFile(directory.Path("sub"), "x"), std::errc::is_a_directory);
    for (const std::string name : {"new/", "missing/file"})
        EXPECT_TRUE(files.WriteFile(directory.Path(name), "x")) << name;
    EXPECT_TRUE(files.WriteFile("", "x"));
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(FilesContract, AppendsAndCreates) {
    EXPECT_FALSE(files.AppendFile(directory.Path("file"), "one"));
    EXPECT_FALSE(files.AppendFile(directory.Path("file"), "two"));
    EXPECT_FALSE(files.AppendFile(directory.Path("file"), ""));
    EXPECT_EQ(directory.Read("file"), "onetwo");
}

TEST_F(FilesContract, DeletesFilesOnly) {
    directory.Write("file", "x");
    fs::create_directory(directory.Path("sub"));
    EXPECT_FALSE(files.DeleteFile(directory.Path("file")));
    EXPECT_EQ(files.DeleteFile(directory.Path("file")), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(files.DeleteFile(directory.Path("sub")));
    EXPECT_TRUE(files.DeleteFile(""));
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(FilesContract, MovesAFileToAFreeNameOnly) {
    directory.Write("from", "x");
    directory.Write("taken", "y");
    fs::create_directory(directory.Path("sub"));
    EXPECT_EQ(files.MoveFile(directory.Path("from"), directory.Path("taken")),
              std::errc::file_exists);
    EXPECT_TRUE(files.MoveFile(directory.Path("from"), directory.Path("sub")));
    EXPECT_TRUE(files.MoveFile(directory.Path("from"), directory.Path("missing/from")));
    EXPECT_TRUE(files.MoveFile(directory.Path("missing"), directory.Path("other")));
    EXPECT_TRUE(files.MoveFile("", directory.Path("other")));
    EXPECT_EQ(directory.Read("from"), "x");
    EXPECT_EQ(directory.Read("taken"), "y");
    EXPECT_FALSE(files.MoveFile(directory.Path("from"), directory.Path("sub/Größe")));
    EXPECT_EQ(directory.Read("sub/Größe"), "x");
    EXPECT_EQ(directory.Count(), 2U);
}

TEST_F(FilesContract, MakesADirectoryOnceAndTakesOneThatIsThere) {
    EXPECT_FALSE(files.MakeDirectory(directory.Path("Größe")));
    EXPECT_FALSE(files.MakeDirectory(directory.Path("Größe")));
    EXPECT_THAT(Names(directory.Root()), UnorderedElementsAre("Größe/"));
    EXPECT_TRUE(files.MakeDirectory(directory.Path("missing/sub")));
    directory.Write("file", "x");
    EXPECT_TRUE(files.MakeDirectory(directory.Path("file")));
    EXPECT_EQ(directory.Read("file"), "x");
    EXPECT_TRUE(files.MakeDirectory(""));
}

// Which picture of a directory is shown, whoever lists it.
TEST_F(FilesContract, TheFirstMatchIsTheSameOnEachHost) {
    for (const char* name : {"Turrican II.png", "Turrican.png", "turrican.jpg", "Turrican.nfo",
                             "ünder.PNG", "Game [a].gif", "Zool.nfo"})
        directory.Write(name, "x");
    fs::create_directory(directory.Path("Turrican.gif"));
    const auto first = [&](const char* prefix, const char* ending, const char* stem) {
        return files.FirstMatch(directory.Root(), prefix, ending, stem).value_or("");
    };
    EXPECT_EQ(first("Turrican", "", "Turrican"), "turrican.jpg");
    EXPECT_EQ(first("Turrican", ".png", "Turrican"), "Turrican.png");
    EXPECT_EQ(first("Turrican", ".png", "other"), "Turrican.png");
    EXPECT_EQ(first("Turrican", ".gif", "Turrican"), "") << "a directory";
    EXPECT_EQ(first("Ünder", ".png", "Ünder"), "ünder.PNG");
    EXPECT_EQ(first("Game [a]", "", "Game [a]"), "Game [a].gif");
    EXPECT_EQ(first("Z*", "", "Zool"), "");
    EXPECT_EQ(first("Zool", "", "Zool"), "Zool.nfo");
    // A prefix that ends in a point is no stem; the preferred one still comes first.
    for (const char* name : {"Background.old.png", "Background.png", "Background.bmp.nfo",
                             "Corner.old.gif", "Corner.a.txt", "Corner"})
        directory.Write(name, "x");
    EXPECT_EQ(first("Background.", "", "Background"), "Background.png");
    EXPECT_EQ(first("background.", "png", "BACKGROUND"), "Background.png");
    EXPECT_EQ(first("Background.", "", "other"), "Background.old.png");
    EXPECT_EQ(first("Corner.", "", "Corner"), "Corner.old.gif");
    EXPECT_EQ(first("Corner.a", "", "Corner"), "Corner.a.txt");
    EXPECT_EQ(files.FirstMatch(directory.Path("missing"), "a", "", "a"), std::nullopt);
    EXPECT_EQ(files.FirstMatch("", "a", "", "a"), std::nullopt);
}

}  // namespace
}  // namespace kivu::testing
