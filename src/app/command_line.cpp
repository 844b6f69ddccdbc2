#include "app/command_line.h"

namespace kivu::app {

namespace {

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

bool IsAbsolute(const std::string& path) {
    const bool drive = path.size() > 1 && path[1] == ':';
    return path.starts_with('/') || path.starts_with('\\') || drive;
}

}  // namespace

bool TakeLogOption(std::vector<std::string>& arguments) {
    const std::string option = "--log";
    const std::size_t given = arguments.size();
    while (!arguments.empty() && arguments.front() == option)
        arguments.erase(arguments.begin());
    while (!arguments.empty() && arguments.back() == option)
        arguments.pop_back();
    return arguments.size() < given;
}

std::string CommandLineText(std::vector<std::string> arguments, const std::string& directory,
                            const std::function<bool(const std::string&)>& fileExists) {
    const char separator = directory.find('\\') == std::string::npos ? '/' : '\\';
    const std::string base = directory.ends_with(separator) ? directory : directory + separator;
    const auto absolute = [&](const std::string& path) {
        const bool ours = !path.empty() && !IsAbsolute(path) && fileExists(base + path);
        return ours ? base + path : path;
    };
    const std::string whole = Joined(arguments);
    if (const std::string path = absolute(whole); path != whole) return path;
    for (std::string& argument : arguments) {
        argument = absolute(argument);
    }
    return Joined(arguments);
}

}  // namespace kivu::app
