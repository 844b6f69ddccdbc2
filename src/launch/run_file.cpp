#include "launch/run_file.h"

#include "core/form1.h"
#include "launch/associated_program.h"
#include "text/command_line.h"

namespace kivu::launch {

void RunFile::ShellAndWait(const std::string& command, platform::WindowStyle style) {
    platform::StartRequest request;
    request.command = command;
    request.words = text::SplitWindowsCommandLine(command);
    request.directory = services.files.CurrentDirectory();
    request.style = style;
    (void)services.starter.RunAndWait(request, [this] {
        pacer.DoEvents();
        return true;
    });
}

std::string RunFile::FindExecutableOf(const std::string& file) const {
    return services.starter.FindExecutable(file);
}

std::string RunFile::FindAssociatedProgram(const std::string& file) {
    AssociatedProgram program({services.files, services.passing, services.dialogs,
                               [this](const std::string& found) { return FindExecutableOf(found); },
                               services.temporaryDirectory, core::defaultTitle});
    return program.FindAssociatedProgram(file);
}

}  // namespace kivu::launch
