#include "support/files.h"

#include <cstdlib>

#include "support/path_forms.h"
#include "text/stored_paths.h"
#include "text/string_ops.h"
#include "text/text.h"

namespace kivu::support {

namespace {

constexpr const char* currentVersion =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\";
constexpr const char* shellFolders =
    "HKEY_USERS\\.DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell "
    "Folders\\";

// Variables hold text in the system code page.
text::EnvironmentLookup Environment(const platform::FileSystem& files) {
    return [&files](const std::string& name) -> std::optional<std::string> {
        const char* value = std::getenv(name.c_str());
        return value ? std::optional<std::string>(files.DecodeText(value)) : std::nullopt;
    };
}

}  // namespace

std::optional<std::int64_t> Files::getFileDate(const std::string& FullPath) const {
    return services.files.CreationTime(FullPath);
}

bool Files::FileMove(const std::string& Source, const std::string& Destination, bool Overwrite) {
    if (Source.empty() || Destination.empty()) {
        services.dialogs.MessageBox("File Move without parameter\rDestination:" + Destination,
                                    "FileMove", platform::Buttons::Ok, platform::Icon::None);
    }
    platform::FileSystem& files = services.files;
    // A file onto itself, under whatever name: nothing to do, and above all nothing to delete.
    const auto source = files.IdentityOf(Source);
    if (source && source == files.IdentityOf(Destination)) return false;
    if (Overwrite && files.FileExists(Source) && files.FileExists(Destination)) {
        (void)files.DeleteFile(Destination);
    }
    if (files.FileExists(Source) && !files.FileExists(Destination))
        (void)files.MoveFile(Source, Destination);
    return files.FileExists(Destination) && !files.FileExists(Source);
}

std::string Files::RegistryGetAbsolutValue(const std::string& RegistryKeyPath) const {
    const auto path = text::SplitRegistryPath(RegistryKeyPath);
    return path ? services.store.SystemValue(path->root, path->keyPath, path->valueName)
                : std::string{};
}

std::string Files::FolderValue(const std::string& path) const {
    return text::ExpandUserProfile(RegistryGetAbsolutValue(path), Environment(services.files));
}

std::string Files::GetWindowsPath() const {
    return FolderValue(std::string(currentVersion) + "SystemRoot");
}

std::string Files::GetProgramfilesPath() const {
    return FolderValue(std::string(currentVersion) + "ProgramfilesPath");
}

std::string Files::GetDesktopPath() const {
    return FolderValue(std::string(shellFolders) + "Desktop");
}

std::string Files::GetAutostartPath() const {
    return FolderValue(std::string(shellFolders) + "startup");
}

std::string Files::GetStartMenuPath() const {
    return FolderValue(std::string(shellFolders) + "Start Menu");
}

std::string Files::FileGetShortFileName(const std::string& FullPath) const {
    return ShortFileName(services.files, FullPath);
}

std::string Files::FileGetLongFileName(const std::string& FullPath) const {
    return LongFileName(services.files, FullPath);
}

bool Files::FileRun(const std::string& FullPath) {
    if (!services.files.FileExists(FullPath)) return false;
    const std::string name = text::ToLower(FullPath);
    if (!name.ends_with(".exe") && !name.ends_with(".com") && !name.ends_with(".bat")) {
        return !services.starter.Open(FullPath);
    }
    platform::StartRequest request;
    request.command = text::QuoteIfNeeded(FullPath);
    request.words = {FullPath};
    return !services.starter.Run(request);
}

}  // namespace kivu::support
