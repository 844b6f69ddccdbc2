#include "profile/ini_write_backs.h"

#include <algorithm>
#include <utility>

namespace kivu::profile {

void IniWriteBacks::End() {
    if (--depth == 0) Store();
}

std::string IniWriteBacks::Read(std::string_view section, std::string_view key,
                                const std::string& path, std::string_view defaultText,
                                bool writeBack) {
    const Place profile = Current(path);
    if (profile == profiles.end()) {
        // A missing file is made empty: what is asked of it first is stored by a later read. What
        // is no regular file but stands there all the same (a pipe, a device) is not replaced.
        if (writeBack && !files.IdentityOf(path))
            profiles.push_back({path, std::nullopt, IniDocument({}, coding), {}});
        return std::string(defaultText);
    }
    std::string value = profile->text.Value(section, key);
    if (!value.empty()) return value;
    if (writeBack && !defaultText.empty() && profile->text.Set(section, key, defaultText)) {
        profile->defaults.push_back(
            {std::string(section), std::string(key), std::string(defaultText)});
    }
    return std::string(defaultText);
}

bool IniWriteBacks::Write(std::string_view section, std::string_view key, std::string_view value,
                          const std::string& path) {
    if (Find(path) == profiles.end()) return false;
    const Place profile = Current(path);
    if (profile == profiles.end()) return false;
    profile->text.Set(section, key, value);
    const bool stored = Store(*profile);
    profiles.erase(profile);
    return stored;
}

std::optional<std::string> IniWriteBacks::BytesOf(const std::string& path) const {
    for (const Profile& profile : profiles) {
        if (profile.path == path) return profile.text.Bytes();
    }
    return std::nullopt;
}

void IniWriteBacks::Store() {
    while (!profiles.empty()) {
        const std::string path = profiles.front().path;
        const Place profile = Current(path);
        if (profile == profiles.end()) continue;
        (void)Store(*profile);
        profiles.erase(profile);
    }
}

IniWriteBacks::Place IniWriteBacks::Find(const std::string& path) {
    return std::find_if(profiles.begin(), profiles.end(),
                        [&](const Profile& profile) { return profile.path == path; });
}

void IniWriteBacks::Parse(Profile& profile, std::string bytes) const {
    profile.text = IniDocument(bytes, coding);
    profile.onDisk = std::move(bytes);
    std::erase_if(profile.defaults, [&](const Default& missing) {
        return !profile.text.Value(missing.section, missing.key).empty();
    });
    for (const Default& missing : profile.defaults)
        profile.text.Set(missing.section, missing.key, missing.value);
}

IniWriteBacks::Place IniWriteBacks::Current(const std::string& path) {
    Place profile = Find(path);
    auto bytes = files.ReadFile(path);
    if (bytes) {
        if (profile == profiles.end()) {
            profile = profiles.insert(profile, {path, std::nullopt, IniDocument(), {}});
            Parse(*profile, *std::move(bytes));
        } else if (profile->onDisk != bytes) {
            Parse(*profile, *std::move(bytes));
        }
        return profile;
    }
    if (profile == profiles.end()) return profile;
    // Still to be made. A file that has been deleted meanwhile took its defaults with it.
    if (!profile->onDisk && !files.IdentityOf(path)) return profile;
    profiles.erase(profile);
    return profiles.end();
}

bool IniWriteBacks::Store(Profile& profile) const {
    if (profile.onDisk && !profile.text.IsChanged()) return true;
    return !files.WriteFile(profile.path, profile.text.Bytes());
}

}  // namespace kivu::profile
