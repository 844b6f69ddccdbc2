// The settings window on a host with drives and short names: from a program that is pointed at to
// the command line of a game.

#include "scenarios/settings.h"
#include "testing/md5.h"
#include "testing/memory_file_system.h"

namespace kivu::scenarios {
namespace {

using kivu::testing::Md5;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::Pair;

constexpr const char* master = "C:\\Kivu\\Config\\Kivu_Master.uaecfg";

class WindowsSettings : public SettingsScenario {
 protected:
    WindowsSettings() {
        options.windowsStartFiles = true;
        memory.AddFile("D:\\G\\Super Game.zip", "x");
        memory.AddFile("D:\\G\\SUPERG~1.ZIP", "x");
        memory.SetShortName("D:\\G\\Super Game.zip", "D:\\G\\SUPERG~1.ZIP");
        FreshEmulator();
    }
    // The launcher goes before its disk.
    ~WindowsSettings() override {
        interpreter.reset();
        session.reset();
    }
    // "Alpha" has one game in its cache and no profile.
    void FreshEmulator() {
        memory.Remove("C:\\Kivu\\Config");
        memory.AddFile("C:\\Kivu\\Config\\Kivu.ini", "[Settings]\r\nLastEmulator=Alpha\r\n");
        memory.AddFile("C:\\Kivu\\Config\\Alpha\\Kivu_Cache.txt",
                       "D:\\G\\Super Game.zip\r\nSuper Game\r\n");
    }
    void Start() {
        options.programDirectory = "C:\\Kivu";
        interpreter.reset();
        session = std::make_unique<driver::Session>(memory, options);
        interpreter = std::make_unique<driver::Interpreter>(*session);
        Do("start");
        Boxes();
    }
    std::string Value(const std::string& key) {
        const std::string bytes = "\n" + memory.BytesOf("C:\\Kivu\\Config\\Alpha\\Kivu.ini");
        const std::size_t at = bytes.find("\n" + key + "=");
        if (at == std::string::npos) return "(none)";
        const std::size_t begin = at + key.size() + 2;
        return bytes.substr(begin, bytes.find('\r', begin) - begin);
    }
    // The path is typed and its field left, with these answers to what comes up.
    void EnterProgram(const std::string& path, const char* answer) {
        Do("focus", "SettingsForm.txtWinUAEExe");
        Set("txtWinUAEExe.Text", path);
        Do("answer", answer);
        Do("focus", "SettingsForm.DirBefehleTxt");
    }
    using BoxTexts = std::vector<std::pair<std::string, std::string>>;
    // Titles and texts.
    BoxTexts TakeBoxes() {
        BoxTexts shown;
        for (const Json& box : Boxes())
            shown.emplace_back(box["title"], box["text"]);
        return shown;
    }
    void Discard() {
        Host().dialogs.answers = {platform::Answer::Ok};
        Click("ExitBtn");
        EXPECT_FALSE(open());
    }
    // The command line of the game behind "Start" and the emulator's directory, once the program
    // was taken with its proposal and saved.
    std::string CommandLine(const std::string& program) {
        FreshEmulator();
        memory.AddFile("D:\\e\\" + program, "MZ");
        Start();
        Open([&] {
            EnterProgram("D:\\e\\" + program, "Yes");
            Save();
            Key("Escape");
        });
        Boxes();
        Do("click", "Form1.Label3");
        Do("dblclick", "Form1.UAE_Short", 0);
        const std::string start = "Start \"\" D:\\e\\";
        const std::string bytes = memory.BytesOf("C:\\Kivu\\Config\\Alpha\\Kivu_tmp.bat");
        const std::size_t at = bytes.find(start);
        if (at == std::string::npos || !bytes.ends_with("\r\n")) return bytes;
        return bytes.substr(at + start.size(), bytes.size() - at - start.size() - 2);
    }

    kivu::testing::MemoryFileSystem memory{'\\'};
};

TEST_F(WindowsSettings, OpenedAndClosedAFreshProfileHoldsTheWindowsDefaults) {
    Start();
    const std::string before = memory.BytesOf("C:\\Kivu\\Config\\Alpha\\Kivu.ini");
    Open([&] {
        EXPECT_EQ(TextOf("TxtRomPath"), "C:\\Kivu\\");
        Key("Escape");
    });
    EXPECT_EQ(Boxes().size(), 0u);
    const std::pair<const char*, const char*> added[] = {
        {"Dir_Parameter", "*.adf"},
        {"SplashTimer", "4"},
        {"WinUAE_UseMasterConfig", "1"},
        {"AutoMountDeamonTool", "0"},
        {"UseQuote", "0"},
        {"EmulatorParameterAddDiskPath", "0"},
        {"EmulatorParameterAddDiskPathWithoutPath", "0"}};
    for (const auto& [key, value] : added) {
        EXPECT_THAT(before, Not(HasSubstr(std::string(key) + "="))) << key;
        EXPECT_EQ(Value(key), value) << key;
    }
    for (const char* key : {"RomPath", "EmulatorPath", "RunVBS_Script"})
        EXPECT_EQ(Value(key), "(none)") << key;
}

TEST_F(WindowsSettings, WinUaeIsSavedAsItsRowSays) {
    memory.AddFile("C:\\Emu\\WinUAE\\winuae.exe", "MZ");
    Start();
    Open([&] {
        EnterProgram("C:\\Emu\\WinUAE\\winuae.exe", "Yes");
        EXPECT_EQ(TextOf("TxtRomPath"), "C:\\Emu\\WinUAE\\");
        Save();
        Key("Escape");
    });
    const std::pair<const char*, const char*> stored[] = {
        {"KickstartRom", ""},
        {"RomPath", "..\\Emu\\WinUAE"},
        {"AutoMountDeamonTool", "0"},
        {"EmulatorPath", "..\\Emu\\WinUAE\\winuae.exe"},
        {"Dir_Parameter", "*.adf"},
        {"FullScreen", "0"},
        {"UseQuote", "0"},
        {"SplashTimer", "5"},
        {"WinUAE_ConfigParameter", "-f"},
        {"EmulatorParameter", ""},
        {"EmulatorParameterAddDiskPath", "0"},
        {"EmulatorParameterAddDiskPathWithoutPath", "0"},
        {"WinUAE_UseMasterConfig", "1"},
        {"SmartRomSelection", "0"},
        {"RunVBS_Script", "(none)"}};
    for (const auto& [key, value] : stored)
        EXPECT_EQ(Value(key), value) << key;
}

TEST_F(WindowsSettings, GamesAreStartedAsTheRowsSay) {
    const std::string quoted = "\"D:\\G\\Super Game.zip\"", brief = "D:\\G\\SUPERG~1.ZIP";
    const std::pair<const char*, std::string> rows[] = {
        {"snes9x.exe", " " + brief},
        {"dolphin.exe", " /e " + quoted},
        {"pcsx2.exe", " --usecd --nogui --skipbios " + quoted},
        // The blank is there for all rows.
        {"nulldc.exe", " -config ImageReader:DefaultImage= " + quoted},
        {"t2k.exe", " SUPERG~1.ZIP"},
        {"epsxe.exe", " -nogui -loadbin"},
        {"mame.exe", " -cheat -skip_gameinfo " + brief},
        {"x64.exe", " -fullscreen -autostart " + brief},
        {"akiko.exe", ""},
        {"demul.exe", ""},
        {"yabause.exe", ""},
        {"nebula.exe", ""},
        {"pt.exe", ""},
        {"handy.exe", ""},
        {"project64.exe", ""}};
    for (const auto& [program, behind] : rows)
        EXPECT_EQ(CommandLine(program), program + behind);
}

TEST_F(WindowsSettings, EachProgramIsAskedAboutInItsWords) {
    for (const char* file : {"handy.exe", "x64.exe", "Steem.exe", "x64sc.exe"})
        memory.AddFile(std::string("C:\\Emu\\") + file, "MZ");
    const std::string set = "Set the default launch - parameter for this program?";
    const auto unknown = Pair("Unknown Emulator",
                              "Unknown Emulator. You have to set the launch parameter manually.\r\r"
                              "Set parameter back to default now?");
    Start();
    Open([&] {
        EnterProgram("C:\\Emu\\WINUAE.EXE", "No");
        EXPECT_THAT(TakeBoxes(),
                    ElementsAre(Pair("set defaults?", "WinUAE (Amiga 500) found!\r\r" + set)));
        EnterProgram("C:\\Emu\\handy.exe", "No");
        EXPECT_THAT(TakeBoxes(),
                    ElementsAre(Pair("set defaults?", "Handy - Lynxfound!\r\r" + set)));
        EnterProgram("C:\\Emu\\x64.exe", "No");
        EXPECT_THAT(TakeBoxes(),
                    ElementsAre(Pair("C-64 / 128  set defaults?", "X64 / X128 found!\r\r" + set)));
        for (const char* file : {"C:\\Emu\\Steem.exe", "C:\\Emu\\x64sc.exe"}) {
            EnterProgram(file, "No");
            EXPECT_THAT(TakeBoxes(), ElementsAre(unknown)) << file;
        }
        Discard();
    });
    options.language = "German";
    Start();
    Open([&] {
        EnterProgram("C:\\Emu\\WINUAE.EXE", "No");
        EXPECT_THAT(TakeBoxes(),
                    ElementsAre(Pair("Standard setzen?",
                                     "WinUAE (Amiga 500) wurde gefunden!\r\r"
                                     "Sollen die Standard Launch parameter gesetzt werden?")));
        Discard();
    });
}

TEST_F(WindowsSettings, AMissingProgramThatNobodyKnowsIsTakenWithoutABox) {
    Start();
    Open([&] {
        EnterProgram("C:\\Emu\\foo.exe", "No");
        EXPECT_THAT(TakeBoxes(), ElementsAre());
        EXPECT_EQ(TextOf("SecondsTimerTxt"), "0");
        EXPECT_TRUE(Unsaved());
        Discard();
    });
}

TEST_F(WindowsSettings, BrowsingAsksTwiceAndOffersAStart) {
    memory.AddFile("C:\\Emu\\snes9x.exe", "MZ");
    Start();
    Do("runs");
    Open([&] {
        another = [&](forms::Form&) {
            Do("type", "Files.FileName", "C:\\Emu\\snes9x.exe");
            Do("click", "Files.Ok");
        };
        Do("answer", "Yes", "Yes", "Yes");
        Click("Command2");
        const auto known = Pair(
            "set defaults?", AllOf(HasSubstr("SNES (Super Nintendo Entertainment System) found!"),
                                   EndsWith("for this program?")));
        EXPECT_THAT(TakeBoxes(), ElementsAre(known, known,
                                             Pair("snes9x.exe starten?",
                                                  "Emulator zum Einstellen jetzt starten?")));
        const Json runs = Do("runs")["value"];
        ASSERT_EQ(runs.size(), 1u);
        EXPECT_EQ(runs[0]["words"][0], "C:\\Emu\\snes9x.exe");
        Discard();
    });
}

// --- WinUAE's configuration.

class WindowsMaster : public WindowsSettings {
 protected:
    WindowsMaster() {
        memory.AddFile("C:\\Emu\\winuae.exe", "MZ");
        memory.AddFile("C:\\Kivu\\Config\\Alpha\\Kivu.ini",
                       "[Settings]\r\nRomPath=D:\\G\r\nEmulatorPath=..\\Emu\\winuae.exe\r\n"
                       "WinUAE_UseMasterConfig=1\r\n");
    }
};

TEST_F(WindowsMaster, TheDefaultIsShownWithoutItsEmptyLineAndSavedWithOne) {
    Start();
    ASSERT_EQ(memory.BytesOf(master).size(), 231u);
    Open([&] {
        const std::string shown = TextOf("TxtMasterConfig");
        EXPECT_EQ(shown.size(), 229u);
        EXPECT_EQ(Md5::Of(shown), "ee4ad06ec82e9684987c084ba9ed86c6");
        Set("FullscreenCheck.Value", Of("FullscreenCheck.Value") == 1 ? 0 : 1);
        Save();
        Key("Escape");
    });
    EXPECT_EQ(memory.BytesOf(master).size(), 231u);
    EXPECT_EQ(Md5::Of(memory.BytesOf(master)), "b8b95985ca33188f9ed5b9f1a5271c6c");
}

TEST_F(WindowsMaster, AnImportLeavesOutWhatALaunchWrites) {
    memory.AddFile("C:\\Emu\\mine.uae",
                   "; sample\r\nconfig_description=A500\r\n  use_gui = no\r\n"
                   "floppy0=D:\\a.adf\r\nfloppy1=D:\\b.adf\r\n;floppy1=\r\nfloppy1type=0\r\n"
                   "Floppy1=x\r\nfloppy2=\r\nfloppy3=D:\\d.adf\r\n"
                   "kickstart_rom_file=D:\\kick13.rom\r\nkickstart_rom_file_id=D52B52FD\r\n"
                   "   \r\n\r\nchipmem_size=1\r\nnr_floppies=2\r\n");
    Start();
    Open([&] {
        Click("WinUAEBtn");
        another = [&](forms::Form&) {
            Do("type", "Files.FileName", "C:\\Emu\\mine.uae");
            Do("click", "Files.Ok");
        };
        Click("Command1");
        EXPECT_EQ(TextOf("TxtMasterConfig").size(), 176u);
        EXPECT_EQ(Md5::Of(TextOf("TxtMasterConfig")), "5f389fe47c6bdfdb30def18929850313");
        Save();
        Click("RemovePicEnabled");
        Key("Escape");
    });
    EXPECT_EQ(memory.BytesOf(master).size(), 178u);
    EXPECT_EQ(Md5::Of(memory.BytesOf(master)), "8b3b253c19df199606acae085b590cb1");
    EXPECT_EQ(Value("KickstartRom"), "");
}

}  // namespace
}  // namespace kivu::scenarios
