#include "favourites/stored_texts.h"

#include "profile/ini_syntax.h"
#include "support/path_forms.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::favourites {

std::optional<StoredTexts> StoredTexts::Read(const profile::Ini& ini,
                                             const platform::FileSystem& files,
                                             const std::string& iniFile) {
    auto profile = ini.LoadProfile(iniFile);
    if (!profile) return std::nullopt;
    return StoredTexts(files, *std::move(profile));
}

std::string StoredTexts::Text(std::string_view section, std::string_view key) const {
    return texts.Value(section, key);
}

std::string StoredTexts::Name(std::string_view section, std::string_view key) const {
    std::string raw = texts.RawValue(section, key).value_or("");
    return support::NamesAreBytes(*files) ? raw : files->DecodeText(raw);
}

std::string StoredTexts::Path(std::string_view section, std::string_view key,
                              std::string_view base) const {
    return PathOfRaw(texts.RawValue(section, key).value_or(""), base);
}

std::string StoredTexts::PathOfRaw(std::string_view raw, std::string_view base) const {
    const std::string decoded = texts.TextOfRaw(raw);
    if (decoded.empty()) return decoded;
    const auto absolute = [&](const std::string& path) { return Absolute(path, base); };
    const std::string plain(profile::ReadableValue(raw));
    if (!support::NamesAreBytes(*files) || text::IsUtf8(plain)) return absolute(decoded);
    return absolute(support::NameOfStoredBytes(*files, plain, absolute));
}

std::string StoredTexts::Absolute(const std::string& stored, std::string_view base) const {
    if (base.empty()) return stored;
    return text::ProfilePath(base, stored,
                             [this](const std::string& path) { return files->FileExists(path); });
}

bool IsStorable(std::string_view text) {
    return !profile::ReadableValue(profile::WithinLine(text)).empty();
}

}  // namespace kivu::favourites
