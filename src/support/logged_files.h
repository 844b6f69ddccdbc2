#pragma once

#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/log.h"

namespace kivu::support {

// The host's files, with a line in the log for each that is there and cannot be read, and for each
// that cannot be written, moved or deleted: whoever uses them passes over such a failure. What is
// missing beside others is none, such as the skin of an emulator. What has
// failed is told once, until it succeeds, since many a file is looked at again and again.
class LoggedFiles : public platform::FileSystem {
 public:
    LoggedFiles(platform::FileSystem& files, platform::Log& log) : files(files), log(log) {}

    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override;
    std::optional<Listing> ReadDirectory(const std::string& path) const override;
    bool ServesThreads() const override { return files.ServesThreads(); }
    std::optional<std::string> FirstMatch(const std::string& directory, std::string_view prefix,
                                          std::string_view ending,
                                          std::string_view preferredStem) const override {
        return files.FirstMatch(directory, prefix, ending, preferredStem);
    }
    std::optional<std::string> FindDirectory(const std::string& parent,
                                             std::string_view name) const override {
        return files.FindDirectory(parent, name);
    }
    std::optional<bool> HasEntries(const std::string& path) const override {
        return files.HasEntries(path);
    }
    bool FileExists(const std::string& path) const override { return files.FileExists(path); }
    bool IsDirectory(const std::string& path) const override { return files.IsDirectory(path); }
    std::optional<Identity> IdentityOf(const std::string& path) const override {
        return files.IdentityOf(path);
    }
    bool IsLink(const std::string& path) const override { return files.IsLink(path); }
    std::string ResolvedPath(const std::string& path) const override {
        return files.ResolvedPath(path);
    }
    std::optional<std::string> ReadFile(const std::string& path) const override;
    std::unique_ptr<Reader> OpenFile(const std::string& path) const override;

    std::error_code WriteFile(const std::string& path, std::string_view bytes) override;
    std::error_code AppendFile(const std::string& path, std::string_view bytes) override;
    std::error_code DeleteFile(const std::string& path) override;
    std::error_code MoveFile(const std::string& from, const std::string& to) override;
    std::optional<std::int64_t> CreationTime(const std::string& path) const override {
        return files.CreationTime(path);
    }
    std::error_code MakeDirectory(const std::string& path) override;

    std::string CurrentDirectory() const override { return files.CurrentDirectory(); }
    std::error_code ChangeDirectory(const std::string& path) override {
        return files.ChangeDirectory(path);
    }
    std::vector<std::string> Drives() const override { return files.Drives(); }
    std::string HomeDirectory() const override { return files.HomeDirectory(); }
    std::string ShortPathName(const std::string& path) const override {
        return files.ShortPathName(path);
    }
    std::string LongPathName(const std::string& path) const override {
        return files.LongPathName(path);
    }
    char Separator() const override { return files.Separator(); }
    std::string DecodeText(std::string_view bytes) const override {
        return files.DecodeText(bytes);
    }
    std::string EncodeText(std::string_view text) const override { return files.EncodeText(text); }

 private:
    // The directory is missing, and the one above it is there.
    bool IsLeftOut(const std::string& directory) const;
    void TellListed(bool listed, const std::string& path) const;
    void TellRead(bool read, const std::string& path) const;
    std::error_code Told(const char* what, const std::string& path, std::error_code failure) const;
    // `what` with the path has failed for this reason, or has not (`reason` is empty).
    void Tell(const char* what, const std::string& path, const std::string& reason) const;

    platform::FileSystem& files;
    platform::Log& log;
    mutable std::mutex telling;  // threads read directories ahead
    mutable std::set<std::string> told;
};

}  // namespace kivu::support
