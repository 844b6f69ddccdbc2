#include "launch/wait.h"

namespace kivu::launch {

void WAIT(int Seconds, platform::Clock& clock, core::EventPacer& pacer) {
    using namespace std::chrono_literals;
    int last = clock.Now().second;
    for (int changes = 0; changes < Seconds;) {
        const int now = clock.Now().second;
        if (now != last) {
            ++changes;
            last = now;
        }
        pacer.DoEvents();
        if (changes < Seconds) clock.Rest(20ms);
    }
}

}  // namespace kivu::launch
