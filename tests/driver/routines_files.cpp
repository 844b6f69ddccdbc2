// Routines over files, profiles and the host.

#include "core/language.h"
#include "driver/routines.h"
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

}  // namespace

void AddFileRoutines(RoutineTable& table, Session& session) {
    platform::FileSystem& files = session.Host().files;
    AddProfileRoutines(table, session);
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
