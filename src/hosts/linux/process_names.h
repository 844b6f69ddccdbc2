#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kivu::hosts {

// What is known of one process.
struct ProcessFacts {
    std::string executable;              // path of its file; empty where it may not be read
    std::string shortName;               // the kernel's own, 15 bytes at most
    std::vector<std::string> arguments;  // its own name in front
};

// Every name that a process answers to, each once, the executable's in front: base name of the
// executable, of its own name, and, where these only interpret or wrap something, of that script or
// Windows program.
std::vector<std::string> NamesOf(const ProcessFacts& facts);

// True for shells, script languages and Wine's loaders, whatever their version ("python3.11").
bool IsInterpreter(std::string_view name);

}  // namespace kivu::hosts
