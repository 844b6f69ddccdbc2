#include "hosts/windows/program_directory_windows.h"

#include "hosts/windows/system_text.h"
#include "hosts/windows/wide_path.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"
#include "text/text.h"

// Needs windows.h.
#include <shellapi.h>

namespace kivu::hosts {

std::string ProgramFile() {
    // A path that does not fit is cut, and its length is then the buffer's.
    return Narrow(WithoutPrefix(SystemText(
        [](wchar_t* buffer, DWORD size) { return ::GetModuleFileNameW(nullptr, buffer, size); })));
}

std::vector<std::string> ProgramArguments() {
    std::vector<std::string> arguments;
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int word = 1; words != nullptr && word < count; ++word)
        arguments.push_back(Narrow(words[word]));
    ::LocalFree(words);
    return arguments;
}

std::string ProgramName(const std::string& programFile) {
    const std::string name = programFile.substr(programFile.find_last_of("\\/") + 1);
    if (name.size() <= 4) return name;
    std::string ending = name.substr(name.size() - 4);
    for (char& letter : ending)
        letter = text::ToLowerAscii(letter);
    return ending == ".exe" ? name.substr(0, name.size() - 4) : name;
}

std::string ProgramDirectory(const std::string& programFile) {
    const auto separator = programFile.find_last_of("\\/");
    if (separator == std::string::npos) return {};
    const bool isDrive = separator == 2 && programFile[1] == ':';
    return programFile.substr(0, isDrive ? separator + 1 : separator);
}

std::string TemporaryDirectory() {
    std::string path = Narrow(
        SystemText([](wchar_t* buffer, DWORD size) { return ::GetTempPathW(size, buffer); }));
    if (path.size() > 3 && path.ends_with('\\')) path.pop_back();
    return path;
}

}  // namespace kivu::hosts
