#pragma once

namespace kivu::core {

// How far the program is, and in which language it speaks.
struct ProgramState {
    int CurrentLanguage = 1;   // 1 German, 2 English
    bool Busy = false;         // a switch, a rescan or a launch is under way
    bool WindowReady = false;  // the Load event is through
    bool Ended = false;        // the program has ended; whoever called stops

    int Get_Current_Language() const { return CurrentLanguage; }
    // One of the two wordings of a message.
    const char* Say(const char* german, const char* english) const {
        return CurrentLanguage == 1 ? german : english;
    }
};

}  // namespace kivu::core
