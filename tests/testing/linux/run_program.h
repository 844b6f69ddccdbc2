#pragma once

#include <cstdio>
#include <string>
#include <sys/wait.h>
#include <utility>
#include <vector>

#include "text/command_line.h"

namespace kivu::testing {

// Runs a program to its end with a file as its standard input, and gives its output and exit code.
// Its messages on standard error go nowhere.
inline std::pair<std::string, int> RunProgram(const std::vector<std::string>& words,
                                              const std::string& input) {
    std::string command;
    for (const std::string& word : words)
        command += text::QuoteForShell(word) + " ";
    command += "2>/dev/null < " + text::QuoteForShell(input);
    std::FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) return {"", -1};
    std::string output;
    char part[4096];
    while (const std::size_t read = std::fread(part, 1, sizeof part, pipe))
        output.append(part, read);
    const int status = ::pclose(pipe);
    return {output, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

}  // namespace kivu::testing
