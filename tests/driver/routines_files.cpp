// Routines over files, profiles and the host.

#include "core/language.h"
#include "driver/routines.h"
#include "support/files.h"
#include "support/path_forms.h"
#include "wiring/routines.h"

namespace kivu::driver {

using std::optional;
using std::string;

namespace {

void AddProfileRoutines(RoutineTable& table, Session& session) {
    auto& ini = session.Routines().ini;
    table.push_back(Bind("ReadIniValue", [&ini](string section, string key, string file,
                                                string missing, bool writeBack) {
        return ini.ReadIniValue(section, key, file, missing, writeBack);
    }));
    table.push_back(Bind("WriteIniValue", [&ini](string section, string key, string value,
                                                 string file, bool createFile) {
        ini.WriteIniValue(section, key, value, file, createFile);
    }));
}

// Services of the file dialogs' window.
void AddDialogRoutines(RoutineTable& table, Session& session) {
    const auto files = [&session] {
        auto& host = session.Host();
        return support::Files({host.files, host.userStore, host.starter, host.dialogs});
    };
    // The date in seconds since 1970; nothing where there is no such file.
    table.push_back(Bind("getFileDate", [files](string path) {
        const auto date = files().getFileDate(path);
        return date ? Json(*date) : Json();
    }));
    table.push_back(Bind("FileMove", [files](string source, string destination, bool overwrite) {
        return files().FileMove(source, destination, overwrite);
    }));
    table.push_back(Bind("RegistryGetAbsolutValue",
                         [files](string path) { return files().RegistryGetAbsolutValue(path); }));
    table.push_back(Bind("GetWindowsPath", [files] { return files().GetWindowsPath(); }));
    table.push_back(Bind("GetProgramfilesPath", [files] { return files().GetProgramfilesPath(); }));
    table.push_back(Bind("GetDesktopPath", [files] { return files().GetDesktopPath(); }));
    table.push_back(Bind("GetAutostartPath", [files] { return files().GetAutostartPath(); }));
    table.push_back(Bind("GetStartMenuPath", [files] { return files().GetStartMenuPath(); }));
    table.push_back(Bind("FileGetShortFileName",
                         [files](string path) { return files().FileGetShortFileName(path); }));
    table.push_back(Bind("FileGetLongFileName",
                         [files](string path) { return files().FileGetLongFileName(path); }));
    table.push_back(Bind("FileRun", [files](string path) { return files().FileRun(path); }));
    table.push_back(Bind("ReadDirctoryStructureToFile", [files](string source, string target,
                                                                string extension, bool append) {
        return files().ReadDirctoryStructureToFile(source, target, extension, append);
    }));
}

// A caller may name the variable for the result as well.
Outcome Chosen(const string& path, const optional<string>& result) {
    Outcome outcome{path};
    if (result) outcome.changed["result"] = path;
    return outcome;
}

// Each opens the window Files over the main one.
void AddFileDialogs(RoutineTable& table, Session& session) {
    auto& all = session.Routines();
    table.push_back(Bind("FileOpenDialog", [&all](string path, string caption, string name,
                                                  optional<string> result) {
        auto& dialogs = all.windowsBeside.fileDialogs;
        return Chosen(dialogs.FileOpenDialog(path, caption, name, &all.form), result);
    }));
    table.push_back(Bind("filesaveDialog", [&all](string path, string caption, string name,
                                                  optional<string> result) {
        auto& dialogs = all.windowsBeside.fileDialogs;
        return Chosen(dialogs.filesaveDialog(path, caption, name, &all.form), result);
    }));
    table.push_back(Bind("FileDirSelectDialog", [&all](string path, optional<string> caption) {
        auto& dialogs = all.windowsBeside.fileDialogs;
        return dialogs.FileDirSelectDialog(path, caption.value_or(""), &all.form);
    }));
}

// Single files from the web, the updater, and pages for the browser.
void AddLinks(RoutineTable& table, Session& session) {
    core::OutsideLinks& links = session.Routines().links;
    table.push_back(Bind("URLToFileDownload", [&links](string url, string path, bool overwrite) {
        return links.Download().URLToFileDownload(url, path, overwrite);
    }));
    table.push_back(Bind("DownloadUpdateWithUpdater",
                         [&links](string urlOfFile, string localFile, string localUpdater,
                                  string urlOfUpdater, optional<string> parameter) {
                             return links.Update().DownloadUpdateWithUpdater(
                                 urlOfFile, localFile, localUpdater, urlOfUpdater,
                                 parameter.value_or(""));
                         }));
    table.push_back(Bind("getEmuDownloadPath", [&links] { return links.getEmuDownloadPath(); }));
    // A window style may stand behind the address; browsers have their own.
    table.push_back(Bind("ShowHtmlWithBrowser", [&links](string address, optional<int>) {
        return links.ShowHtmlWithBrowser(address);
    }));
    table.push_back(Bind("DonateBtn_Click", [&links] { links.Donate(); }));
}

}  // namespace

void AddFileRoutines(RoutineTable& table, Session& session) {
    platform::FileSystem& files = session.Host().files;
    AddProfileRoutines(table, session);
    AddDialogRoutines(table, session);
    AddFileDialogs(table, session);
    AddLinks(table, session);
    table.push_back(
        Bind("GetFilePath", [&files](string path) { return support::DirectoryOf(files, path); }));
    table.push_back(Bind("ShortFileName",
                         [&files](string path) { return support::ShortFileName(files, path); }));
    table.push_back(
        Bind("LongFileName", [&files](string path) { return support::LongFileName(files, path); }));
    table.push_back(Bind("IsDirectory", [&files](string path) { return files.IsDirectory(path); }));
    const platform::Locale& locale = session.Host().locale;
    table.push_back(Bind("GetLocaleString",
                         [&locale](int kind) { return core::GetLocaleString(locale, kind); }));
    table.push_back(Bind("GetSystemLanguageIsGerman",
                         [&locale] { return core::GetSystemLanguageIsGerman(locale); }));
}

}  // namespace kivu::driver
