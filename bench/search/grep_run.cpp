#include "grep_run.h"

#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace kivu::bench {

void RunGrep(const std::string& pattern, const std::vector<std::string>& files) {
    std::vector<std::string> words{"grep", "-i", "-c", "-F", "--", pattern};
    words.insert(words.end(), files.begin(), files.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    // Not /dev/null: grep sees that and stops at its first hit.
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe for grep");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn_file_actions_addclose(&actions, ends[1]);
    pid_t child = 0;
    const int failure = posix_spawnp(&child, "grep", &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    char output[4096];
    while (failure == 0 && read(ends[0], output, sizeof(output)) > 0) {
    }
    close(ends[0]);
    if (failure != 0) throw std::runtime_error("grep cannot be started");
    int status = 0;
    if (waitpid(child, &status, 0) != child || status != 0) throw std::runtime_error("grep failed");
}

}  // namespace kivu::bench
