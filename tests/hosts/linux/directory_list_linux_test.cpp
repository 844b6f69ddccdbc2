#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "hosts/linux/file_system_linux.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

using ::testing::ElementsAre;

// Lists with what a walk through a tree wants to know.
class DirectoryListLinux : public ::testing::Test {
 protected:
    // Each with "/" for a directory and "@" for a link to one.
    static std::vector<std::string> Names(const platform::FileSystem::Listing& listing) {
        std::vector<std::string> names;
        for (const auto& item : listing.items) {
            names.push_back(std::string(listing.Name(item)) + (item.isDirectory ? "/" : "") +
                            (item.isLink ? "@" : ""));
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    kivu::testing::TemporaryDirectory directory;
    LinuxFileSystem files;
};

TEST_F(DirectoryListLinux, TellsLinksToDirectoriesAndTheDirectorysIdentity) {
    directory.Write("game.adf", "");
    fs::create_directory(directory.Path("sub"));
    fs::create_directory_symlink("sub", directory.Path("linked"));
    fs::create_symlink("game.adf", directory.Path("link.adf"));
    fs::create_symlink("nowhere", directory.Path("dangling"));
    const auto listing = files.ReadDirectory(directory.Root());
    ASSERT_TRUE(listing);
    EXPECT_THAT(Names(*listing), ElementsAre("game.adf", "link.adf", "linked/@", "sub/"));
    EXPECT_EQ(listing->identity, files.IdentityOf(directory.Root()));
    EXPECT_EQ(files.ReadDirectory(directory.Path("linked"))->identity,
              files.IdentityOf(directory.Path("sub")));
    EXPECT_FALSE(files.ReadDirectory(directory.Path("game.adf")));
}

TEST_F(DirectoryListLinux, AgreesWithWhatAnyFileSystemGives) {
    directory.Write("game.adf", "");
    fs::create_directory(directory.Path("sub"));
    fs::create_directory_symlink("sub", directory.Path("linked"));
    for (const std::string& path : {directory.Root(), directory.Root() + "/"}) {
        const auto listing = files.ReadDirectory(path);
        const auto plain = files.platform::FileSystem::ReadDirectory(path);
        ASSERT_TRUE(listing && plain);
        EXPECT_EQ(Names(*listing), Names(*plain));
        EXPECT_EQ(listing->identity, plain->identity);
    }
}

TEST_F(DirectoryListLinux, MoreThanTheKernelGivesAtOnceComesWhole) {
    std::vector<std::string> expected;
    for (int i = 0; i < 700; ++i) {
        expected.push_back(std::string(100, 'n') + std::to_string(1000 + i));
        directory.Write(expected.back(), "");
    }
    const auto listing = files.ReadDirectory(directory.Root());
    ASSERT_TRUE(listing);
    EXPECT_EQ(Names(*listing), expected);
}

}  // namespace
}  // namespace kivu::hosts
