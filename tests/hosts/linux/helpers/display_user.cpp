// A launcher in small: sets the display mode that its arguments tell, says so and stays until it is
// killed or told to end. With --keep-display it is the guard.
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#include "hosts/linux/display_guard.h"
#include "hosts/linux/display_linux.h"

int main(int count, char** arguments) {
    if (count == 2 && std::strcmp(arguments[1], "--keep-display") == 0)
        return kivu::hosts::KeepDisplay();
    ::alarm(120);
    kivu::hosts::LinuxDisplay display;
    // One mode behind the other.
    for (int at = 1; at + 3 < count; at += 4) {
        const auto number = [&](int which) { return std::atoi(arguments[at + which]); };
        if (!display.Change({number(0), number(1), number(2), number(3)})) return 1;
    }
    if (::write(STDOUT_FILENO, "!", 1) != 1) return 1;
    char end = 0;
    // _exit, as the launcher ends.
    if (::read(STDIN_FILENO, &end, 1) >= 0) ::_exit(0);
    return 1;
}
