// Stays until it is killed, like a game that is played; a test that dies leaves it for two minutes.
#include "hosts/windows/win32.h"

int main() {
    ::Sleep(120 * 1000);
    return 0;
}
