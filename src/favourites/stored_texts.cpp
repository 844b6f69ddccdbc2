#include "favourites/stored_texts.h"

#include "core/ini_syntax.h"
#include "support/file_ops.h"
#include "support/path_forms.h"
#include "support/text.h"

namespace kivu::favourites {

std::optional<StoredTexts> StoredTexts::Read(const core::Ini& ini,
                                             const platform::FileSystem& files,
                                             const std::string& iniFile) {
    auto profile = ini.LoadProfile(iniFile);
    if (!profile) return std::nullopt;
    StoredTexts stored(files, *std::move(profile));
    if (auto plain = files.ReadFile(iniFile); plain && !support::IsUtf8(*plain))
        stored.bytes.emplace(*std::move(plain));
    return stored;
}

std::string StoredTexts::Text(std::string_view section, std::string_view key) const {
    return texts.Value(section, key);
}

std::string StoredTexts::Path(std::string_view section, std::string_view key,
                              std::string_view base) const {
    const std::string decoded = texts.Value(section, key);
    if (decoded.empty()) return decoded;
    const auto absolute = [&](const std::string& path) { return Absolute(path, base); };
    if (bytes && support::NamesAreBytes(*files)) {
        const std::string plain = bytes->Value(section, key);
        if (!support::IsUtf8(plain))
            return absolute(support::NameOfStoredBytes(*files, plain, absolute));
    }
    return absolute(decoded);
}

std::string StoredTexts::Absolute(const std::string& stored, std::string_view base) const {
    if (base.empty()) return stored;
    return support::ProfilePath(
        base, stored, [this](const std::string& path) { return files->FileExists(path); });
}

bool IsStorable(std::string_view text) {
    return !core::ReadableValue(core::WithinLine(text)).empty();
}

}  // namespace kivu::favourites
