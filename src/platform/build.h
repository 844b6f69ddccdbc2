#pragma once

#include <string>

namespace kivu::platform {

// What is settled when the program is built and installed, and by nothing that a user's files could
// say. Addresses may be empty: this build has none.
struct Build {
    std::string updateBase;       // "https://host", where "/Update.exe" and "/Kivu/Kivu.exe" lie
    std::string updaterHash;      // SHA-256 of the updater; empty: any will do, for tests alone
    std::string homePage;         // http or https
    std::string donateUrl;        // https
    bool replacesItself = false;  // an updater may replace the program
    bool installed = false;       // the system's packages have brought it
};

}  // namespace kivu::platform
