#include "favourites/store_in_memory.h"

#include <algorithm>

#include "profile/ini_syntax.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::favourites {

StoreInMemory::StoreInMemory(const platform::FileSystem& files, StoredTexts storedTexts,
                             std::string base, const std::vector<FavoritEntry>& entries,
                             const std::vector<std::string>& listRows)
    : files(files),
      stored(std::move(storedTexts)),
      base(std::move(base)),
      // A save writes to no number beyond twice the entries, a load looks one beyond the last.
      entriesInFile(2 * std::max(mostEntries, entries.size()) + 1) {
    IdOfText({});
    for (const FavoritEntry& entry : entries)
        records.push_back({IdOfText(entry.FullPath), IdOfText(entry.Name)});
    for (const std::string& row : listRows)
        rows.push_back(IdOfText(row));
    for (std::size_t number = 0; number < entriesInFile.size(); ++number) {
        if (auto raw = stored.Raw(favoritenSection, NameKey(number)))
            entriesInFile[number].name.value = IdOfRaw(*std::move(raw));
        if (auto raw = stored.Raw(favoritenSection, PathKey(number)))
            entriesInFile[number].path.value = IdOfRaw(*std::move(raw));
    }
}

const std::string& StoreInMemory::Row(int row) const {
    const bool isThere = row >= 0 && row < static_cast<int>(rows.size());
    const TextId id = isThere ? rows[static_cast<std::size_t>(row)] : emptyText;
    return texts[static_cast<std::size_t>(id)].text;
}

int StoreInMemory::FindByPathPart(const std::string& text) const {
    for (std::size_t i = 0; i < records.size(); ++i) {
        const Text& path = texts[static_cast<std::size_t>(records[i].path)];
        if (path.text.find(text) != std::string::npos ||
            path.readable.find(text) != std::string::npos) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

const std::string& StoreInMemory::PathOf(int record) const {
    const TextId id = IsRecord(record) ? records[static_cast<std::size_t>(record)].path : emptyText;
    return texts[static_cast<std::size_t>(id)].text;
}

void StoreInMemory::SetPath(int record, const std::string& FullPath) {
    if (IsRecord(record)) records[static_cast<std::size_t>(record)].path = IdOfText(FullPath);
}

void StoreInMemory::Blank(int record) {
    if (IsRecord(record)) records[static_cast<std::size_t>(record)] = {emptyText, emptyText};
}

void StoreInMemory::RemoveFavoritAt(int Index) {
    if (!IsRecord(Index)) return;
    records.erase(records.begin() + Index);
    SaveFavoriten();
    Load();
}

// As Favoriten::SaveFavoriten.
void StoreInMemory::SaveFavoriten() {
    std::size_t written = 0;
    for (const Record& record : records) {
        if (record.name == emptyText || record.path == emptyText) continue;
        Write(written++, SavedName(record.name), SavedPath(record.path));
    }
    if (!records.empty() && written == 0) return;
    const RawId empty = RawOf({});
    if (records.empty()) Write(0, empty, empty);
    for (std::size_t behind = written; behind + 1 < 2 * written; ++behind)
        Write(behind, empty, empty);
}

// As Favoriten::LoadFavoriten.
void StoreInMemory::Load() {
    hasLoaded = true;
    records.clear();
    ++load;
    for (std::size_t i = 0; i < mostEntries; ++i) {
        const TextId name = LoadedText(entriesInFile[i].name.value);
        if (name == emptyText) {
            if (LoadedText(entriesInFile[i + 1].name.value) == emptyText) break;
            continue;
        }
        const TextId path = LoadedPath(entriesInFile[i].path.value);
        const auto place = static_cast<std::size_t>(path);
        if (!texts[static_cast<std::size_t>(name)].isStorable || !texts[place].isStorable) continue;
        loads.resize(texts.size());
        if (std::exchange(loads[place], load) != load) records.push_back({path, name});
    }
    rows.clear();
    for (const Record& record : records) {
        if (!texts[static_cast<std::size_t>(record.name)].isBlank) rows.push_back(record.name);
    }
}

std::vector<FavoritEntry> StoreInMemory::Entries() const {
    std::vector<FavoritEntry> entries;
    for (const auto& [path, name] : records) {
        entries.push_back({texts[static_cast<std::size_t>(path)].text,
                           texts[static_cast<std::size_t>(name)].text, 0});
    }
    return entries;
}

std::vector<std::string> StoreInMemory::Rows() const {
    std::vector<std::string> shown;
    for (const TextId row : rows)
        shown.push_back(texts[static_cast<std::size_t>(row)].text);
    return shown;
}

void StoreInMemory::WriteTo(profile::IniDocument& profile) const {
    const auto write = [&](std::size_t number, bool isPath) {
        const Key& key = isPath ? entriesInFile[number].path : entriesInFile[number].name;
        if (!key.isWritten) return;
        const std::string& value = raws[static_cast<std::size_t>(key.value)].written;
        const std::string name = isPath ? PathKey(number) : NameKey(number);
        if (profile.Set(favoritenSection, name, value)) return;
        // A line that holds the value again has been written all the same: in the launcher's form.
        profile.Set(favoritenSection, name, "?" + value);
        profile.Set(favoritenSection, name, value);
    };
    for (const auto& [number, isPath] : newKeys)
        write(number, isPath);
    for (std::size_t number = 0; number < entriesInFile.size(); ++number) {
        write(number, false);
        write(number, true);
    }
}

StoreInMemory::TextId StoreInMemory::IdOfText(const std::string& text) {
    const auto [place, isNew] = textIds.try_emplace(text, static_cast<TextId>(texts.size()));
    if (isNew) {
        Text added;
        added.text = text;
        if (!text::IsUtf8(text)) added.readable = files.DecodeText(text);
        added.isStorable = IsStorable(text);
        added.isBlank = text::Trim(text).empty();
        texts.push_back(std::move(added));
    }
    return place->second;
}

StoreInMemory::RawId StoreInMemory::IdOfRaw(std::string bytes) {
    const auto [place, isNew] = rawIds.try_emplace(bytes, static_cast<RawId>(raws.size()));
    const RawId id = place->second;
    if (!isNew) return id;
    std::string trimmed(profile::TrimBlanksAndTabs(bytes));
    const std::string text = stored.TextOfRaw(bytes);
    const bool isTrimmed = trimmed == bytes;
    raws.push_back({std::move(bytes), {}, id, IdOfText(text), none});
    if (!isTrimmed) {
        const RawId within = IdOfRaw(std::move(trimmed));
        raws[static_cast<std::size_t>(id)].trimmed = within;
    }
    return id;
}

StoreInMemory::RawId StoreInMemory::RawOf(std::string value) {
    const RawId id = IdOfRaw(stored.RawOfText(value));
    raws[static_cast<std::size_t>(id)].written = std::move(value);
    return id;
}

StoreInMemory::TextId StoreInMemory::LoadedText(RawId raw) const {
    return raw == none ? emptyText : raws[static_cast<std::size_t>(raw)].text;
}

StoreInMemory::TextId StoreInMemory::LoadedPath(RawId raw) {
    if (raw == none) return emptyText;
    const auto place = static_cast<std::size_t>(raw);
    if (raws[place].path == none)
        raws[place].path = IdOfText(stored.PathOfRaw(raws[place].bytes, base));
    return raws[place].path;
}

StoreInMemory::RawId StoreInMemory::SavedName(TextId text) {
    const auto place = static_cast<std::size_t>(text);
    if (texts[place].asName == none) {
        const RawId raw = RawOf(texts[place].text);
        texts[place].asName = raw;
    }
    return texts[place].asName;
}

StoreInMemory::RawId StoreInMemory::SavedPath(TextId text) {
    const auto place = static_cast<std::size_t>(text);
    if (texts[place].asPath == none) {
        const RawId raw = RawOf(text::PathToStore(base, texts[place].text));
        texts[place].asPath = raw;
    }
    return texts[place].asPath;
}

void StoreInMemory::Write(std::size_t number, RawId name, RawId path) {
    WriteKey(entriesInFile[number].name, name, number, false);
    WriteKey(entriesInFile[number].path, path, number, true);
}

// As IniDocument::Set.
void StoreInMemory::WriteKey(Key& key, RawId value, std::size_t number, bool isPath) {
    if (key.value == none) {
        newKeys.emplace_back(number, isPath);
    } else if (key.value == value || raws[static_cast<std::size_t>(key.value)].trimmed == value) {
        return;
    }
    key = {value, true};
}

bool StoreInMemory::IsRecord(int record) const {
    return record >= 0 && record < static_cast<int>(records.size());
}

}  // namespace kivu::favourites
