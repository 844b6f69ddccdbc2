#include "support/logged_services.h"

#include "support/log_reason.h"
#include "text/log_text.h"

namespace kivu::support {

namespace {

const char* Name(platform::WindowStyle style) {
    switch (style) {
        case platform::WindowStyle::Hidden:
            return "hidden";
        case platform::WindowStyle::Minimized:
            return "minimized";
        case platform::WindowStyle::Maximized:
            return "maximized";
        case platform::WindowStyle::NormalNoFocus:
            return "normal without focus";
        case platform::WindowStyle::MinimizedNoFocus:
            return "minimized without focus";
        default:
            return "normal";
    }
}

// Behind what was done, or why it was not.
std::string Result(const char* done, std::error_code failure) {
    return failure ? "not started, " + LogReason(failure) : std::string(done);
}

}  // namespace

std::error_code LoggedStarter::Run(const platform::StartRequest& request) {
    const std::error_code failure = starter.Run(request);
    Write(Result(request.wait ? "run to its end" : "started", failure), request);
    return failure;
}

std::error_code LoggedStarter::RunAndWait(const platform::StartRequest& request,
                                          const std::function<bool()>& goOn) {
    const std::error_code failure = starter.RunAndWait(request, goOn);
    if (failure == std::errc::operation_canceled)
        Write("started, and left to itself", request);
    else
        Write(Result("run to its end", failure), request);
    return failure;
}

void LoggedStarter::Write(std::string line, const platform::StartRequest& request) {
    // The form that this host takes.
    line += ": " + (starter.UsesShell() ? text::LogWords(request.words) : request.command);
    line += "; in " + (request.directory.empty() ? "the current directory" : request.directory);
    line += "; " + std::string(Name(request.style));
    if (request.watched) line += ", watched";
    log.Write(line);
}

std::optional<std::string> LoggedStarter::StartFileBytes(std::string_view text) const {
    auto bytes = starter.StartFileBytes(text);
    if (!bytes)
        log.Write("refused: the code page of start files lacks a character of: " +
                  std::string(text));
    return bytes;
}

std::error_code LoggedStarter::EditText(const std::string& path) {
    const std::error_code failure = starter.EditText(path);
    log.Write(Result("opened in the editor", failure) + ": " + path);
    return failure;
}

std::error_code LoggedStarter::Open(const std::string& addressOrPath) {
    const std::error_code failure = starter.Open(addressOrPath);
    log.Write(Result("opened", failure) + ": " + addressOrPath);
    return failure;
}

std::optional<std::vector<platform::ProcessEntry>> LoggedProcesses::Snapshot() const {
    auto entries = processes.Snapshot();
    if (!entries && !told) log.Write("process list not read");
    told = !entries;
    return entries;
}

bool LoggedInstance::HandOver(const std::string& title, const std::string& file) {
    const bool handedOver = instance.HandOver(title, file);
    if (handedOver)
        log.Write("handed over to the instance that runs: " + (file.empty() ? "no file" : file));
    return handedOver;
}

}  // namespace kivu::support
