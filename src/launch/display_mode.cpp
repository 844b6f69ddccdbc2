#include "launch/display_mode.h"

namespace kivu::launch {

namespace {

std::string TextOf(const platform::DisplayMode& mode) {
    return std::to_string(mode.width) + "x" + std::to_string(mode.height) + "x" +
           std::to_string(mode.bits) + "x" + std::to_string(mode.frequency);
}

}  // namespace

void ChangeScreenRes::SaveAndSetDisplayMode() {
    const auto current = display.Current();
    if (!current) return log.Write("display mode not read, and not changed");
    record = *current;
    savedMode = record;
    Print();
    ChangeDisplayMode(800, 600, 16, 60);
}

void ChangeScreenRes::RestoreDisplayMode() {
    ChangeDisplayMode(savedMode.width, savedMode.height, savedMode.bits, savedMode.frequency);
}

void ChangeScreenRes::ChangeDisplayMode(int Width, int Height, int Colors, int Frequency) {
    const bool size = Width != 0 && Height != 0;
    const bool noSize = Width == 0 && Height == 0;
    if (noSize && Colors == 0 && Frequency == 0) return;
    const platform::DisplayMode given{Width, Height, Colors, Frequency};
    if (size && Colors != 0 && Frequency != 0) {
        lastMode = given;
        record = given;
    } else if (size && Colors == 0 && Frequency == 0) {
        lastMode.width = Width;
        lastMode.height = Height;
        record = lastMode;
    } else if (noSize && Frequency == 0) {
        lastMode.bits = Colors;
        record = lastMode;
    } else if (noSize && Colors == 0) {
        lastMode.frequency = Frequency;
        record = lastMode;
    }
    log.Write((display.Change(record) ? "display mode set: " : "display mode refused: ") +
              TextOf(record));
    Print();
}

void ChangeScreenRes::Print() {
    printed = TextOf(record);
}

}  // namespace kivu::launch
