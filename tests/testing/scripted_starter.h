#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/program_starter.h"

namespace kivu::testing {

// Writes down what is to be started, and starts nothing.
class ScriptedStarter : public platform::ProgramStarter {
 public:
    struct Start {
        platform::StartRequest request;
        bool opened = false;  // handed to the user's own program for it
        bool edited = false;  // or to the editor for plain text
        // Of a start file as it ran, before anybody could take it away again.
        std::optional<std::string> script;
    };

    std::error_code Run(const platform::StartRequest& request) override {
        runs.push_back({request, false, false, std::nullopt});
        if (request.startFile && textOf && !request.words.empty())
            runs.back().script = textOf(request.words[0]);
        if (onRun) onRun(request);
        return result;
    }
    std::error_code RunAndWait(const platform::StartRequest& request,
                               const std::function<bool()>& goOn) override {
        platform::StartRequest waited = request;
        waited.wait = true;
        if (const auto failure = Run(waited)) return failure;
        for (int left = looksWhileWaiting; left != 0; --left)
            if (!goOn()) return std::make_error_code(std::errc::operation_canceled);
        return {};
    }
    bool UsesShell() const override { return usesShell; }
    std::optional<std::string> StartFileBytes(std::string_view text) const override {
        return startFileBytes ? startFileBytes(text) : std::string(text);
    }
    std::string FindInPath(const std::string& program) const override {
        const auto found = path.find(program);
        return found == path.end() ? "" : found->second;
    }
    bool MayRun(const std::string& program) const override {
        return std::find(notRunnable.begin(), notRunnable.end(), program) == notRunnable.end();
    }
    bool SearchesIn(const std::string& directory) const override {
        return std::find(searched.begin(), searched.end(), directory) != searched.end();
    }
    std::string FindExecutable(const std::string& file) const override {
        const auto found = executables.find(file);
        return found == executables.end() ? "" : found->second;
    }
    std::error_code EditText(const std::string& file) override {
        platform::StartRequest request;
        request.command = file;
        runs.push_back({request, false, true, std::nullopt});
        return result;
    }
    std::error_code Open(const std::string& addressOrPath) override {
        platform::StartRequest request;
        request.command = addressOrPath;
        runs.push_back({request, true, false, std::nullopt});
        return result;
    }

    std::vector<Start> runs;
    std::function<void(const platform::StartRequest&)> onRun;
    // Of a file; unset: start files are not looked at.
    std::function<std::optional<std::string>(const std::string&)> textOf;
    std::error_code result;
    bool usesShell = true;
    std::function<std::optional<std::string>(std::string_view)> startFileBytes;  // unset: UTF-8
    std::map<std::string, std::string> path;  // programs on the search path, by their bare names
    std::vector<std::string> notRunnable;
    std::vector<std::string> searched;  // the directories of the search path, as asked for
    std::map<std::string, std::string> executables;  // what opens a file, by its path
    int looksWhileWaiting = 1;  // before what is waited for ends; below 0: it never does
};

}  // namespace kivu::testing
