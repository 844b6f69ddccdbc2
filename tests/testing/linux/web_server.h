#pragma once

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "testing/temporary_directory.h"

namespace kivu::testing {

// Runs web_server.py, which tells what it answers to which path.
class WebServer {
 public:
    explicit WebServer(const std::string& script) {
        std::array<int, 2> input{-1, -1}, output{-1, -1};
        if (::pipe2(input.data(), O_CLOEXEC) != 0 || ::pipe2(output.data(), O_CLOEXEC) != 0) return;
        posix_spawn_file_actions_t files;
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawn_file_actions_adddup2(&files, input[0], STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&files, output[1], STDOUT_FILENO);
        std::string program = "python3", path = script, root = directory.Root();
        std::array<char*, 4> words{program.data(), path.data(), root.data(), nullptr};
        if (::posix_spawnp(&process, "python3", &files, nullptr, words.data(), ::environ) != 0)
            process = 0;
        ::posix_spawn_file_actions_destroy(&files);
        ::close(input[0]);
        ::close(output[1]);
        hold = input[1];
        std::FILE* answer = ::fdopen(output[0], "r");
        std::array<char, 4096> file{};
        running = answer != nullptr &&
                  std::fscanf(answer, "%d %d %4095s", &port, &safePort, file.data()) == 3;
        certificate = file.data();
        if (answer != nullptr) std::fclose(answer);
    }
    ~WebServer() {
        ::close(hold);
        if (process <= 0) return;
        while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    bool IsRunning() const { return running; }
    std::string Http(const std::string& path) const { return Address("http", port, path); }
    std::string Https(const std::string& path) const { return Address("https", safePort, path); }
    const std::string& Certificate() const { return certificate; }

 private:
    static std::string Address(const char* scheme, int port, const std::string& path) {
        return std::string(scheme) + "://127.0.0.1:" + std::to_string(port) + path;
    }
    TemporaryDirectory directory;
    pid_t process = 0;
    int hold = -1, port = 0, safePort = 0;
    bool running = false;
    std::string certificate;
};

}  // namespace kivu::testing
