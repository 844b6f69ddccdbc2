#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/instance.h"
#include "platform/log.h"
#include "platform/processes.h"
#include "platform/program_starter.h"

namespace kivu::support {

// The host's starter, with a line in the log for each program: its words, where and how it is
// started, and whether it was.
class LoggedStarter : public platform::ProgramStarter {
 public:
    LoggedStarter(platform::ProgramStarter& starter, platform::Log& log)
        : starter(starter), log(log) {}

    std::error_code Run(const platform::StartRequest& request) override;
    std::error_code RunAndWait(const platform::StartRequest& request,
                               const std::function<bool()>& goOn) override;
    bool UsesShell() const override { return starter.UsesShell(); }
    std::optional<std::string> StartFileBytes(std::string_view text) const override;
    std::string FindInPath(const std::string& program) const override {
        return starter.FindInPath(program);
    }
    bool MayRun(const std::string& program) const override { return starter.MayRun(program); }
    bool SearchesIn(const std::string& directory) const override {
        return starter.SearchesIn(directory);
    }
    std::string FindExecutable(const std::string& path) const override {
        return starter.FindExecutable(path);
    }
    std::error_code EditText(const std::string& path) override;
    std::error_code Open(const std::string& addressOrPath) override;

 private:
    void Write(std::string line, const platform::StartRequest& request);

    platform::ProgramStarter& starter;
    platform::Log& log;
};

// The host's processes, with a line in the log when they cannot be seen, told once.
class LoggedProcesses : public platform::ProcessList {
 public:
    LoggedProcesses(platform::ProcessList& processes, platform::Log& log)
        : processes(processes), log(log) {}

    std::optional<std::vector<platform::ProcessEntry>> Snapshot() const override;
    void Kill(std::int32_t id) override { processes.Kill(id); }

 private:
    platform::ProcessList& processes;
    platform::Log& log;
    mutable bool told = false;
};

// The host's instances, with a line in the log when an earlier one goes on in place of this one.
class LoggedInstance : public platform::Instance {
 public:
    LoggedInstance(platform::Instance& instance, platform::Log& log)
        : instance(instance), log(log) {}

    bool HandOver(const std::string& title, const std::string& file) override;
    void OnSummoned(std::function<void(const std::string& file)> summon) override {
        instance.OnSummoned(std::move(summon));
    }

 private:
    platform::Instance& instance;
    platform::Log& log;
};

}  // namespace kivu::support
