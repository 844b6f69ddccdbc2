#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kivu::hosts {

// A program as a desktop knows it, by freedesktop.org's standard of desktop entries.
struct DesktopEntry {
    std::string file;  // where it stands
    std::string exec;  // its command line, still with its quotes and field codes
    std::string name, icon;
    std::string directory;  // to start it in; empty: any
    bool terminal = false;  // it needs one to run in
};

// Empty: the text is no entry of a program, or one that has been taken back.
std::optional<DesktopEntry> ReadDesktopEntry(std::string_view text, const std::string& file);

// The program and its arguments for one file with an absolute path, which comes last where the
// command line has no place for it. Empty: the command line is none.
std::vector<std::string> WordsFor(const DesktopEntry& entry, const std::string& path);

}  // namespace kivu::hosts
