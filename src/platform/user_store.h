#pragma once

#include <string>

namespace kivu::platform {

// A small per-user store of texts, apart from the data directory.
class UserStore {
 public:
    virtual ~UserStore() = default;
    virtual std::string Get(const std::string& section, const std::string& key,
                            const std::string& missing) const = 0;
    virtual void Set(const std::string& section, const std::string& key,
                     const std::string& value) = 0;
    // A value of the system's own registry by its full path; empty where there is none.
    virtual std::string SystemValue(const std::string& root, const std::string& key,
                                    const std::string& name) const = 0;
};

}  // namespace kivu::platform
