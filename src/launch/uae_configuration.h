#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The text of WinUAE's configuration files: 8-bit, lines ended by CR LF. The launcher never
// interprets it beyond one look for a ROM.
namespace kivu::launch {

// What a new profile begins with; from then on the file is the user's.
std::string DefaultMasterConfiguration();

// What one launch adds to the master. All texts are bytes as they go into the file.
struct UaeStart {
    std::string_view master;  // whole file; empty when there is none
    bool fullscreen = false;
    std::optional<std::string> rom;       // none: no line
    std::array<std::string, 5> floppies;  // as they are to stand there; empty: no disk
};

// Every line of the master, then fullscreen, then the ROM unless the master names one anywhere (in
// a comment too), then the filled drives. The file begins with a line break, and with nothing at
// all to say it is one line break. A path that holds a line end is left out: it would become lines
// of its own.
std::string StartConfiguration(const UaeStart& start);

// False: the path would become lines of its own, and is left out.
bool FitsOneLine(std::string_view path);

}  // namespace kivu::launch
