#include "hosts/windows/user_store_windows.h"

#include <gtest/gtest.h>

#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace kivu::hosts {
namespace {

class UserStoreWindows : public ::testing::Test {
 protected:
    UserStoreWindows() { Remove(); }
    ~UserStoreWindows() override { Remove(); }
    void Remove() const { ::RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str()); }

    bool Exists() const {
        HKEY key = nullptr;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
            return false;
        ::RegCloseKey(key);
        return true;
    }
    void Put(const wchar_t* name, DWORD type, const void* data, DWORD size) const {
        HKEY key = nullptr;
        ASSERT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, (path + L"\\s").c_str(), 0, nullptr, 0,
                                    KEY_SET_VALUE, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(::RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), size),
                  ERROR_SUCCESS);
        ::RegCloseKey(key);
    }
    std::string SystemValue(const std::string& name) const {
        return store.SystemValue("HKEY_CURRENT_USER", Narrow(path) + "\\s", name);
    }

    const std::wstring path = L"Software\\Kivu test " + std::to_wstring(::GetCurrentProcessId());
    WindowsUserStore store{Narrow(path)};
};

TEST_F(UserStoreWindows, WithoutAnythingKeptEverythingIsMissing) {
    EXPECT_EQ(store.Get("AlwaysOnTop", "OnTop", "True"), "True");
    EXPECT_FALSE(Exists());
}

TEST_F(UserStoreWindows, KeepsAValueInTheRegistry) {
    store.Set("AlwaysOnTop", "OnTop", "False");
    EXPECT_EQ(store.Get("alwaysontop", "ONTOP", "True"), "False");
    wchar_t value[10];
    DWORD size = sizeof value;
    ASSERT_EQ(::RegGetValueW(HKEY_CURRENT_USER, (path + L"\\AlwaysOnTop").c_str(), L"OnTop",
                             RRF_RT_REG_SZ, nullptr, value, &size),
              ERROR_SUCCESS);
    EXPECT_STREQ(value, L"False");
    store.Set("AlwaysOnTop", "OnTop", "True");
    EXPECT_EQ(store.Get("AlwaysOnTop", "OnTop", ""), "True");
}

TEST_F(UserStoreWindows, ValuesComeBackAsTheyWereGiven) {
    for (const std::string& value :
         {std::string(), std::string(" blanks around "), std::string("a=b;c#d[e]\r\nf"),
          std::string("Gr\xc3\xbc\xc3\x9f \xe6\x97\xa5 \xf0\x9f\x8e\xae"),
          std::string(5000, 'x')}) {
        store.Set("s", "k", value);
        EXPECT_EQ(store.Get("s", "k", "missing"), value);
    }
    store.Set("s", "k", std::string("a\0b", 3));
    EXPECT_EQ(store.Get("s", "k", "missing"), "a");
}

TEST_F(UserStoreWindows, ANameThatIsNoneOrMoreThanOneIsNotKept) {
    for (const std::string& name : {std::string(), std::string("a\0b", 3)}) {
        store.Set(name, "k", "v");
        store.Set("s", name, "v");
        EXPECT_EQ(store.Get("s", name, "missing"), "missing");
    }
    store.Set("a\\b", "k", "v");
    EXPECT_FALSE(Exists());
    store.Set("s", "a\\b", "v");
    EXPECT_EQ(store.Get("s", "a\\b", "missing"), "v");
}

TEST_F(UserStoreWindows, WhatIsNoTextIsMissing) {
    const DWORD number = 5;
    Put(L"number", REG_DWORD, &number, sizeof number);
    Put(L"bytes", REG_BINARY, "abcd", 4);
    EXPECT_EQ(store.Get("s", "number", "missing"), "missing");
    EXPECT_EQ(store.Get("s", "bytes", "missing"), "missing");
    EXPECT_EQ(SystemValue("number"), "");
}

TEST_F(UserStoreWindows, TextsAreTakenHoweverTheyEnd) {
    Put(L"open", REG_SZ, L"abc", 6);
    Put(L"odd", REG_SZ, L"abc", 5);
    Put(L"many", REG_SZ, L"abc\0def\0\0", 18);
    Put(L"none", REG_SZ, L"", 0);
    EXPECT_EQ(store.Get("s", "open", ""), "abc");
    EXPECT_EQ(store.Get("s", "odd", "").substr(0, 2), "ab");
    EXPECT_EQ(store.Get("s", "many", ""), "abc");
    EXPECT_EQ(store.Get("s", "none", "missing"), "");
}

TEST_F(UserStoreWindows, AHugeTextIsLeftAlone) {
    const std::wstring huge(2 << 20, L'x');
    Put(L"huge", REG_SZ, huge.c_str(), static_cast<DWORD>(huge.size() * sizeof(wchar_t)));
    EXPECT_EQ(store.Get("s", "huge", "missing"), "missing");
}

TEST_F(UserStoreWindows, ReadsTheSystemsValues) {
    const std::wstring folder = L"%USERPROFILE%\\Desktop";
    Put(L"Desktop", REG_EXPAND_SZ, folder.c_str(), static_cast<DWORD>((folder.size() + 1) * 2));
    EXPECT_EQ(SystemValue("Desktop"), "%USERPROFILE%\\Desktop");
    EXPECT_EQ(SystemValue("desktop"), "%USERPROFILE%\\Desktop");
    wchar_t windows[MAX_PATH];
    ASSERT_GT(::GetWindowsDirectoryW(windows, MAX_PATH), 0u);
    const std::string root = store.SystemValue(
        "HKEY_LOCAL_MACHINE", "Software\\Microsoft\\Windows NT\\CurrentVersion", "SystemRoot");
    EXPECT_EQ(::_wcsicmp(Wide(root).c_str(), windows), 0) << root;
}

TEST_F(UserStoreWindows, WhatTheRegistryDoesNotHoldIsEmpty) {
    const std::string key = "Software\\Microsoft\\Windows\\CurrentVersion";
    EXPECT_EQ(store.SystemValue("HKEY_LOCAL_MACHINE", key, "no such value"), "");
    EXPECT_EQ(store.SystemValue("HKEY_LOCAL_MACHINE", "no such key", "x"), "");
    EXPECT_EQ(store.SystemValue("HKEY_NONSENSE", key, "ProgramFilesDir"), "");
    EXPECT_EQ(store.SystemValue("", "", ""), "");
    EXPECT_EQ(store.SystemValue("HKEY_DYN_DATA", key, "x"), "");
    EXPECT_EQ(store.SystemValue("HKEY_PERFORMANCE_DATA", "", "kivu"), "");
    EXPECT_EQ(store.SystemValue("HKEY_LOCAL_MACHINE", key + std::string("\0", 1), "x"), "");
}

}  // namespace
}  // namespace kivu::hosts
