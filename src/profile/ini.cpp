#include "profile/ini.h"

#include <utility>

#include "profile/ini_scan.h"
#include "text/text.h"

namespace kivu::profile {

namespace {

bool Stores(const keys::Entry& key) {
    return key.writeBack == keys::WriteBack::on;
}

}  // namespace

std::string Ini::Read(const keys::Text& key, const keys::Profiles& profiles) {
    return ReadIniValue(keys::section, key.name, profiles.Of(key.profile), key.missing,
                        Stores(key));
}

int Ini::Read(const keys::Number& key, const keys::Profiles& profiles) {
    return ReadIniNumber(keys::section, key.name, profiles.Of(key.profile), key.missing,
                         Stores(key));
}

std::optional<int> Ini::Read(const keys::Wide& key, const keys::Profiles& profiles) {
    return ReadIniWide(keys::section, key.name, profiles.Of(key.profile), key.missing, Stores(key));
}

int Ini::Read(const keys::Present& key, const keys::Profiles& profiles, int present) {
    return ReadIniWide(keys::section, key.name, profiles.Of(key.profile), std::to_string(present),
                       Stores(key))
        .value_or(present);
}

std::string Ini::Read(const keys::PresentText& key, const keys::Profiles& profiles,
                      std::string_view present) {
    return ReadIniValue(keys::section, key.name, profiles.Of(key.profile), present, Stores(key));
}

std::string Ini::ReadBytes(const keys::Text& key, const keys::Profiles& profiles) const {
    return ReadIniBytes(keys::section, key.name, profiles.Of(key.profile));
}

void Ini::Write(const keys::Entry& key, const keys::Profiles& profiles, std::string_view value) {
    WriteIniValue(keys::section, key.name, value, profiles.Of(key.profile), true);
}

std::string Ini::ReadIniValue(std::string_view section, std::string_view key,
                              const std::string& iniFile, std::string_view defaultText,
                              bool writeBack) {
    if (writeBacks.IsGathering()) {
        return writeBacks.Read(section, key, QualifyIniPath(iniFile), defaultText, writeBack);
    }
    if (!files.FileExists(iniFile)) {
        if (writeBack) CreateEmptyFile(iniFile);
        return std::string(defaultText);
    }
    const std::string path = QualifyIniPath(iniFile);
    if (const auto bytes = files.ReadFile(path)) {
        std::string value = FindIniValue(*bytes, section, key, Coding());
        if (!value.empty()) return value;
    }
    if (writeBack && !defaultText.empty()) {
        WriteIniValue(section, key, defaultText, path, writeBack);
    }
    return std::string(defaultText);
}

std::string Ini::ReadIniBytes(std::string_view section, std::string_view key,
                              const std::string& iniFile) const {
    const auto bytes = BytesOf(QualifyIniPath(iniFile));
    return bytes ? FindIniValue(*bytes, section, key, {}) : std::string();
}

int Ini::ReadIniNumber(std::string_view section, std::string_view key, const std::string& iniFile,
                       std::string_view defaultText, bool writeBack) {
    return text::ToNumber(ReadIniValue(section, key, iniFile, defaultText, writeBack)).value_or(0);
}

std::optional<int> Ini::ReadIniWide(std::string_view section, std::string_view key,
                                    const std::string& iniFile, std::string_view defaultText,
                                    bool writeBack) {
    return text::ToWideNumber(ReadIniValue(section, key, iniFile, defaultText, writeBack));
}

void Ini::WriteIniValue(std::string_view section, std::string_view key, std::string_view value,
                        const std::string& iniFile, bool createFile) {
    if (writeBacks.Write(section, key, value, QualifyIniPath(iniFile))) return;
    if (!files.FileExists(iniFile)) {
        if (!createFile) return;
        CreateEmptyFile(iniFile);
    }
    const std::string path = QualifyIniPath(iniFile);
    const auto bytes = files.ReadFile(path);
    if (!bytes) return;
    const auto changed = SetIniValue(*bytes, section, key, value, Coding());
    if (changed) files.WriteFile(path, *changed);
}

std::optional<IniDocument> Ini::LoadProfile(const std::string& iniFile) const {
    auto bytes = BytesOf(QualifyIniPath(iniFile));
    if (bytes) return ParseProfile(*std::move(bytes));
    if (files.IdentityOf(iniFile)) return std::nullopt;
    return ParseProfile({});
}

bool Ini::StoreProfile(const IniDocument& profile, const std::string& iniFile, bool createFile) {
    const bool isThere = files.FileExists(iniFile);
    if (isThere && !profile.IsChanged()) return true;
    if (!isThere && (!createFile || files.IdentityOf(iniFile))) return false;
    return !files.WriteFile(QualifyIniPath(iniFile), profile.Bytes());
}

IniDocument Ini::ParseProfile(std::string bytes) const {
    return IniDocument(std::move(bytes), Coding());
}

void Ini::CreateEmptyFile(const std::string& path) {
    // What is no regular file but stands there all the same (a pipe, a device) is not replaced.
    if (!files.IdentityOf(path)) files.WriteFile(path, {});
}

std::string Ini::QualifyIniPath(const std::string& path) const {
    if (path.find(':') != std::string::npos || path.starts_with('/')) return path;
    std::string joined = files.CurrentDirectory();
    if (!joined.ends_with(files.Separator())) joined += files.Separator();
    joined += path;
    return files.FileExists(joined) ? joined : path;
}

std::optional<std::string> Ini::BytesOf(const std::string& path) const {
    auto gathered = writeBacks.BytesOf(path);
    return gathered ? gathered : files.ReadFile(path);
}

IniCoding Ini::Coding() const {
    // A document may outlive this store, but not the files.
    return {[host = &files](std::string_view bytes) { return host->DecodeText(bytes); },
            [host = &files](std::string_view text) { return host->EncodeText(text); }};
}

}  // namespace kivu::profile
