#include <algorithm>
#include <array>
#include <new>

#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/system_file.h"
#include "hosts/windows/wide_path.h"

namespace kivu::hosts {

namespace {

// Up to `size` bytes, 0 at the end; empty optional: a failure.
std::optional<std::size_t> ReadSome(const Handle& file, char* buffer, std::size_t size) {
    constexpr std::size_t maxBlock = std::size_t{16} << 20;
    DWORD count = 0;
    const DWORD block = static_cast<DWORD>(std::min(size, maxBlock));
    if (::ReadFile(file.Get(), buffer, block, &count, nullptr)) return count;
    if (::GetLastError() == ERROR_HANDLE_EOF) return 0;
    return std::nullopt;
}

// The first `size` bytes and whatever has been added behind them since the file was looked at. By
// way of a block that stays in the processor's cache: to fill the whole text with zeros before it
// is read into would touch all its memory once more.
std::optional<std::string> ReadAll(const Handle& file, std::size_t size) {
    std::array<char, std::size_t{64} << 10> block;
    std::string bytes;
    bytes.reserve(size);
    for (;;) {
        const auto count = ReadSome(file, block.data(), block.size());
        if (!count) return std::nullopt;
        if (*count == 0) return bytes;
        if (bytes.size() + *count > WindowsFileSystem::maxFileSize) return std::nullopt;
        bytes.append(block.data(), *count);
    }
}

class HandleReader : public platform::FileSystem::Reader {
 public:
    explicit HandleReader(Handle handle) : file(std::move(handle)) {}

    std::size_t Read(char* buffer, std::size_t size) override {
        return ReadSome(file, buffer, size).value_or(0);
    }

 private:
    Handle file;
};

Handle Open(const std::string& path) {
    const auto system = EndsInSeparator(path) ? std::nullopt : SystemPath(path);
    return system ? OpenForReading(*system) : Handle();
}

}  // namespace

std::optional<std::string> WindowsFileSystem::ReadFile(const std::string& path) const {
    const Handle file = Open(path);
    LARGE_INTEGER size{};
    if (!file || !::GetFileSizeEx(file.Get(), &size)) return std::nullopt;
    if (size.QuadPart < 0 || static_cast<std::uint64_t>(size.QuadPart) > maxFileSize)
        return std::nullopt;
    try {
        return ReadAll(file, static_cast<std::size_t>(size.QuadPart));
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::unique_ptr<platform::FileSystem::Reader> WindowsFileSystem::OpenFile(
    const std::string& path) const {
    Handle file = Open(path);
    return file ? std::make_unique<HandleReader>(std::move(file)) : nullptr;
}

}  // namespace kivu::hosts
