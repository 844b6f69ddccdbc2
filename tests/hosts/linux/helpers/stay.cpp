// Stays until it is killed, like a game that is played; a test that dies leaves it for two minutes.
#include <unistd.h>

int main() {
    ::alarm(120);
    for (;;)
        ::pause();
}
