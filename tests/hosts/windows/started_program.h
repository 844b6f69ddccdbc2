#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "hosts/windows/scratch_directory.h"
#include "hosts/windows/win32.h"
#include "testing/eventually.h"

// What tests need to see programs that they start: helpers/tell.cpp, and who still runs.
namespace kivu::testing {

inline bool IsWine() {
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}
constexpr const char* wineExpandsTwice =
    "Wine's command processor looks through the text of a variable for further ones";

// Sets a variable that started programs inherit, until the end of its scope.
class InheritedVariable {
 public:
    InheritedVariable(const wchar_t* name, const std::wstring& value) : name(name) {
        std::array<wchar_t, 32767> old{};
        if (::GetEnvironmentVariableW(name, old.data(), static_cast<DWORD>(old.size())) > 0)
            before = old.data();
        ::SetEnvironmentVariableW(name, value.c_str());
    }
    ~InheritedVariable() { ::SetEnvironmentVariableW(name, before ? before->c_str() : nullptr); }
    InheritedVariable(const InheritedVariable&) = delete;
    InheritedVariable& operator=(const InheritedVariable&) = delete;

 private:
    const wchar_t* name;
    std::optional<std::wstring> before;
};

// A program that the build has put beside the test.
inline std::wstring HelperPath(const std::wstring& name) {
    std::array<wchar_t, 4096> own{};
    ::GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size()));
    const std::wstring_view path = own.data();
    return std::wstring(path.substr(0, path.find_last_of(L'\\') + 1)) + L"kivu_" + name + L".exe";
}

inline void CopyHelper(const std::wstring& name, const std::string& destination) {
    EXPECT_NE(::CopyFileW(HelperPath(name).c_str(), ScratchDirectory::Verbatim(destination).c_str(),
                          FALSE),
              0)
        << destination;
}

// The process of the test and all that it has started, and what those have started.
class StartedPrograms {
 public:
    // One for the process: it can never leave it again.
    static StartedPrograms& Instance() {
        static StartedPrograms one;
        return one;
    }
    // All that were started have ended.
    bool HaveEnded() const { return Ids().empty(); }
    void Kill() const {
        for (const DWORD id : Ids()) {
            const hosts::Handle process(::OpenProcess(PROCESS_TERMINATE, FALSE, id));
            if (process) ::TerminateProcess(process.Get(), 1);
        }
    }

 private:
    StartedPrograms() : job(::CreateJobObjectW(nullptr, nullptr)) {
        EXPECT_NE(::AssignProcessToJobObject(job.Get(), ::GetCurrentProcess()), 0);
    }
    std::vector<DWORD> Ids() const {
        constexpr std::size_t most = 500;
        alignas(8) std::array<std::byte, sizeof(JOBOBJECT_BASIC_PROCESS_ID_LIST) + most * 8> room{};
        auto* list = reinterpret_cast<JOBOBJECT_BASIC_PROCESS_ID_LIST*>(room.data());
        EXPECT_NE(::QueryInformationJobObject(job.Get(), JobObjectBasicProcessIdList, list,
                                              sizeof room, nullptr),
                  0);
        std::vector<DWORD> ids;
        for (DWORD i = 0; i < list->NumberOfProcessIdsInList; ++i) {
            const auto id = static_cast<DWORD>(list->ProcessIdList[i]);
            if (id != ::GetCurrentProcessId()) ids.push_back(id);
        }
        return ids;
    }

    hosts::Handle job;
};

// What a copy of helpers/tell.cpp has told.
struct Told {
    std::string program, directory, show, variable, inherited;
    std::vector<std::string> words;
    DWORD id = 0;
};

// Copies of the telling program, and what they tell.
class Telling {
 public:
    // A copy at that path in the scratch directory's own form of paths.
    void Install(const std::string& path) const { CopyHelper(L"tell", path); }
    // Waits for the report of the started copy and takes it away.
    std::optional<Told> Wait() const {
        if (!Eventually([&] { return report.Attributes("told") != INVALID_FILE_ATTRIBUTES; }))
            return std::nullopt;
        const std::string text = report.Read("told");
        ::DeleteFileW(report.WidePath("told").c_str());
        return Parse(text);
    }
    bool HasTold() const { return report.Attributes("told") != INVALID_FILE_ATTRIBUTES; }
    // A trap was started.
    bool IsTrapped() const { return report.Attributes("trapped") != INVALID_FILE_ATTRIBUTES; }

 private:
    static Told Parse(const std::string& text) {
        Told told;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = text.find('\n', at);
            const std::string line = text.substr(at, end - at);
            const std::string value = line.substr(line.find('=') + 1);
            if (line.starts_with("program=")) told.program = value;
            if (line.starts_with("word=")) told.words.push_back(value);
            if (line.starts_with("directory=")) told.directory = value;
            if (line.starts_with("show=")) told.show = value;
            if (line.starts_with("id=")) told.id = static_cast<DWORD>(std::stoul(value));
            if (line.starts_with("variable=")) told.variable = value;
            if (line.starts_with("inherited=")) told.inherited = value;
            at = end + 1;
        }
        return told;
    }

    ScratchDirectory report;
    InheritedVariable told{L"KIVU_TELL", hosts::Wide(report.Path("told"))};
    InheritedVariable trapped{L"KIVU_TRAP", hosts::Wide(report.Path("trapped"))};
};

// Nobody holds a handle to the ended process of that id any more.
inline bool IsForgotten(DWORD id) {
    const hosts::Handle process(::OpenProcess(SYNCHRONIZE, FALSE, id));
    return !process;
}

}  // namespace kivu::testing
