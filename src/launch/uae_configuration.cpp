#include "launch/uae_configuration.h"

#include "text/text.h"

namespace kivu::launch {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view romKey = "kickstart_rom_file=";

// Some keys have blanks around "=", as WinUAE wrote them when each came up.
constexpr std::array<std::string_view, 14> masterLines{"fastmem_size=2",
                                                       "chipmem_size=4",
                                                       "gfx_width=720",
                                                       "gfx_height=568",
                                                       "",
                                                       "floppy_speed=800",
                                                       "use_gui = no",
                                                       "autoconfig = no",
                                                       "cpu_type = 6800",
                                                       "cpu_speed = Real",
                                                       "sound_output = exact",
                                                       "sound_channels = stereo",
                                                       "sound_bits = 16",
                                                       "bogomem_size = 1"};

void AddLine(std::string& text, std::string_view key, std::string_view value = {}) {
    text.append(lineEnd).append(key).append(value);
}

}  // namespace

bool FitsOneLine(std::string_view path) {
    return path.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

std::string DefaultMasterConfiguration() {
    std::string text;
    for (const std::string_view line : masterLines)
        text.append(line).append(lineEnd);
    return text;
}

std::string StartConfiguration(const UaeStart& start) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::string_view master = start.master;
    // An editor's mark is none in the middle of a file: it would spoil the first key.
    if (master.starts_with(byteOrderMark)) master.remove_prefix(byteOrderMark.size());
    std::string text;
    for (const std::string_view line : text::SplitLines(master))
        AddLine(text, line);
    if (start.fullscreen) {
        AddLine(text, "gfx_fullscreen_amiga=True");
        AddLine(text, "gfx_fullscreen=True");
    }
    const bool romKnown = text.find(romKey) != std::string::npos;
    if (start.rom && !romKnown && FitsOneLine(*start.rom))
        AddLine(text, romKey, text::Trim(*start.rom));
    for (std::size_t drive = 0; drive < start.floppies.size(); ++drive) {
        const std::string& disk = start.floppies[drive];
        if (disk.empty() || !FitsOneLine(disk)) continue;
        AddLine(text, "floppy" + std::to_string(drive) + "=", disk);
    }
    return text.append(lineEnd);
}

}  // namespace kivu::launch
