#pragma once

#include <functional>
#include <map>
#include <string>
#include <system_error>
#include <vector>

#include "platform/dialogs.h"
#include "platform/program_starter.h"
#include "platform/user_store.h"

namespace kivu::testing {

// A host that starts nothing, shows nothing and keeps its store in memory.
class QuietHost : public platform::UserStore,
                  public platform::ProgramStarter,
                  public platform::Dialogs {
 public:
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& missing) const override {
        const auto found = stored.find(section + "/" + key);
        return found == stored.end() ? missing : found->second;
    }
    void Set(const std::string& section, const std::string& key,
             const std::string& value) override {
        stored[section + "/" + key] = value;
    }
    // By its root, its key and its name with "|" between them.
    std::string SystemValue(const std::string& root, const std::string& key,
                            const std::string& name) const override {
        const auto found = values.find(root + "|" + key + "|" + name);
        return found == values.end() ? std::string{} : found->second;
    }
    std::error_code Run(const platform::StartRequest& request) override {
        runs.push_back(request.command);
        return {};
    }
    std::error_code RunAndWait(const platform::StartRequest& request,
                               const std::function<bool()>&) override {
        return Run(request);
    }
    std::error_code EditText(const std::string& path) override {
        opened.push_back(path);
        return {};
    }
    bool UsesShell() const override { return false; }
    std::error_code Open(const std::string& path) override {
        opened.push_back(path);
        return {};
    }
    platform::Answer MessageBox(const std::string& text, const std::string&, platform::Buttons,
                                platform::Icon) override {
        boxes.push_back(text);
        return platform::Answer::Ok;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override {
        return {};
    }

    std::map<std::string, std::string> stored, values;
    std::vector<std::string> runs, opened, boxes;
};

}  // namespace kivu::testing
