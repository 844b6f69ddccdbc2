#include "hosts/linux/process_names.h"

#include <gmock/gmock.h>

namespace kivu::hosts {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Names(const std::string& executable, std::vector<std::string> arguments) {
    return NamesOf({executable, "short", std::move(arguments)});
}

TEST(ProcessNames, AProgramAnswersToItsFileAndItsOwnName) {
    EXPECT_THAT(Names("/usr/bin/dosbox", {"dosbox", "game.exe"}), ElementsAre("dosbox"));
    EXPECT_THAT(Names("/usr/lib/mame/mame64", {"/usr/games/mame"}), ElementsAre("mame64", "mame"));
    EXPECT_THAT(Names("/opt/My Emu/emu;x", {""}), ElementsAre("emu;x"));
}

TEST(ProcessNames, TheMarkOfARemovedFileIsNoPartOfTheName) {
    EXPECT_THAT(Names("/usr/bin/dosbox (deleted)", {}), ElementsAre("dosbox"));
}

TEST(ProcessNames, WithoutItsFileItAnswersToItsShortName) {
    EXPECT_THAT(Names("", {}), ElementsAre("short"));
    EXPECT_THAT(Names("", {"/sbin/daemon"}), ElementsAre("short", "daemon"));
}

TEST(ProcessNames, AWindowsProgramAnswersToTheNameBehindItsBackslash) {
    EXPECT_THAT(Names("/usr/lib/wine/wine64-preloader",
                      {"C:\\Program Files\\WinUAE\\winuae.exe", "-f", "x.uae"}),
                ElementsAre("wine64-preloader", "winuae.exe"));
    EXPECT_THAT(Names("/usr/lib/wine/wine64-preloader", {"Z:\\home/me\\winuae.exe"}),
                ElementsAre("wine64-preloader", "winuae.exe"));
    EXPECT_THAT(Names("/usr/lib/wine/wine", {"wine", "/roms/winuae.exe", "-f"}),
                ElementsAre("wine", "winuae.exe"));
    EXPECT_THAT(Names("/usr/bin/umu-run", {"umu-run", "Z:\\Emus\\winuae.exe"}),
                ElementsAre("umu-run", "winuae.exe"));
}

TEST(ProcessNames, ABackslashWithoutADriveMayBelongToTheName) {
    EXPECT_THAT(Names("/opt/a\\b", {"/opt/a\\b"}), ElementsAre("a\\b", "b"));
}

TEST(ProcessNames, AScriptAnswersToItsOwnName) {
    EXPECT_THAT(Names("/usr/bin/dash", {"/bin/sh", "/opt/run emu.sh", "game"}),
                ElementsAre("dash", "sh", "run emu.sh"));
    EXPECT_THAT(Names("/usr/bin/python3.11", {"python3", "-u", "-W", "ignore", "/opt/emu.py"}),
                ElementsAre("python3.11", "python3", "emu.py"));
    EXPECT_THAT(Names("/usr/bin/bash", {"-bash", "-o", "posix", "-x", "--", "-odd"}),
                ElementsAre("bash", "-bash", "-odd"));
    EXPECT_THAT(Names("/usr/bin/perl", {"renamed", "/opt/emu.pl"}),
                ElementsAre("perl", "renamed", "emu.pl"));
}

TEST(ProcessNames, CodeAmongTheArgumentsIsNoName) {
    EXPECT_THAT(Names("/usr/bin/bash", {"bash", "-c", "sleep 1; /opt/winuae.exe"}),
                ElementsAre("bash"));
    EXPECT_THAT(Names("/usr/bin/perl", {"perl", "-we", "while(1){}"}), ElementsAre("perl"));
    EXPECT_THAT(Names("/usr/bin/bash", {"bash", "--"}), ElementsAre("bash"));
    EXPECT_THAT(Names("/usr/bin/bash", {"bash", "-o"}), ElementsAre("bash"));
}

TEST(ProcessNames, WhatAProgramWorksOnIsNoNameOfIts) {
    EXPECT_THAT(Names("/usr/bin/vim", {"vim", "winuae.exe"}), ElementsAre("vim"));
    EXPECT_THAT(Names("/usr/bin/wget", {"wget", "c:x"}), ElementsAre("wget"));
}

TEST(ProcessNames, InterpretersAreKnownInEveryVersion) {
    for (const auto* name : {"sh", "bash", "python", "python3", "python3.11", "perl5.36", "ruby",
                             "wine", "wine64-preloader", "wine-9.0", "lua5.4"})
        EXPECT_TRUE(IsInterpreter(name)) << name;
    for (const auto* name : {"", "3", "shadow", "dosbox", "winedbg", "pythonista"})
        EXPECT_FALSE(IsInterpreter(name)) << name;
}

}  // namespace
}  // namespace kivu::hosts
