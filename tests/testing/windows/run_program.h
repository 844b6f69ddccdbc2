#pragma once

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace kivu::testing {

// Runs a program to its end with a file as its standard input, and gives its output and exit code.
// Its messages on standard error go nowhere. Words hold no quotes here.
inline std::pair<std::string, int> RunProgram(const std::vector<std::string>& words,
                                              const std::string& input) {
    // The command processor takes the outer pair of quotes away.
    std::string command = "\"";
    for (const std::string& word : words)
        command += "\"" + word + "\" ";
    command += "2>NUL < \"" + input + "\"\"";
    std::FILE* pipe = ::_popen(command.c_str(), "rb");
    if (pipe == nullptr) return {"", -1};
    std::string output;
    char part[4096];
    while (const std::size_t read = std::fread(part, 1, sizeof part, pipe))
        output.append(part, read);
    return {output, ::_pclose(pipe)};
}

}  // namespace kivu::testing
