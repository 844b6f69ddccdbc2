#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace kivu::app {

// What the user has asked of the program besides a file to start.
struct Options {
    bool log = false;
    std::string data;  // the program's directory for this run; empty: its own one
    bool version = false;
    bool help = false;
    std::string unknown;  // an option that there is not
    bool dataMissing = false;
};

// Takes the options away from in front of the other arguments: words that begin with "--" and name
// no file. Whatever follows the first other word is a part of the file to start, but for a "--log"
// behind all of them.
Options TakeOptions(std::vector<std::string>& arguments,
                    const std::function<bool(const std::string&)>& namesFile);

// What the program says in place of coming up, and the status with which it ends.
struct SpokenAnswer {
    int status = 0;
    bool isError = false;  // for the standard error
    std::string text;
};
std::optional<SpokenAnswer> AnswerTo(const Options& options, const std::string& version,
                                     bool german);

// The directory that the user has named, absolute and without a closing separator. A missing one is
// made, and those above it.
std::string DataDirectory(const std::string& given, platform::FileSystem& files);

// The user's arguments as one text, joined by blanks. A relative path of an existing file becomes
// absolute below `directory` (with or without a closing separator), be it one argument or, where a
// shell has split it at its blanks, all of them together.
std::string CommandLineText(std::vector<std::string> arguments, const std::string& directory,
                            const std::function<bool(const std::string&)>& fileExists);

}  // namespace kivu::app
