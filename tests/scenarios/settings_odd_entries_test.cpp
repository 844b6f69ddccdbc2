// The settings window over entries that are no files and no directories: nothing waits for them,
// and nothing takes their place unasked.

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

namespace fs = std::filesystem;

struct OddEntry {
    const char* name;
    void (*make)(const std::string& path);
};

void MakeSocket(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(socket);
}

const OddEntry oddEntries[] = {
    {"pipe", [](const std::string& path) { ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0); }},
    {"socket", MakeSocket},
    {"dangling link", [](const std::string& path) { fs::create_symlink("/nowhere/at/all", path); }},
    {"link to itself", [](const std::string& path) { fs::create_symlink(path, path); }},
    {"endless device", [](const std::string& path) { fs::create_symlink("/dev/zero", path); }},
    {"empty directory", [](const std::string& path) { fs::create_directory(path); }},
};

class OddEntries : public WinuaeSettings {
 protected:
    // The path below the program directory becomes such an entry.
    std::string Make(const OddEntry& entry, const std::string& name) {
        const std::string path = tree.Path(name);
        fs::remove_all(path);
        entry.make(path);
        return path;
    }
    // In the place of a file, with the profile of the emulator as it was.
    void ForEach(const std::function<void(const OddEntry&)>& test) {
        for (const OddEntry& entry : oddEntries) {
            SCOPED_TRACE(entry.name);
            test(entry);
        }
    }
    void Fill(const std::string& key, const std::string& value) {
        ProgramDirectory::Settings settings{{"RomPath", "/Roms/Alpha"},
                                            {"EmulatorPath", "/Emu/winuae.exe"},
                                            {"WinUAE_UseMasterConfig", "1"}};
        std::erase_if(settings, [&](const auto& setting) { return setting.first == key; });
        settings.emplace_back(key, value);
        tree.AddEmulator("Alpha", settings);
    }
};

TEST_F(OddEntries, AsTheDirectoryOfTheGamesAreFaultyAndHoldNoGames) {
    ForEach([&](const OddEntry& entry) {
        const std::string path = Make(entry, "odd");
        Fill("RomPath", "/odd");
        Start();
        Open([&] {
            EXPECT_TRUE(Shown("FehlerIcon(1)"));
            EXPECT_EQ(TextOf("TxtRomPath"), path + "/");
            // As if it were typed, then saved, then read.
            Set("TxtRomPath.Text", path);
            EXPECT_TRUE(Shown("FehlerIcon(1)"));
            Save();
            EXPECT_EQ(Stored("RomPath"), "/odd");
            Click("LoadBtn");
            EXPECT_FALSE(open());
        });
        EXPECT_TRUE(Boxes().empty());
        EXPECT_TRUE(Visible("SettingsBtn"));
        EXPECT_EQ(Get("Busy"), false);
    });
}

TEST_F(OddEntries, AsTheProgramAreFaultyAndNotStarted) {
    ForEach([&](const OddEntry& entry) {
        const std::string path = Make(entry, "Emu/odd.exe");
        Fill("EmulatorPath", "/Emu/odd.exe");
        Start();
        Do("runs");
        Open([&] {
            EXPECT_EQ(TextOf("txtWinUAEExe"), path);
            EXPECT_TRUE(Shown("FehlerIcon(0)"));
            EXPECT_FALSE(Unsaved());
            Click("LaunchButton");
            EXPECT_TRUE(Do("runs")["value"].empty());
            // Typed anew: a program that nobody knows and that is no file is taken quietly.
            Do("focus", "SettingsForm.txtWinUAEExe");
            Set("txtWinUAEExe.Text", path + "x");
            Set("txtWinUAEExe.Text", path);
            Do("focus", "SettingsForm.DirBefehleTxt");
            EXPECT_TRUE(Shown("FehlerIcon(0)"));
            Save();
            EXPECT_EQ(Stored("EmulatorPath"), "/Emu/odd.exe");
            Key("Escape");
        });
        EXPECT_TRUE(Boxes().empty());
    });
}

TEST_F(OddEntries, AsRomAndMountingToolAreFaulty) {
    ForEach([&](const OddEntry& entry) {
        const std::string path = Make(entry, "odd");
        Fill("KickstartRom", "");
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        Start();
        Open([&] {
            Set("TxtKickstartRomFile.Text", path);
            Set("DeamonPath.Text", path);
            EXPECT_TRUE(Shown("FehlerIcon(2)"));
            Save();
            Key("Escape");
        });
        EXPECT_EQ(Stored("KickstartRom"), "/odd");
        Open([&] {
            EXPECT_EQ(TextOf("DeamonPath"), path);
            EXPECT_EQ(TextOf("TxtKickstartRomFile"), path);
            EXPECT_FALSE(Unsaved());
            Key("Escape");
        });
        EXPECT_TRUE(Boxes().empty());
    });
}

TEST_F(OddEntries, AsWinUaesMasterAreNotShownAndStay) {
    ForEach([&](const OddEntry& entry) {
        const std::string path = Make(entry, "Config/Kivu_Master.uaecfg");
        const fs::file_type type = fs::symlink_status(path).type();
        Start();
        Boxes();
        Open([&] {
            Click("WinUAEBtn");
            EXPECT_EQ(TextOf("TxtMasterConfig"), "");
            Set("TxtMasterConfig.Text", "a=1\r\n");
            // To every question No.
            for (int i = 0; i < 5; ++i)
                Do("answer", "No");
            Click("SaveBtn");
            EXPECT_EQ(fs::symlink_status(path).type(), type);
            Click("Command3");
            Do("close", "LoadingInfo");
            Click("RemovePicEnabled");
            Host().dialogs.answers = {platform::Answer::Ok};
            Key("Escape");
            EXPECT_FALSE(open());
        });
        EXPECT_EQ(fs::symlink_status(path).type(), type);
        fs::remove_all(path);
    });
}

TEST_F(OddEntries, AsTheProfilesAreToldAndStay) {
    for (const char* name : {profile, programProfile}) {
        SCOPED_TRACE(name);
        ForEach([&](const OddEntry& entry) {
            const std::string path = Make(entry, name);
            const fs::file_type type = fs::symlink_status(path).type();
            Start();
            if (name == std::string(programProfile)) {
                Form().EmuListbox.SetListIndex(0);
                Call("SelectEmulator", false);
            }
            Boxes();
            Open([&] {
                Set("UAELaunchParaneter.Text", "-x");
                Set("ResetScreenRes.Value", 1);
                Click("SaveBtn");
                EXPECT_TRUE(Unsaved());
                const Json boxes = Boxes();
                ASSERT_EQ(boxes.size(), 1u);
                EXPECT_THAT(boxes[0]["text"].get<std::string>(), ::testing::HasSubstr(path));
                Host().dialogs.answers = {platform::Answer::Ok};
                Key("Escape");
                EXPECT_FALSE(open());
            });
            EXPECT_EQ(fs::symlink_status(path).type(), type);
            fs::remove_all(path);
        });
        Fill("RomPath", "/Roms/Alpha");
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
}

}  // namespace
}  // namespace kivu::scenarios
