#pragma once

#include <string>

#include "hosts/linux/file_system_linux.h"
#include "platform/user_store.h"

namespace kivu::hosts {

// Kivu/user.ini in the user's configuration directory: "[section]" and "key=value" lines ended by
// CR LF, keys and sections without regard to case in ASCII. Lines it does not know stay as they
// are.
class LinuxUserStore : public platform::UserStore {
 public:
    // In the user's own place.
    LinuxUserStore();
    explicit LinuxUserStore(std::string path) : path(std::move(path)) {}

    // The first entry of that name; `missing` also when the file cannot be read or is no text of
    // this kind.
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& missing) const override;
    // Does nothing when the file cannot be written, or when section or key could not be told apart
    // from the file's own marks. Line ends in a value become blanks.
    void Set(const std::string& section, const std::string& key, const std::string& value) override;
    // There is no such store here: always empty.
    std::string SystemValue(const std::string& root, const std::string& key,
                            const std::string& name) const override;

 private:
    std::string path;  // empty: nowhere to keep anything
    LinuxFileSystem files;
};

}  // namespace kivu::hosts
