#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "hosts/linux/name_indexes.h"
#include "platform/file_system.h"

namespace kivu::hosts {

// Files by POSIX calls. A path is used byte for byte; one that holds a NUL names nothing. Empty
// paths name nothing either. No call follows a pipe or device, so none of them can hang on one.
class LinuxFileSystem : public platform::FileSystem {
 public:
    // Larger files are not read: nothing that the launcher reads comes near it, and a sparse file
    // of terabytes must not eat the memory. In bytes.
    static constexpr std::size_t maxFileSize = std::size_t{1} << 30;

    // Asks for a file's type only where the directory itself does not tell it: for links, and on
    // file systems that leave it open.
    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override;
    std::optional<Listing> ReadDirectory(const std::string& path) const override;
    std::optional<bool> HasEntries(const std::string& path) const override;
    bool ServesThreads() const override { return true; }
    // By an index of the directory's names, which is read anew when the directory has changed.
    // Threads may call both at any time.
    std::optional<std::string> FirstMatch(const std::string& directory, std::string_view prefix,
                                          std::string_view ending,
                                          std::string_view preferredStem) const override;
    std::optional<std::string> FindDirectory(const std::string& parent,
                                             std::string_view name) const override;

    bool FileExists(const std::string& path) const override;
    bool IsDirectory(const std::string& path) const override;
    std::optional<Identity> IdentityOf(const std::string& path) const override;
    bool IsLink(const std::string& path) const override;
    std::string ResolvedPath(const std::string& path) const override;

    std::optional<std::string> ReadFile(const std::string& path) const override;
    // Of any size.
    std::unique_ptr<Reader> OpenFile(const std::string& path) const override;

    // A new file gets 0666 less the umask, a replaced one keeps its mode and, where the user may
    // give it, its owner. A link stays a link: its target is replaced, or created. A directory, a
    // device or a write-protected file is an error.
    std::error_code WriteFile(const std::string& path, std::string_view bytes) override;
    // Creates the file if it is missing. A failure cuts it back to its old length.
    std::error_code AppendFile(const std::string& path, std::string_view bytes) override;
    // Deletes a link itself and not its target. A directory is an error.
    std::error_code DeleteFile(const std::string& path) override;
    // One level. A directory that is there already is no error.
    std::error_code MoveFile(const std::string& from, const std::string& to) override;
    std::optional<std::int64_t> CreationTime(const std::string& path) const override;
    std::error_code MakeDirectory(const std::string& path) override;

    std::string CurrentDirectory() const override;
    std::vector<std::string> Drives() const override;
    std::string HomeDirectory() const override;
    std::error_code ChangeDirectory(const std::string& path) override;

    std::string ShortPathName(const std::string& path) const override;
    std::string LongPathName(const std::string& path) const override;
    char Separator() const override { return '/'; }

    std::string DecodeText(std::string_view bytes) const override;
    // UTF-8 as it is, together with the bytes of names that are none.
    std::string EncodeText(std::string_view text) const override;

 private:
    mutable NameIndexes indexes;
};

}  // namespace kivu::hosts
