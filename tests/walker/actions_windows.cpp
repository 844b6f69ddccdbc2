// The windows beside the main one.

#include "walker/actions.h"

namespace kivu::walker {

namespace {

// Where somebody begins to look, and what for.
Json Question(Random& random) {
    static const std::vector<const char*> routines{"FileOpenDialog", "filesaveDialog",
                                                   "FileDirSelectDialog"};
    static const std::vector<const char*> places{"", "/Roms", "/Roms/Amiga", "/Emu/no/such",
                                                 "/Config/Kivu.ini"};
    static const std::vector<const char*> names{"", "*.adf", "*.exe", "amiga", "*"};
    const std::string routine = random.Pick(routines);
    const std::string place = std::string(programDirectory) + random.Pick(places);
    if (routine == "FileDirSelectDialog") return Command({"call", routine, place});
    return Command({"call", routine, random.Chance(10) ? "" : place, "", random.Pick(names)});
}

Json HandInDialog(Random& random) {
    static const std::vector<const char*> keys{"Down", "Up",   "Enter",  "Tab",   "Backspace",
                                               "End",  "Home", "Delete", "Alt+p", "a"};
    static const std::vector<const char*> names{"*.adf", "..", "Roms", "x.adf", "/", "~/", " "};
    switch (random.Below(7)) {
        case 0:
            return Command({"click", "Files.UpBtn"});
        case 1:
            return Command({"dblclick", "Files.Dir1", random.Below(3)});
        case 2:
            return Command({"click", "Files.File1", random.Below(4)});
        case 3:
            return Command({"click", "Files.Drive1", 0});
        case 4:
            return Command({"type", "Files.FileName", random.Pick(names)});
        case 5:
            return Command({"type", "Files.KomplettPfadText", random.Pick(names)});
        default:
            return Command({"key", "Files", random.Pick(keys)});
    }
}

// What is tried with the main window meanwhile, and what happens to it by itself.
Json HandBehind(const Look& look, Random& random) {
    static const std::vector<const char*> controls{
        "EmuListbox", "LoadBtn",      "SearchDblsTxt", "Label1", "Label3",
        "ExitBtn",    "AddToFavorit", "UAE_Short",     "DeLFav", "Current_ProgramNameFull"};
    static const std::vector<const char*> keys{"Escape", "Enter", "Alt+F4", "Right", "a"};
    const std::string control = std::string("Form1.") + random.Pick(controls);
    switch (random.Below(6)) {
        case 0:
            return Command({"key", "Form1", random.Pick(keys)});
        case 1:
            return Command({"close", "Form1"});
        case 2:
            return Command({"tick", look.watching ? "Form1.EmuActiveTimer" : "Form1.Uhrzeit"});
        case 3:
            return Command({"summon", look.paths.Text(0)});
        case 4:
            return Command({"dblclick", control, 0});
        default:
            return Command({"click", control});
    }
}

// Opened, worked with, and closed again in whatever way.
Commands FileDialog(World&, const Look& look, Random& random) {
    Commands commands{Question(random)};
    for (int hands = random.Below(6); hands > 0; --hands)
        commands.push_back(random.Chance(60) ? HandInDialog(random) : HandBehind(look, random));
    static const std::vector<const char*> buttons{"Files.Ok", "Files.OkBtn2", "Files.Abbruch",
                                                  "Files.AbbruchBtn2"};
    if (random.Chance(70)) commands.push_back(Command({"click", random.Pick(buttons)}));
    if (random.Chance(30)) commands.push_back(Command({"key", "Files", "Escape"}));
    commands.push_back(Command({"close", "Files"}));
    return commands;
}

Json Change(Random& random) {
    switch (random.Below(6)) {
        case 0:
            return Command({"type", "SettingsForm.SecondsTimerTxt", random.Chance(80) ? "1" : "x"});
        case 1:
            return Command({"click", "SettingsForm.ResetScreenRes"});
        case 2:
            return Command({"type", "SettingsForm.DeamonPath", "x"});
        case 3:
            return Command({"select", "SettingsForm.KillButtonKombo", random.Below(9)});
        case 4:
            return Command({"click", "SettingsForm.AutoMoundDeamonTools"});
        default:
            return Command({"click", "SettingsForm.Command5"});
    }
}

// Opened from the button that shows, changed, saved or not, and left.
Commands Settings(World& world, const Look& look, Random& random) {
    Commands commands = Clicked(world, "SettingsBtn");
    if (commands.empty()) commands = Clicked(world, "SettingsShortBtn");
    if (commands.empty()) return commands;
    for (int changes = random.Below(4); changes > 0; --changes)
        commands.push_back(random.Chance(70) ? Change(random) : HandBehind(look, random));
    if (random.Chance(50)) commands.push_back(Command({"click", "SettingsForm.SaveBtn"}));
    if (random.Chance(50)) commands.push_back(Command({"key", "SettingsForm", "Escape"}));
    commands.push_back(Command({"answer", "OK"}));
    commands.push_back(Command({"close", "SettingsForm"}));
    return commands;
}

Commands LoadingScreenTicks(World&, const Look& look, Random& random) {
    if (!look.splash) return {};
    return {Command({"tick", "LoadingInfo.Timer1", 1 + random.Below(3)})};
}

Commands LoadingScreenIsClicked(World&, const Look& look, Random& random) {
    static const std::vector<const char*> places{"LoadingInfo", "LoadingInfo.Picture1",
                                                 "LoadingInfo.Label1", "LoadingInfo.TxtTitle",
                                                 "LoadingInfo.Command1"};
    if (!look.splash) return {};
    return {Command({"click", random.Pick(places)})};
}

// After a while; a key that is held down means nothing.
Commands LoadingScreenIsSkipped(World&, const Look& look, Random& random) {
    static const std::vector<const char*> times{"12:00:00", "13:00:00", "14:00:00"};
    static const std::vector<const char*> skipping{"Escape", "Enter", "Space"};
    if (!look.splash) return {};
    return {Command({"time", random.Pick(times)}),
            random.Chance(80) ? Command({"key", "Form1", random.Pick(skipping)})
                              : Command({"key", "Form1", random.Pick(skipping), "repeat"})};
}

}  // namespace

const std::vector<Action>& WindowActions() {
    static const std::vector<Action> actions{
        {"a file or a directory is chosen", 4, FileDialog},
        {"the settings are opened", 4, Settings},
        {"the loading screen ticks", 10, LoadingScreenTicks},
        {"the loading screen is clicked", 4, LoadingScreenIsClicked},
        {"the loading screen is skipped", 6, LoadingScreenIsSkipped},
    };
    return actions;
}

}  // namespace kivu::walker
