#include "settings/new_emulator.h"

#include <algorithm>
#include <array>

#include "text/text.h"

namespace kivu::settings {

namespace {

constexpr std::array<std::string_view, 4> devices{"con", "prn", "aux", "nul"};
constexpr std::array<std::string_view, 2> numberedDevices{"com", "lpt"};
// The search's row for all emulators, and what stands in the list where there is none.
constexpr std::array<std::string_view, 2> reservedNames{"-ALL-", "No Emulator found"};

bool IsControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

bool HasRefusedCharacter(std::string_view name) {
    constexpr std::u32string_view refused = U"\\/:*?\"<>|";
    for (std::size_t at = 0; at < name.size();) {
        const char32_t c = text::NextCodePoint(name, at);
        if (IsControl(c) || refused.find(c) != std::u32string_view::npos) return true;
    }
    return false;
}

// Windows takes "nul.txt" and "nul .txt" for the device, too.
bool IsDevice(std::string_view name) {
    const std::string lower = text::ToLower(text::Trim(name.substr(0, name.find('.'))));
    if (std::find(devices.begin(), devices.end(), lower) != devices.end()) return true;
    return std::any_of(numberedDevices.begin(), numberedDevices.end(),
                       [&](std::string_view device) {
                           return lower.starts_with(device) && lower.size() == device.size() + 1 &&
                                  lower.back() >= '1' && lower.back() <= '9';
                       });
}

bool IsReserved(std::string_view name) {
    return std::any_of(reservedNames.begin(), reservedNames.end(), [&](std::string_view reserved) {
        return text::EqualsNoCase(name, reserved);
    });
}

bool IsTaken(const platform::FileSystem& files, const std::string& configPath,
             const std::string& name) {
    if (files.IdentityOf(configPath + name)) return true;
    const auto entries = files.ListDirectory(configPath);
    return entries && std::any_of(entries->begin(), entries->end(), [&](const auto& entry) {
               return text::EqualsNoCase(entry.name, name);
           });
}

// So much of a name that the box stays one.
std::string Shortened(const std::string& name) {
    const std::size_t end = text::CodePointOffset(name, longestEmulatorName);
    return end < name.size() ? name.substr(0, end) + "..." : name;
}

std::string Reason(NameFault fault, const core::ProgramState& program) {
    switch (fault) {
        case NameFault::tooLong:
            return program.Say("Der Name ist länger als 80 Zeichen.",
                               "The name is longer than 80 characters.");
        case NameFault::character:
            return program.Say("Diese Zeichen sind nicht erlaubt: \\ / : * ? \" < > |",
                               "These characters are not allowed: \\ / : * ? \" < > |");
        case NameFault::point:
            return program.Say("Ein Punkt am Anfang oder Ende ist nicht erlaubt.",
                               "A point at the beginning or end is not allowed.");
        case NameFault::device:
            return program.Say("Unter Windows ist das der Name eines Geräts.",
                               "On Windows this is the name of a device.");
        case NameFault::reserved:
            return program.Say("Dieser Name hat für Kivu eine eigene Bedeutung.",
                               "This name has a meaning of its own to Kivu.");
        case NameFault::unstorable:
            return program.Say("Dieses System kann den Namen nicht speichern.",
                               "This system can't store the name.");
        case NameFault::taken:
            break;
    }
    return program.Say("Diesen Namen gibt es schon.", "This name exists already.");
}

}  // namespace

std::string EmulatorName(std::string_view typed) {
    return std::string(text::Trim(typed));
}

std::optional<NameFault> FaultOfName(const platform::FileSystem& files,
                                     const std::string& configPath, const std::string& name) {
    if (text::CodePointCount(name) > longestEmulatorName) return NameFault::tooLong;
    if (HasRefusedCharacter(name)) return NameFault::character;
    if (name.starts_with('.') || name.ends_with('.')) return NameFault::point;
    if (IsDevice(name)) return NameFault::device;
    if (IsReserved(name)) return NameFault::reserved;
    if (files.DecodeText(files.EncodeText(name)) != name) return NameFault::unstorable;
    if (IsTaken(files, configPath, name)) return NameFault::taken;
    return std::nullopt;
}

std::string NewEmulatorTitle(const core::ProgramState& program) {
    return program.Say("Neuer Emulator", "New emulator");
}

std::string NewEmulatorPrompt(const core::ProgramState& program) {
    return program.Say("Name des neuen Emulators:", "Name of the new emulator:");
}

Box FaultBox(NameFault fault, const std::string& name, const core::ProgramState& program) {
    return {Shortened(name) + "\r\r" + Reason(fault, program), NewEmulatorTitle(program),
            platform::Buttons::Ok, platform::Icon::Warning};
}

Box StillRunsBox(const std::string& running, const core::ProgramState& program) {
    return {running + "\r\r" +
                program.Say("Dieses Programm läuft noch. Bitte erst beenden.",
                            "This program is still running. Please end it first."),
            NewEmulatorTitle(program), platform::Buttons::Ok, platform::Icon::Information};
}

std::error_code MakeEmulator(platform::FileSystem& files, const std::string& configPath,
                             const std::string& name) {
    return files.MakeDirectory(configPath + name);
}

Box NotMadeBox(const std::string& path, const std::error_code& error,
               const core::ProgramState& program) {
    return {program.Say("Dieses Verzeichnis konnte nicht angelegt werden:",
                        "This directory could not be made:") +
                ("\r\r" + path) + "\r\r" + error.message(),
            NewEmulatorTitle(program), platform::Buttons::Ok, platform::Icon::Error};
}

}  // namespace kivu::settings
