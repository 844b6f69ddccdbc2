#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "profile/ini.h"
#include "profile/ini_document.h"

namespace kivu::favourites {

// A favourites file read once. Names are text; paths are file names, which keep their bytes even
// where those are no text of this host.
class StoredTexts {
 public:
    // A missing file has no texts. Empty optional: something stands there that cannot be read, and
    // that must not be overwritten.
    static std::optional<StoredTexts> Read(const profile::Ini& ini,
                                           const platform::FileSystem& files,
                                           const std::string& iniFile);

    std::string Text(std::string_view section, std::string_view key) const;
    // The value as a file's name in one directory: with the blanks and quotes that stand around it,
    // and on a host whose names are bytes undecoded.
    std::string Name(std::string_view section, std::string_view key) const;
    // The path made absolute against `base`, a directory without a closing separator; with an empty
    // base as it stands. An empty value stays empty.
    std::string Path(std::string_view section, std::string_view key, std::string_view base) const;

    // All that stands behind the "="; empty optional where there is no such key.
    std::optional<std::string> Raw(std::string_view section, std::string_view key) const {
        return texts.RawValue(section, key);
    }
    // What Text and Path give for such bytes, and the bytes that a save writes for a text.
    std::string TextOfRaw(std::string_view raw) const { return texts.TextOfRaw(raw); }
    std::string PathOfRaw(std::string_view raw, std::string_view base) const;
    std::string RawOfText(std::string_view text) const { return texts.RawOfText(text); }

 private:
    StoredTexts(const platform::FileSystem& files, profile::IniDocument texts)
        : files(&files), texts(std::move(texts)) {}
    std::string Absolute(const std::string& stored, std::string_view base) const;

    const platform::FileSystem* files;
    profile::IniDocument texts;
};

// Whether a profile gives anything back for this text once it is stored as a value: blanks alone
// and a lone pair of quotes read as nothing.
bool IsStorable(std::string_view text);

}  // namespace kivu::favourites
