#include "settings/known_choices.h"

#include <algorithm>

#include "settings/linux_emulators.h"
#include "text/text.h"

namespace kivu::settings {

namespace {

using InPath = std::function<bool(const std::string&)>;

struct LinuxChoice {
    KnownChoice choice;
    bool found = false;
};

// No seconds are shown for a program that is known, unless its row says so.
Assignments WithSeconds(const Assignments& assignments) {
    Assignments all{{Field::SecondsTimerTxt, "0"}};
    all.insert(all.end(), assignments.begin(), assignments.end());
    return all;
}

LinuxChoice ChoiceOf(const LinuxName& name, const std::string& text, const Assignments& row,
                     const InPath& inPath) {
    LinuxChoice choice;
    choice.choice = {
        text, text + " ", {}, WithSeconds(LinuxAssignments(row)), std::string(name.OnDisk())};
    choice.found = inPath(choice.choice.program);
    const std::string exported(name.flatpak);
    if (!choice.found && !exported.empty() && inPath(exported)) {
        choice.choice.program = exported;
        choice.found = true;
    }
    return choice;
}

std::vector<LinuxChoice> LinuxChoices(const InPath& inPath) {
    std::vector<LinuxChoice> choices;
    for (const LinuxEmulator& emulator : LinuxEmulators()) {
        for (const LinuxName& name : emulator.names)
            choices.push_back(ChoiceOf(name, std::string(name.name), emulator.row, inPath));
    }
    for (const RetroArchCore& core : RetroArchCores()) {
        const std::string text = std::string(retroArch.name) + ": " + std::string(core.core);
        choices.push_back(ChoiceOf(retroArch, text, core.row, inPath));
    }
    std::stable_partition(choices.begin(), choices.end(),
                          [](const LinuxChoice& choice) { return choice.found; });
    return choices;
}

}  // namespace

std::vector<KnownChoice> KnownChoices(bool posix, const InPath& inPath) {
    std::vector<KnownChoice> choices;
    if (posix) {
        for (LinuxChoice& each : LinuxChoices(inPath))
            choices.push_back(std::move(each.choice));
    }
    for (const KnownEmulator& emulator : KnownEmulators()) {
        if (!CanBeMet(emulator)) continue;
        std::string text(text::Trim(emulator.display));
        if (posix) text += " (Windows, Wine)";
        choices.push_back({std::move(text),
                           std::string(emulator.display),
                           std::string(emulator.titlePrefix),
                           WithSeconds(AssignmentsOf(emulator)),
                           {}});
    }
    return choices;
}

Detection Choose(const KnownChoice& choice, bool hasPath, const core::ProgramState& program) {
    Detection detection;
    detection.question = KnownQuestion(choice.display, choice.titlePrefix, program);
    detection.onYes = choice.onYes;
    if (!hasPath) detection.pathOnYes = choice.program;
    return detection;
}

}  // namespace kivu::settings
