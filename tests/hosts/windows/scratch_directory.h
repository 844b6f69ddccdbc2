#pragma once

#include <gtest/gtest.h>
#include <string>

#include "hosts/windows/handle.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace kivu::testing {

// A directory of the test's own that goes away with it, worked on by the system's calls alone.
// Paths are UTF-8 and have no prefix; the calls get one, so that they may be of any length.
class ScratchDirectory {
 public:
    ScratchDirectory() {
        wchar_t parent[MAX_PATH + 1];
        ::GetTempPathW(std::size(parent), parent);
        static int count = 0;
        do {
            root = hosts::Narrow(parent) + "kivu-test-" + std::to_string(::GetCurrentProcessId()) +
                   "-" + std::to_string(++count);
        } while (!::CreateDirectoryW(Verbatim(root).c_str(), nullptr));
    }
    ~ScratchDirectory() { Remove(Verbatim(root)); }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    static std::wstring Verbatim(const std::string& path) { return L"\\\\?\\" + hosts::Wide(path); }

    const std::string& Root() const { return root; }
    std::string Path(const std::string& name) const { return root + "\\" + name; }
    std::wstring WidePath(const std::string& name) const { return Verbatim(Path(name)); }

    std::string MakeDirectory(const std::string& name) const {
        EXPECT_TRUE(::CreateDirectoryW(WidePath(name).c_str(), nullptr)) << name;
        return Path(name);
    }
    std::string Write(const std::string& name, const std::string& bytes) const {
        const hosts::Handle file(::CreateFileW(WidePath(name).c_str(), GENERIC_WRITE, 0, nullptr,
                                               CREATE_ALWAYS, 0, nullptr));
        DWORD written = 0;
        EXPECT_TRUE(file && ::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()),
                                        &written, nullptr))
            << name;
        return Path(name);
    }
    std::string Read(const std::string& name) const {
        const hosts::Handle file(
            ::CreateFileW(WidePath(name).c_str(), GENERIC_READ,
                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                          OPEN_EXISTING, 0, nullptr));
        if (!file) return "<no such file>";
        std::string bytes(::GetFileSize(file.Get(), nullptr), '\0');
        DWORD read = 0;
        ::ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
        bytes.resize(read);
        return bytes;
    }
    DWORD Attributes(const std::string& name) const {
        return ::GetFileAttributesW(WidePath(name).c_str());
    }
    // False: this disk does not keep them.
    bool SetAttributes(const std::string& name, DWORD attributes) const {
        ::SetFileAttributesW(WidePath(name).c_str(), attributes);
        return (Attributes(name) & attributes) == attributes;
    }
    // Hidden ones as well.
    std::size_t Count() const {
        WIN32_FIND_DATAW found{};
        const HANDLE search = ::FindFirstFileW(WidePath("*").c_str(), &found);
        std::size_t count = 0;
        do {
            const std::wstring_view name = found.cFileName;
            if (name != L"." && name != L"..") ++count;
        } while (::FindNextFileW(search, &found));
        ::FindClose(search);
        return count;
    }

 private:
    static void Remove(const std::wstring& path) {
        const DWORD attributes = ::GetFileAttributesW(path.c_str());
        ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        const bool isLink = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
        if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            ::DeleteFileW(path.c_str());
            return;
        }
        if (!isLink) RemoveContent(path);
        ::RemoveDirectoryW(path.c_str());
    }
    static void RemoveContent(const std::wstring& path) {
        WIN32_FIND_DATAW found{};
        const HANDLE search = ::FindFirstFileW((path + L"\\*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return;
        do {
            const std::wstring name = found.cFileName;
            if (name != L"." && name != L"..") Remove(path + L"\\" + name);
        } while (::FindNextFileW(search, &found));
        ::FindClose(search);
    }

    std::string root;
};

// The current directory as it was before, at the end of a test.
class CurrentDirectoryKeeper {
 public:
    CurrentDirectoryKeeper() { ::GetCurrentDirectoryW(std::size(before), before); }
    ~CurrentDirectoryKeeper() { ::SetCurrentDirectoryW(before); }
    CurrentDirectoryKeeper(const CurrentDirectoryKeeper&) = delete;
    CurrentDirectoryKeeper& operator=(const CurrentDirectoryKeeper&) = delete;

 private:
    wchar_t before[MAX_PATH + 1] = {};
};

}  // namespace kivu::testing
