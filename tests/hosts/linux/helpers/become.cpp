// Runs the program of its first argument in its own place, under the name and with the arguments
// that follow: a wrapper, as package systems put them in front of programs.
#include <unistd.h>

int main(int count, char** arguments) {
    if (count > 2) ::execv(arguments[1], arguments + 2);
    return 127;
}
