#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/file_system.h"

namespace kivu::testing {

// Passes every call on to a real file system and fails the ones that a test asks for. A replaced
// file has three places to fail in, and in each of them the old file stays, as on a real host.
class FaultyFileSystem : public platform::FileSystem {
 public:
    // Write also covers appended bytes; Change covers deleting files and making directories.
    enum class Step { Write, Flush, Rename, Change, Read, List };

    explicit FaultyFileSystem(platform::FileSystem& inner) : inner(inner) {}

    // Lets the n-th call of `step` from now on fail once (1: the next one).
    void FailOnce(Step step, int n, std::errc reason) {
        faults.push_back({step, n - 1, reason, false});
    }
    // Lets it fail from the n-th call on, until Heal.
    void FailFrom(Step step, int n, std::errc reason) {
        faults.push_back({step, n - 1, reason, true});
    }
    // No byte more can be written; reading, deleting and renaming go on.
    void FillDisk() { FailFrom(Step::Write, 1, std::errc::no_space_on_device); }
    void MakeReadOnly() {
        FailFrom(Step::Write, 1, std::errc::read_only_file_system);
        FailFrom(Step::Change, 1, std::errc::read_only_file_system);
    }
    void Heal() { faults.clear(); }
    // Only paths that hold this text are counted and fail; empty: all.
    void OnlyFor(std::string text) { filter = std::move(text); }

    // How many calls failed by request so far.
    int Failures() const { return failures; }
    // Successful WriteFile and AppendFile calls so far.
    int Writes() const { return writes; }

    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override {
        if (Fault(Step::List, path)) return std::nullopt;
        return inner.ListDirectory(path);
    }
    std::optional<std::string> FirstMatch(const std::string& directory, std::string_view prefix,
                                          std::string_view ending,
                                          std::string_view preferredStem) const override {
        if (Fault(Step::List, directory)) return std::nullopt;
        return inner.FirstMatch(directory, prefix, ending, preferredStem);
    }
    std::optional<std::string> FindDirectory(const std::string& parent,
                                             std::string_view name) const override {
        if (Fault(Step::List, parent)) return std::nullopt;
        return inner.FindDirectory(parent, name);
    }
    std::optional<bool> HasEntries(const std::string& path) const override {
        if (Fault(Step::List, path)) return std::nullopt;
        return inner.HasEntries(path);
    }
    bool FileExists(const std::string& path) const override { return inner.FileExists(path); }
    bool IsDirectory(const std::string& path) const override { return inner.IsDirectory(path); }
    std::optional<Identity> IdentityOf(const std::string& path) const override {
        return inner.IdentityOf(path);
    }
    bool IsLink(const std::string& path) const override { return inner.IsLink(path); }
    std::string ResolvedPath(const std::string& path) const override {
        return inner.ResolvedPath(path);
    }
    std::optional<std::string> ReadFile(const std::string& path) const override {
        if (Fault(Step::Read, path)) return std::nullopt;
        return inner.ReadFile(path);
    }

    std::error_code WriteFile(const std::string& path, std::string_view bytes) override {
        for (const Step step : {Step::Write, Step::Flush, Step::Rename}) {
            if (const auto failure = Fault(step, path)) return failure;
        }
        return Counted(inner.WriteFile(path, bytes));
    }
    std::error_code AppendFile(const std::string& path, std::string_view bytes) override {
        if (const auto failure = Fault(Step::Write, path)) return failure;
        return Counted(inner.AppendFile(path, bytes));
    }
    std::error_code DeleteFile(const std::string& path) override {
        if (const auto failure = Fault(Step::Change, path)) return failure;
        return inner.DeleteFile(path);
    }
    std::error_code MoveFile(const std::string& from, const std::string& to) override {
        if (const auto failure = Fault(Step::Change, from)) return failure;
        return inner.MoveFile(from, to);
    }
    std::optional<std::int64_t> CreationTime(const std::string& path) const override {
        return inner.CreationTime(path);
    }
    std::error_code MakeDirectory(const std::string& path) override {
        if (const auto failure = Fault(Step::Change, path)) return failure;
        return inner.MakeDirectory(path);
    }

    std::string CurrentDirectory() const override { return inner.CurrentDirectory(); }
    std::vector<std::string> Drives() const override { return inner.Drives(); }
    std::string HomeDirectory() const override { return inner.HomeDirectory(); }
    std::error_code ChangeDirectory(const std::string& path) override {
        return inner.ChangeDirectory(path);
    }
    std::string ShortPathName(const std::string& path) const override {
        return inner.ShortPathName(path);
    }
    std::string LongPathName(const std::string& path) const override {
        return inner.LongPathName(path);
    }
    char Separator() const override { return inner.Separator(); }
    std::string DecodeText(std::string_view bytes) const override {
        return inner.DecodeText(bytes);
    }
    std::string EncodeText(std::string_view text) const override { return inner.EncodeText(text); }

 private:
    struct Planned {
        Step step;
        int passing;  // calls that still go through; below 0: used up
        std::errc reason;
        bool lasting;
    };

    std::error_code Fault(Step step, const std::string& path) const {
        std::error_code failure;
        if (path.find(filter) == std::string::npos) return failure;
        for (Planned& planned : faults) {
            if (planned.step != step || planned.passing < 0) continue;
            if (planned.passing > 0) {
                --planned.passing;
                continue;
            }
            if (!planned.lasting) planned.passing = -1;
            if (!failure) failure = std::make_error_code(planned.reason);
        }
        if (failure) ++failures;
        return failure;
    }
    std::error_code Counted(std::error_code result) {
        if (!result) ++writes;
        return result;
    }

    platform::FileSystem& inner;
    std::string filter;
    mutable std::vector<Planned> faults;
    mutable int failures = 0;
    int writes = 0;
};

}  // namespace kivu::testing
