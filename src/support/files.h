#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/program_starter.h"
#include "platform/user_store.h"

namespace kivu::support {

// Small services of the file dialogs' window: dates, moves, the system's own folders, running a
// file. A failure gives the empty text, nothing, or false.
class Files {
 public:
    struct Services {
        platform::FileSystem& files;
        platform::UserStore& store;
        platform::ProgramStarter& starter;
        platform::Dialogs& dialogs;
    };

    explicit Files(Services services) : services(services) {}

    // When the file was made, in seconds since 1970 (UTC).
    std::optional<std::int64_t> getFileDate(const std::string& FullPath) const;
    // True when the destination is there and the source is gone. An empty parameter is told to the
    // user.
    bool FileMove(const std::string& Source, const std::string& Destination, bool Overwrite);
    // A value of the system's registry by its full path, such as
    // "HKEY_LOCAL_MACHINE\Software\...\SystemRoot". The user's directory stands for what is between
    // "%".
    std::string RegistryGetAbsolutValue(const std::string& RegistryKeyPath) const;
    std::string GetWindowsPath() const;
    std::string GetProgramfilesPath() const;
    std::string GetDesktopPath() const;
    std::string GetAutostartPath() const;
    std::string GetStartMenuPath() const;
    std::string FileGetShortFileName(const std::string& FullPath) const;
    std::string FileGetLongFileName(const std::string& FullPath) const;
    // Programs and batch files run by themselves, any other file by the program that it belongs to.
    bool FileRun(const std::string& FullPath);
    // Writes the full path of each file below `Source` into a text file, a line each: files by
    // their order, then the directories, each of which is entered once, whatever links lead to it.
    // `SearchExtension` may have its point or not; empty, or "*": all files. The text file itself
    // is left out. False: `Source` cannot be read, which leaves the text file as it was, or the
    // text file cannot be written.
    [[nodiscard]] bool ReadDirctoryStructureToFile(const std::string& Source,
                                                   const std::string& TargetTextFileName,
                                                   const std::string& SearchExtension,
                                                   bool AppendTarget);

 private:
    std::string FolderValue(const std::string& path) const;

    Services services;
};

}  // namespace kivu::support
