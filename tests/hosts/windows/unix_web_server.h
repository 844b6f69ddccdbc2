#pragma once

#include <cstdio>
#include <string>

#include "hosts/windows/scratch_directory.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"
#include "testing/eventually.h"

namespace kivu::testing {

// Runs tests/testing/linux/web_server.py where the tests run under Wine, which starts programs of
// the system below it. Real Windows has none, and no server then.
class UnixWebServer {
 public:
    // The path of the script as the system below knows it.
    explicit UnixWebServer(const std::string& script) {
        using UnixName = char*(CDECL*)(const wchar_t*);
        const auto unixName = reinterpret_cast<UnixName>(reinterpret_cast<void*>(
            ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
        if (unixName == nullptr) return;
        char* const place = unixName(hosts::Wide(directory.Root()).c_str());
        if (place == nullptr) return;
        const std::string root = place;
        ::HeapFree(::GetProcessHeap(), 0, place);
        directory.Write("hold", "");
        // It serves until its standard input ends: with this, or after two minutes without it.
        directory.Write("serve.sh", "cd '" + root + "' || exit\n" +
                                        "{ n=0; while [ -e hold ] && [ $n -lt 600 ]; do sleep 0.2; "
                                        "n=$((n+1)); done; } |\n"
                                        "python3 '" +
                                        script + "' . localhost >started 2>errors\n" + "rm -rf '" +
                                        root + "'\n");
        std::wstring command = L"/bin/sh \"" + hosts::Wide(root) + L"/serve.sh\"";
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        if (::CreateProcessW(L"Z:\\bin\\sh", command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                             nullptr, &startup, &process) == 0)
            return;
        for (const HANDLE handle : {process.hProcess, process.hThread})
            if (handle != nullptr) ::CloseHandle(handle);
        running = Eventually([this] {
            char file[512] = {};
            const std::string told = directory.Read("started");
            return told.ends_with('\n') &&
                   std::sscanf(told.c_str(), "%d %d %511s", &port, &safePort, file) == 3;
        });
    }
    ~UnixWebServer() { ::DeleteFileW(directory.WidePath("hold").c_str()); }
    UnixWebServer(const UnixWebServer&) = delete;
    UnixWebServer& operator=(const UnixWebServer&) = delete;

    bool IsRunning() const { return running; }
    std::string Http(const std::string& path) const {
        return "http://127.0.0.1:" + std::to_string(port) + path;
    }
    // Wine compares no numbers with those in a certificate.
    std::string Https(const std::string& path) const {
        return "https://localhost:" + std::to_string(safePort) + path;
    }
    std::string CertificateText() const { return directory.Read("certificate.pem"); }

 private:
    ScratchDirectory directory;
    int port = 0, safePort = 0;
    bool running = false;
};

}  // namespace kivu::testing
