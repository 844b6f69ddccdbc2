#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "profile/ini_document.h"
#include "profile/ini_write_backs.h"
#include "profile/keys.h"

namespace kivu::profile {

// The profile store: every setting goes through it. No value is kept in memory between two calls,
// so a user may edit a profile while the program runs; what is held back at most are defaults. A
// profile is replaced in one step, and left alone when a write would change nothing. All text is
// UTF-8; the file holds the system code page.
//
// A missing or unreadable profile gives the default, and a write that cannot be done has no effect:
// the launcher stays usable from a read-only directory.
class Ini {
 public:
    explicit Ini(platform::FileSystem& files) : files(files), writeBacks(files, Coding()) {}

    // While one lives, defaults that are written back go to the disk together: with the next
    // WriteIniValue to their file, with StoreWriteBacks, or when the outermost one ends.
    class GatheredWriteBacks {
     public:
        explicit GatheredWriteBacks(Ini& ini) : writeBacks(ini.writeBacks) { writeBacks.Begin(); }
        ~GatheredWriteBacks() { writeBacks.End(); }
        GatheredWriteBacks(const GatheredWriteBacks&) = delete;
        GatheredWriteBacks& operator=(const GatheredWriteBacks&) = delete;

     private:
        IniWriteBacks& writeBacks;
    };
    // For who waits for the user, hands over to another program or ends this one.
    void StoreWriteBacks() { writeBacks.Store(); }

    // The value of an entry of the table of keys, or its default.
    std::string Read(const keys::Text& key, const keys::Profiles& profiles);
    int Read(const keys::Number& key, const keys::Profiles& profiles);
    std::optional<int> Read(const keys::Wide& key, const keys::Profiles& profiles);
    int Read(const keys::Present& key, const keys::Profiles& profiles, int present);
    std::string Read(const keys::PresentText& key, const keys::Profiles& profiles,
                     std::string_view present);
    std::string ReadBytes(const keys::Text& key, const keys::Profiles& profiles) const;
    // Makes a missing profile.
    void Write(const keys::Entry& key, const keys::Profiles& profiles, std::string_view value);

    // What follows is for this store itself and for the favourites' keys, which have sections of
    // their own; all others read and write by the table.

    // The value, or the default if the key is missing or its value is empty. With `writeBack` a
    // default that is not empty is stored as the key's value, and a missing file is made, at first
    // without the key: it is stored by the next read.
    std::string ReadIniValue(std::string_view section, std::string_view key,
                             const std::string& iniFile, std::string_view defaultText,
                             bool writeBack);

    // The key's value undecoded, for what may be a file's name: on a host whose names are bytes it
    // need not be text. Empty where ReadIniValue would give its default.
    std::string ReadIniBytes(std::string_view section, std::string_view key,
                             const std::string& iniFile) const;

    // ReadIniValue as a 16-bit number: rounded, 0 when it is no number or does not fit.
    int ReadIniNumber(std::string_view section, std::string_view key, const std::string& iniFile,
                      std::string_view defaultText, bool writeBack);

    // ReadIniValue as a 32-bit number, rounded, for measures in twips. Empty when it is no number
    // or does not fit: the field that it is read for then keeps what it has.
    std::optional<int> ReadIniWide(std::string_view section, std::string_view key,
                                   const std::string& iniFile, std::string_view defaultText,
                                   bool writeBack);

    // Gives the key this value, see IniDocument::Set. A missing file is made only with
    // `createFile`.
    void WriteIniValue(std::string_view section, std::string_view key, std::string_view value,
                       const std::string& iniFile, bool createFile);

    // For many keys of one file: one parse, and with StoreProfile one write, with the bytes that as
    // many WriteIniValue would leave. A missing file is an empty document; the optional is empty
    // when something stands there that cannot be read, and that must not be overwritten.
    std::optional<IniDocument> LoadProfile(const std::string& iniFile) const;
    // StoreProfile gives false where that cannot be written.
    bool StoreProfile(const IniDocument& profile, const std::string& iniFile, bool createFile);

    // A document of these bytes in the host's code page, for a profile that is built anew.
    IniDocument ParseProfile(std::string bytes) const;

 private:
    void CreateEmptyFile(const std::string& path);
    // A bare name stands for the file in the current directory if there is one of that name.
    std::string QualifyIniPath(const std::string& path) const;
    IniCoding Coding() const;

    // The file as the next read finds it.
    std::optional<std::string> BytesOf(const std::string& path) const;

    platform::FileSystem& files;
    IniWriteBacks writeBacks;
};

}  // namespace kivu::profile
