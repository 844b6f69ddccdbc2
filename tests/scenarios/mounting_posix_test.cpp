// Mounts and scripts as /bin/sh and the real tools run them.
#include "run_program.h"
#include "scenarios/mounting.h"

namespace kivu::scenarios {
namespace {

namespace fs = std::filesystem;

using ::testing::HasSubstr;

class MountingPosix : public Mounting {
 protected:
    // Start files that are not the emulator's run.
    void RunForReal() {
        Host().starter.onRun = [](const platform::StartRequest& request) {
            if (request.startFile && !request.watched)
                testing::RunProgram({"/bin/sh", request.words[0]}, "/dev/null");
        };
    }
    // A program that writes down how it is called.
    std::string Recorder(const std::string& name) {
        const std::string path =
            tree.Write(name, "#!/bin/sh\nprintf '<%s>' \"$@\" >> '" + tree.Path("record") + "'\n");
        fs::permissions(path, fs::perms::owner_all);
        return path;
    }
};

TEST_F(MountingPosix, NoCharacterOfANameIsEverActedUpon) {
    const std::string game = "It's; $(touch x) `id` \"q\" & | > < * ? \\ %PATH% !\xFF.iso";
    tree.Write("Roms/Alpha/" + game, "x");
    UseTool(Recorder("Tools/my 'tool' & $(y)"));
    Start();
    RunForReal();
    Call("StartGame", tree.Path("Roms/Alpha/" + game));
    EXPECT_EQ(tree.Read("record"),
              "<-unmount><0><-mount><0,><" + tree.Path("Roms/Alpha/" + game) + ">");
    EXPECT_FALSE(MountFileIsThere());
    EXPECT_FALSE(tree.Exists("x"));
}

TEST_F(MountingPosix, AScriptOfTheUsersRunsByItsFirstLine) {
    Profile({{"RunVBS_Script", "1"}, {"SplashTimer", "0"}});
    tree.Write("Config/Alpha/Startscript.vbs",
               "#!/bin/sh\necho \"$0\" > '" + tree.Path("record") + "'\n");
    Start();
    RunForReal();
    LaunchBee();
    EXPECT_EQ(tree.Read("record"), tree.Path("Config/Alpha/Startscript.vbs") + "\n");
    EXPECT_FALSE(tree.Exists("Config/Alpha/Startscript.vbs.bat"));
}

// A CD image with one file, without a program to make it: a volume of ISO 9660 by hand.
std::string IsoImage() {
    constexpr std::size_t sector = 2048;
    std::string image(24 * sector, '\0');
    const auto put = [&](std::size_t at, const std::string& bytes) {
        image.replace(at, bytes.size(), bytes);
    };
    const auto both32 = [](std::uint32_t value) {
        std::string bytes;
        for (int i = 0; i < 4; ++i)
            bytes += static_cast<char>(value >> (8 * i));
        for (int i = 3; i >= 0; --i)
            bytes += static_cast<char>(value >> (8 * i));
        return bytes;
    };
    const auto both16 = [](std::uint16_t value) {
        return std::string{static_cast<char>(value), static_cast<char>(value >> 8),
                           static_cast<char>(value >> 8), static_cast<char>(value)};
    };
    const auto record = [&](std::uint32_t extent, std::uint32_t size, bool directory,
                            const std::string& name) {
        std::string entry(2, '\0');
        entry += both32(extent) + both32(size) + std::string("\x5A\1\1\0\0\0\0", 7);
        entry += directory ? '\2' : '\0';
        entry += std::string(2, '\0') + both16(1) + static_cast<char>(name.size()) + name;
        if (name.size() % 2 == 0) entry += '\0';
        entry[0] = static_cast<char>(entry.size());
        return entry;
    };
    const std::string self(1, '\0'), parent(1, '\1');
    // The volume's descriptor, its end, the root and the file.
    put(16 * sector, std::string("\1CD001\1\0", 8) + std::string(32, ' ') + std::string(32, ' '));
    put(16 * sector + 80, both32(24));
    put(16 * sector + 120, both16(1) + both16(1) + both16(sector));
    put(16 * sector + 156, record(20, sector, true, self));
    put(16 * sector + 881, "\1");
    put(17 * sector, std::string("\xFF"
                                 "CD001\1",
                                 7));
    put(20 * sector, record(20, sector, true, self) + record(20, sector, true, parent) +
                         record(21, 5, false, "GAME.TXT;1"));
    put(21 * sector, "hello");
    return image;
}

TEST_F(MountingPosix, FuseisoMountsARealImage) {
    const std::string fuseiso = "/usr/bin/fuseiso", place = tree.Path("runtime/kivu-cd0");
    if (!fs::exists(fuseiso) || !fs::exists("/dev/fuse")) {
        std::cerr << "SKIPPED: fuseiso or /dev/fuse is not here\n";
        GTEST_SKIP() << "no fuseiso";
    }
    tree.MakeDirectory("runtime");
    const std::string image = tree.Write("Roms/Alpha/it's a CD.iso", IsoImage());
    // Some places have the device and may not mount.
    tree.MakeDirectory("try");
    testing::RunProgram({fuseiso, image, tree.Path("try")}, "/dev/null");
    const bool mounts = tree.Exists("try/game.txt");
    testing::RunProgram({"fusermount", "-u", tree.Path("try")}, "/dev/null");
    if (!mounts) {
        std::cerr << "SKIPPED: fuseiso may not mount here\n";
        GTEST_SKIP() << "no right to mount";
    }
    UseTool(fuseiso);
    options.runtimeDirectory = tree.Path("runtime");
    Start();
    RunForReal();
    Call("StartGame", image);
    EXPECT_EQ(tree.Read("runtime/kivu-cd0/game.txt"), "hello");
    // The next one takes its place.
    Call("EmuActiveTimer_Timer");
    Call("StartGame", image);
    EXPECT_EQ(tree.Read("runtime/kivu-cd0/game.txt"), "hello");
    testing::RunProgram({"fusermount", "-u", place}, "/dev/null");
    EXPECT_FALSE(tree.Exists("runtime/kivu-cd0/game.txt"));
}

}  // namespace
}  // namespace kivu::scenarios
