#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "favourites/favorit_entry.h"
#include "favourites/stored_texts.h"
#include "platform/file_system.h"
#include "profile/ini_document.h"

namespace kivu::favourites {

// A list of favourites and its file in memory, for who removes hundreds of entries one by one: each
// removal saves and loads the store as Favoriten does, with the same outcome down to the bytes of
// the file, which is written once at the end. Texts are numbered, so that a save or a load only
// copies and compares numbers.
class StoreInMemory {
 public:
    // `stored`: the file, which must be readable. `rows`: the list as it is on show.
    StoreInMemory(const platform::FileSystem& files, StoredTexts stored, std::string base,
                  const std::vector<FavoritEntry>& entries, const std::vector<std::string>& rows);

    // The text of a row of the list; empty for a row that is not there.
    const std::string& Row(int row) const;
    // The first record whose path contains the text, with regard to case; -1 for none.
    int FindByPathPart(const std::string& text) const;
    // Empty for a record that is not there.
    const std::string& PathOf(int record) const;
    void SetPath(int record, const std::string& FullPath);
    void Blank(int record);
    void RemoveFavoritAt(int Index);
    void SaveFavoriten();

    std::vector<FavoritEntry> Entries() const;
    std::vector<std::string> Rows() const;
    // Whether the store has been loaded since, so that the list is another one.
    bool HasLoaded() const { return hasLoaded; }
    // Brings all that has been saved into the file.
    void WriteTo(profile::IniDocument& profile) const;

 private:
    using TextId = int;  // of a name or a path, as the launcher holds it
    using RawId = int;   // of the bytes behind the "=" of a key

    struct Text {
        std::string text;
        std::string readable;  // the same decoded, where its bytes are no text
        bool isStorable = false;
        bool isBlank = false;
        RawId asName = none;  // as it is saved; none: not asked for yet
        RawId asPath = none;
    };
    struct Raw {
        std::string bytes;
        std::string written;   // the value that gave these bytes, for bytes of a save
        RawId trimmed = none;  // the bytes without blanks around them
        TextId text = none;    // as it is loaded
        TextId path = none;    // none: not asked for yet
    };
    struct Key {
        RawId value = none;  // none: not in the file
        bool isWritten = false;
    };
    struct Slot {
        Key name, path;
    };
    struct Record {
        TextId path, name;
    };

    static constexpr int none = -1;
    static constexpr TextId emptyText = 0;

    TextId IdOfText(const std::string& text);
    RawId IdOfRaw(std::string bytes);
    // By value: what it is made from may move while texts are added.
    RawId RawOf(std::string value);
    TextId LoadedText(RawId raw) const;
    TextId LoadedPath(RawId raw);
    RawId SavedName(TextId text);
    RawId SavedPath(TextId text);

    void Write(std::size_t number, RawId name, RawId path);
    void WriteKey(Key& key, RawId value, std::size_t number, bool isPath);
    void Load();
    bool IsRecord(int record) const;

    const platform::FileSystem& files;
    StoredTexts stored;
    std::string base;
    std::vector<Text> texts;
    std::vector<Raw> raws;
    std::unordered_map<std::string, TextId> textIds;
    std::unordered_map<std::string, RawId> rawIds;
    std::vector<Record> records;
    std::vector<TextId> rows;
    std::vector<Slot> entriesInFile;                    // by the number in the key
    std::vector<std::pair<std::size_t, bool>> newKeys;  // in their order; true: of a path
    std::vector<int> loads;                             // by path: the load that has met it last
    int load = 0;
    bool hasLoaded = false;
};

}  // namespace kivu::favourites
