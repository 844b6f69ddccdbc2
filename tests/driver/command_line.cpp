#include "driver/command_line.h"

#include <filesystem>

#include "driver/time_text.h"

namespace kivu::driver {

namespace {

// The launcher changes its current directory, so a relative one would lose its meaning.
std::string Absolute(const std::string& path) {
    std::error_code failed;
    std::string absolute = std::filesystem::absolute(path, failed).lexically_normal().string();
    if (failed) return path;
    while (absolute.size() > 1 && (absolute.back() == '/' ||
                                   absolute.back() == std::filesystem::path::preferred_separator))
        absolute.pop_back();
    return absolute;
}

// What a build names.
bool TakeAddress(platform::Build& build, const std::string& name, const std::string& value) {
    if (name == "--update-base") {
        build.updateBase = value;
        build.replacesItself = true;
    } else if (name == "--updater-sha256") {
        build.updaterHash = value;
    } else if (name == "--home-page") {
        build.homePage = value;
    } else if (name == "--donate-url") {
        build.donateUrl = value;
    } else {
        return false;
    }
    return true;
}

// False: the value means nothing.
bool Take(Options& options, const std::string& name, const std::string& value) {
    if (name == "--program-dir") {
        options.programDirectory = value.empty() ? "" : Absolute(value);
    } else if (name == "--program") {
        options.program = value;
    } else if (name == "--command-line") {
        options.commandLine = value;
    } else if (name == "--language") {
        options.language = value;
    } else if (name == "--time") {
        const auto time = TimeFromText(value);
        if (time) options.time = *time;
        return time.has_value();
    } else if (name == "--runtime-dir") {
        options.runtimeDirectory = value.empty() ? "" : Absolute(value);
    } else if (name == "--temporary-dir") {
        options.temporaryDirectory = value.empty() ? "" : Absolute(value);
    } else if (name == "--start-files" && (value == "windows" || value == "shell")) {
        options.windowsStartFiles = value == "windows";
    } else {
        return TakeAddress(options.build, name, value);
    }
    return true;
}

}  // namespace

std::optional<Options> ParseCommandLine(const std::vector<std::string>& arguments,
                                        std::string& error) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        const bool whole = i + 1 < arguments.size();
        if (whole && Take(options, arguments[i], arguments[i + 1])) continue;
        error = "cannot make sense of " + arguments[i];
        return {};
    }
    if (options.programDirectory.empty()) {
        error = "--program-dir is missing";
        return {};
    }
    return options;
}

}  // namespace kivu::driver
