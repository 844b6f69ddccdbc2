// What a start runs beside the emulator, and the display mode: set up, used, and called off.

#include <algorithm>
#include <utility>

#include "walker/actions.h"
#include "walker/stores.h"

namespace kivu::walker {

namespace {

constexpr const char* toolFile = "Tools/mnt";

// The text of a profile with other values in its first section, in front of all others.
std::string WithValues(const std::string& profile,
                       const std::vector<std::pair<std::string, std::string>>& values) {
    const std::string head = "[Settings]\r\n";
    std::string text = head;
    for (const auto& [key, value] : values)
        text += key + "=" + value + "\r\n";
    std::string rest = profile.starts_with(head) ? profile.substr(head.size()) : "";
    for (std::size_t at = 0; at < rest.size();) {
        const std::size_t end = std::min(rest.find('\n', at), rest.size() - 1) + 1;
        const std::string line = rest.substr(at, end - at);
        const std::string key = line.substr(0, line.find('='));
        bool replaced = false;
        for (const auto& value : values)
            replaced = replaced || value.first == key;
        if (!replaced) text += line;
        at = end;
    }
    return text;
}

std::string ProfileFile(const Look& look) {
    return "Config/" + look.Loaded() + "/Kivu.ini";
}

// By an editor, between two starts.
Commands Profile(World& world, const Look& look,
                 const std::vector<std::pair<std::string, std::string>>& values) {
    const std::string file = ProfileFile(look);
    return {Command({"file", "write", file, WithValues(world.Read(file), values)})};
}

bool Mounts(World& world, const Look& look) {
    return look.loaded >= 0 &&
           StoredValue(world.Read(ProfileFile(look)), "Settings", "AutoMountDeamonTool") == "1";
}

Commands MountSetUp(World& world, const Look& look, Random& random) {
    if (look.loaded < 0 || look.busy) return {};
    Commands commands =
        Profile(world, look,
                {{"AutoMountDeamonTool", "1"}, {"DeamonToolPath", std::string("/") + toolFile}});
    commands.push_back(Command({"file", "write", toolFile, "x"}));
    commands.push_back(Command({"waits", 1 + random.Below(random.Chance(50) ? 3 : 30)}));
    return commands;
}

Commands MountsAreOff(World& world, const Look& look, Random&) {
    if (!Mounts(world, look) || look.busy) return {};
    return Profile(world, look, {{"AutoMountDeamonTool", "0"}});
}

// The next mount fails.
Commands ToolGoes(World& world, const Look&, Random&) {
    if (!world.Exists(std::string(programDirectory) + "/" + toolFile)) return {};
    return {Command({"file", "remove", toolFile})};
}

Commands ScriptSetUp(World& world, const Look& look, Random& random) {
    if (look.loaded < 0 || look.busy) return {};
    Commands commands = Profile(world, look, {{"RunVBS_Script", random.Chance(70) ? "1" : "0"}});
    const std::string runner = std::string(programDirectory) + "/Tools/run";
    // Now and then one that nothing here runs.
    commands.push_back(Command({"file", "write", "Config/" + look.Loaded() + "/Startscript.vbs",
                                random.Chance(80) ? "#!" + runner + "\n" : "WScript.Echo 1\r\n"}));
    commands.push_back(Command({"file", "write", "Tools/run", "x"}));
    return commands;
}

Commands ModeIsKept(World& world, const Look& look, Random& random) {
    if (look.busy) return {};
    const std::string file = "Config/Kivu.ini";
    return {Command({"file", "write", file,
                     WithValues(world.Read(file),
                                {{"ResetScreenResolution", random.Chance(70) ? "1" : "0"}})})};
}

// An emulator, or the user.
Commands ModeChanges(World&, const Look&, Random& random) {
    static const std::vector<std::pair<int, int>> sizes{{640, 480}, {1024, 768}, {1920, 1080}};
    const auto& [width, height] = random.Pick(sizes);
    return {Command({"display", "set",
                     Json{{"width", width},
                          {"height", height},
                          {"bits", 32},
                          {"frequency", random.Chance(50) ? 60 : 75},
                          {"accepts", random.Chance(90)}}})};
}

// Somebody who has waited for long enough, or who does not know that it waits.
Commands HandInStart(Random& random) {
    static const std::vector<const char*> keys{"Escape", "Escape", "Enter", "Space", "Alt+F4"};
    switch (random.Below(8)) {
        case 0:
            return {Command({"click", "LoadingInfo.Command1"})};
        case 1:
            return {Command({"click", "LoadingInfo"})};
        case 2:
            return {Command({"answer", "Cancel"}), Command({"close", "Form1"})};
        case 3:
            return {Command({"tick", "LoadingInfo.Timer1"})};
        case 4:
            return {Command({"file", "remove", toolFile})};
        default:
            return {Command({"key", "Form1", random.Pick(keys)})};
    }
}

// Events run some times in front of the mount, and then for as long as the tool takes.
Commands StartThatWaits(World& world, const Look& look, Random& random) {
    if (look.busy || look.Running() || look.splash) return {};
    std::vector<List> front;
    for (const List list : {List::favourites, List::simple, List::complete, List::hits}) {
        if (look.At(list).visible && !look.At(list).rows.empty() &&
            !look.At(List::emulators).visible)
            front.push_back(list);
    }
    if (front.empty()) return {};
    const List list = random.Pick(front);
    Commands commands = MountSetUp(world, look, random);
    if (commands.empty()) return {};
    commands.push_back(Command({"waits", 10 + random.Below(30)}));
    Json meanwhile = Json::array({"meanwhile", "events", 3 + random.Below(25)});
    for (Json& command : HandInStart(random))
        meanwhile.push_back(std::move(command));
    commands.push_back(std::move(meanwhile));
    commands.push_back(
        Command({"dblclick", "Form1." + NameOf(list), random.Below(look.At(list).rows.size())}));
    return commands;
}

}  // namespace

const std::vector<Action>& HelperActions() {
    static const std::vector<Action> actions{
        {"a mount is set up", 3, MountSetUp},
        {"mounts are off", 1, MountsAreOff},
        {"the mount tool goes", 1, ToolGoes},
        {"a start that waits", 8, StartThatWaits},
        {"a start script is set up", 2, ScriptSetUp},
        {"the display mode is kept, or not", 1, ModeIsKept},
        {"the display mode changes", 1, ModeChanges},
    };
    return actions;
}

}  // namespace kivu::walker
