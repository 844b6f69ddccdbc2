#pragma once

#include <filesystem>
#include <gmock/gmock.h>
#include <memory>
#include <string>

#include "driver/interpreter.h"
#include "host_files.h"
#include "scenarios/program_directory.h"
#include "testing/faulty_file_system.h"

namespace kivu::scenarios {

using driver::Json;

// One run of the launcher over a program directory that the test has laid out.
class Scenario : public ::testing::Test {
 protected:
    void TearDown() override { std::filesystem::current_path(before); }

    // Starts the launcher anew on the same directory.
    Json Start() {
        options.programDirectory = tree.Root();
        interpreter.reset();
        session = std::make_unique<driver::Session>(files, options);
        interpreter = std::make_unique<driver::Interpreter>(*session);
        if (prepare) prepare(*session);
        return interpreter->Execute(Json::array({"start"}));
    }

    // A command by its name and arguments; it must be taken.
    template <typename... Arguments>
    Json Do(Arguments... arguments) {
        const Json answer = interpreter->Execute(Json::array({Json(arguments)...}));
        EXPECT_TRUE(answer.value("ok", false)) << Json::array({Json(arguments)...}) << answer;
        return answer;
    }
    template <typename... Arguments>
    bool Refused(Arguments... arguments) {
        return !interpreter->Execute(Json::array({Json(arguments)...})).value("ok", true);
    }
    Json Get(const std::string& name) { return Do("get", "Form1." + name).value("value", Json()); }
    std::string Text(const std::string& name) {
        const Json value = Get(name);
        return value.is_string() ? value.get<std::string>() : value.dump();
    }
    template <typename... Arguments>
    Json Call(const char* routine, Arguments... arguments) {
        return Do("call", routine, arguments...).value("value", Json());
    }
    bool Visible(const std::string& name) { return Get(name + ".Visible") == true; }

    core::Form1& Form() { return session->MainWindow(); }
    testing::ScriptedHost& Host() { return session->Host(); }

    ProgramDirectory tree;
    driver::Options options;
    // Changes the scripted host in front of the start.
    std::function<void(driver::Session&)> prepare;
    testing::HostFileSystem disk;
    testing::FaultyFileSystem files{disk};
    std::unique_ptr<driver::Session> session;
    std::unique_ptr<driver::Interpreter> interpreter;

 private:
    std::filesystem::path before = std::filesystem::current_path();
};

// Two emulators with caches, without a loading screen; "Alpha" has three images of two games,
// "Beta" one. Alpha was the last one.
class LoadedScenario : public Scenario {
 protected:
    LoadedScenario() {
        tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"},
                                   {"EmulatorPath", "/Emu/alpha"},
                                   {"RomCount", "3"},
                                   {"WinUAE_UseMasterConfig", "0"},
                                   {"SplashTimer", "0"},
                                   {"EmulatorParameterAddDiskPath", "1"}});
        tree.AddEmulator(
            "Beta",
            {{"RomPath", "/Roms/Beta"}, {"EmulatorPath", "/Emu/beta"}, {"SplashTimer", "0"}});
        tree.WriteCache("Alpha",
                        {{"/Roms/Alpha/Ant (1990)(Maker)(Disk 1 of 2).adf", "Ant (1990)(Maker)"},
                         {"/Roms/Alpha/Ant (1990)(Maker)(Disk 2 of 2).adf", "Ant (1990)(Maker)"},
                         {"/Roms/Alpha/Bee (1991)(Maker).adf", "Bee (1991)(Maker)"}});
        tree.WriteCache("Beta", {{"/Roms/Beta/Cat (1992)(Maker).adf", "Cat (1992)(Maker)"}});
        tree.Write("Emu/alpha", "#!/bin/sh\n");
        tree.Write("Emu/beta", "#!/bin/sh\n");
        for (const char* image : {"Ant (1990)(Maker)(Disk 1 of 2).adf",
                                  "Ant (1990)(Maker)(Disk 2 of 2).adf", "Bee (1991)(Maker).adf"}) {
            tree.Write(std::string("Roms/Alpha/") + image, "x");
        }
        tree.Write("Roms/Beta/Cat (1992)(Maker).adf", "x");
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
    // The emulator that was started comes up, or goes.
    void EmulatorComesUp() { Do("process", "add", "alpha", 4711); }
    void EmulatorGoes() { Do("process", "remove", 4711); }
    // Starts the second game of the complete list.
    void LaunchBee() {
        Do("click", "Form1.Label3");
        Do("dblclick", "Form1.UAE_Short", 2);
    }
};

}  // namespace kivu::scenarios
