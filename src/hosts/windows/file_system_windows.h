#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/file_system.h"

namespace kivu::hosts {

// Files by the wide calls, with paths of any length; see SystemPath for what a path is. Names are
// compared without regard to case, as the disk does it, and a short name names its file as well.
// No call follows a device or a pipe, so none of them can hang on one.
class WindowsFileSystem : public platform::FileSystem {
 public:
    // Larger files are not read: nothing that the launcher reads comes near it, and a sparse file
    // of terabytes must not eat the memory. In bytes.
    static constexpr std::size_t maxFileSize = std::size_t{1} << 30;

    // From now on a drive without a disk in it is an error, and not a question to the user, for all
    // that the calling thread does.
    WindowsFileSystem();

    // Hidden is what has the hidden attribute; a dot in front of a name means nothing here.
    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override;
    // As the constructor for the calling thread.
    std::optional<Listing> ReadDirectory(const std::string& path) const override;
    std::optional<bool> HasEntries(const std::string& path) const override;
    bool ServesThreads() const override { return true; }
    // By the disk's own search. A name's short form counts for nothing.
    std::optional<std::string> FirstMatch(const std::string& directory, std::string_view prefix,
                                          std::string_view ending,
                                          std::string_view preferredStem) const override;
    std::optional<std::string> FindDirectory(const std::string& parent,
                                             std::string_view name) const override;

    bool FileExists(const std::string& path) const override;
    bool IsDirectory(const std::string& path) const override;
    // The serial number of the volume and the file's number on it.
    std::optional<Identity> IdentityOf(const std::string& path) const override;
    // Symbolic links and junctions. Files that a cloud service keeps elsewhere are none.
    bool IsLink(const std::string& path) const override;
    std::string ResolvedPath(const std::string& path) const override;

    std::optional<std::string> ReadFile(const std::string& path) const override;
    // Of any size.
    std::unique_ptr<Reader> OpenFile(const std::string& path) const override;

    // A replaced file keeps its attributes and its time of creation; its rights are those that its
    // directory gives. A link stays a link: its target is replaced. A directory, a device, a
    // dangling link, a file with the read-only attribute and a name that programs take for a device
    // ("NUL") are errors. A file that somebody has open is tried again for a moment.
    std::error_code WriteFile(const std::string& path, std::string_view bytes) override;
    // Creates the file if it is missing. A failure cuts it back to its old length.
    std::error_code AppendFile(const std::string& path, std::string_view bytes) override;
    // Deletes a link itself and not its target. A directory and a file with the read-only attribute
    // are errors.
    std::error_code DeleteFile(const std::string& path) override;
    // To another drive a file is copied.
    std::error_code MoveFile(const std::string& from, const std::string& to) override;
    std::optional<std::int64_t> CreationTime(const std::string& path) const override;
    // One level. A directory that is there already is no error.
    std::error_code MakeDirectory(const std::string& path) override;

    std::string CurrentDirectory() const override;
    std::vector<std::string> Drives() const override;
    std::string HomeDirectory() const override;
    // Changes the drive as well. A path of more than 258 characters is an error where the system
    // knows no longer ones.
    std::error_code ChangeDirectory(const std::string& path) override;

    // A relative path gets a relative answer. A drive without short names gives the long ones.
    std::string ShortPathName(const std::string& path) const override;
    std::string LongPathName(const std::string& path) const override;
    char Separator() const override { return '\\'; }

    // In the system's ANSI code page, see code_page.h.
    std::string DecodeText(std::string_view bytes) const override;
    std::string EncodeText(std::string_view text) const override;

 private:
    static void AskForNoDisk();
};

}  // namespace kivu::hosts
