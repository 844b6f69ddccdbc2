#include "child_process.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace kivu::bench {

namespace {

std::vector<char*> Pointers(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& words,
                           const std::vector<std::string>& environment, const std::string& errors) {
    std::vector<std::string> arguments = words;
    std::vector<std::string> variables = environment;
    for (char** variable = environ; *variable; ++variable)
        variables.emplace_back(*variable);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int failure = posix_spawnp(&id, arguments[0].c_str(), &actions, nullptr,
                                     Pointers(arguments).data(), Pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0) throw std::runtime_error(words[0] + " cannot be started");
}

ChildProcess::~ChildProcess() {
    if (id <= 0) return;
    ::kill(id, SIGKILL);
    ::waitpid(id, nullptr, 0);
}

bool ChildProcess::Runs() {
    if (id > 0 && ::waitpid(id, nullptr, WNOHANG) != 0) id = 0;
    return id > 0;
}

}  // namespace kivu::bench
