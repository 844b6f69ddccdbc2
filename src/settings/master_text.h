#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/file_system.h"

namespace kivu::settings {

// Larger than any configuration: such a file is not shown.
inline constexpr std::size_t largestConfiguration = 1024 * 1024;

// Whether a line of a WinUAE configuration may stand in the master: it is not empty and names
// neither one of the two drives that each launch fills itself nor the ROM, in a comment neither.
bool ImportOfConfigStringAllowedValue(std::string_view String1);

// The accepted lines of a configuration's bytes, each ended by CR LF.
std::string AllowedLines(std::string_view bytes);

// WinUAE's master configuration between its file, which all WinUAE profiles share, and the text
// box. What the user has not touched goes back with the bytes that it was read with, whether they
// are text in the host's code page or not.
class MasterText {
 public:
    explicit MasterText(platform::FileSystem& files) : files(files) {}

    // What the box shows of the file, and forgets all that was before. A missing one, and one that
    // is no text of that size, gives the empty text.
    std::string Load(const std::string& name);

    // Where the file is, once an emulator uses it after the window has been opened without one.
    void SetPath(const std::string& name) { path = name; }
    // The launcher has made the missing file: no change by another program, and nothing that the
    // box has said anything about.
    void FileMade();
    // The same where it holds these bytes: loading the emulator has made it.
    void FileMadeWith(std::string_view bytes);

    // What the box shows of a configuration that is taken over. Empty optional: it cannot be read,
    // or is too large or no text; the box then keeps what it has.
    std::optional<std::string> Import(const std::string& name);

    // The box has been emptied as a default of another emulator, and not by the user.
    void EmptiedByDefaults() { emptied = true; }
    bool IsEmptied() const { return emptied; }

    enum class Step {
        write,   // the box into the file
        leave,   // nothing is to be saved
        reload,  // the file is not the one that was read, and the user has not touched the box
        ask,     // both have: the box, or the file
    };
    // What a save has to do; looks at the file anew.
    Step StepFor(std::string_view boxText) const;

    // The file's bytes for the text of the box: as it stands, with one more CR LF.
    std::string BytesFor(std::string_view boxText) const;
    // A failed write leaves the old file.
    std::error_code Write(std::string_view boxText);

 private:
    struct File {
        bool exists = false;
        std::optional<std::string> bytes;  // empty: it cannot be shown
        bool operator==(const File&) const = default;
    };

    File Read(const std::string& name) const;
    std::string Shown(std::string_view bytes);

    platform::FileSystem& files;
    std::string path;
    File read;
    std::string shown;
    bool emptied = false;
    bool made = false;
    // By the line as it is shown: the bytes of each such line, in their order.
    std::map<std::string, std::vector<std::string>, std::less<>> lineBytes;
};

}  // namespace kivu::settings
