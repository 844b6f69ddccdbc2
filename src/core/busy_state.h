#pragma once

#include <chrono>
#include <string>

#include "platform/clock.h"
#include "platform/event_pump.h"

namespace kivu::core {

struct Form1;

// Lets events run inside long loops, but not more often than a screen can follow.
class EventPacer {
 public:
    EventPacer(platform::EventPump& events, const platform::Clock& clock)
        : events(events), clock(clock) {}
    void DoEvents() { events.DoEvents(); }
    // Lets events run when the last turn was 30 ms ago.
    void DoEventsWhenDue();

 private:
    platform::EventPump& events;
    const platform::Clock& clock;
    std::chrono::milliseconds last{0};
};

// The switch between the working window and the busy one, and how busy routines show progress.
class BusyState {
 public:
    BusyState(Form1& form, platform::EventPump& events) : form(form), events(events) {}
    // False is the busy state.
    void HideAll(bool iVIsible);
    // One text into the window title, MyCaptionLabel and LoadingBtn.
    void MeCaption(const std::string& NewCaption);

 private:
    Form1& form;
    platform::EventPump& events;
};

}  // namespace kivu::core
