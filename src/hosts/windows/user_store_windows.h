#pragma once

#include <string>

#include "platform/user_store.h"

namespace kivu::hosts {

// HKEY_CURRENT_USER\Software\Kivu: a key for each section with a text value for each key. Names
// are compared without regard to case.
class WindowsUserStore : public platform::UserStore {
 public:
    // In the user's own place.
    WindowsUserStore();
    // Below another key of HKEY_CURRENT_USER, such as "Software\\Name".
    explicit WindowsUserStore(std::string path) : path(std::move(path)) {}

    // `missing` also for a value that is no text.
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& missing) const override;
    // Does nothing when the registry does not take the value, or when a name is empty or one that
    // the registry would take for more than one. A value ends at its first NUL.
    void Set(const std::string& section, const std::string& key, const std::string& value) override;
    // A text as it is stored: variables between "%" signs are left as they are. Empty also for a
    // value that is no text, and for a root that is none of the registry's.
    std::string SystemValue(const std::string& root, const std::string& key,
                            const std::string& name) const override;

 private:
    std::string path;
};

}  // namespace kivu::hosts
