#include "driver/session.h"

#include "ui/picture_header.h"
#include "wiring/routines.h"

namespace kivu::driver {

namespace {

// As large as the file says.
std::optional<platform::DecodedPicture> PictureOf(std::string_view bytes) {
    const auto header = ui::ReadPictureHeader(bytes);
    if (!header) return std::nullopt;
    return platform::DecodedPicture{header->width, header->height, {}};
}

testing::ScriptedHost MakeHost(platform::FileSystem& files, const Options& options) {
    testing::ScriptedHost host(files);
    host.locale.name = options.language;
    host.clock.Set(options.time);
    host.starter.usesShell = !options.windowsStartFiles;
    host.pictureDecoder.sizeOf = PictureOf;
    host.runtimeDirectory = options.runtimeDirectory;
    host.temporaryDirectory = options.temporaryDirectory;
    host.build = options.build;
    return host;
}

}  // namespace

Session::Session(platform::FileSystem& files, const Options& options)
    : programDirectory(options.programDirectory),
      files(files),
      disk(files),
      host(MakeHost(disk, options)),
      launcher(
          host.Services(options.programDirectory, options.program, options.commandLine),
          options.measure,
          [this] {
              ended = true;
              throw ProgramEnded{};
          },
          &screen) {
    screen.Adopt(launcher.MainWindow());
}

}  // namespace kivu::driver
