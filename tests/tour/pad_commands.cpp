#include <QCoreApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>

#include "virtual_pad.h"

// The real program with a game controller that SDL makes up, which does what lines of the standard
// input say:
//
//     plug, unplug
//     axis NUMBER VALUE      -32768 to 32767
//     hold BUTTON, release BUTTON
//     tap BUTTON             shorter than the pause between two reads
//
// Each is answered with a line, "done" or "?". The end of the input changes nothing.

int KivuMain(int argc, char** argv);

namespace {

using kivu::testing::VirtualPad;

// A pad with sticks, triggers, and arrow buttons behind the eleven others.
std::unique_ptr<VirtualPad> pad;

bool Obey(std::istringstream& line) {
    std::string command;
    int first = 0, second = 0;
    line >> command;
    if (command == "plug" && !pad->IsPlugged()) {
        pad->Plug();
    } else if (command == "unplug" && pad->IsPlugged()) {
        pad->Unplug();
    } else if (command == "axis" && line >> first >> second) {
        pad->SetAxis(first, second);
    } else if ((command == "hold" || command == "release") && line >> first) {
        pad->SetButton(first, command == "hold");
    } else if (command == "tap" && line >> first) {
        pad->Tap(first);
    } else {
        return false;
    }
    return true;
}

void ReadCommands(QSocketNotifier& input) {
    static std::string waiting;
    char bytes[4096];
    const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
    if (count <= 0) input.setEnabled(false);
    waiting.append(bytes, static_cast<std::size_t>(count > 0 ? count : 0));
    for (std::size_t end; (end = waiting.find('\n')) != std::string::npos;) {
        std::istringstream line(waiting.substr(0, end));
        waiting.erase(0, end + 1);
        std::cout << (Obey(line) ? "done" : "?") << std::endl;
    }
}

// Runs when the program makes its application.
void ServeInput() {
    auto* input = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, qApp);
    QObject::connect(input, &QSocketNotifier::activated, input, [input] { ReadCommands(*input); });
}
Q_COREAPP_STARTUP_FUNCTION(ServeInput)

}  // namespace

int main(int argc, char** argv) {
    pad = std::make_unique<VirtualPad>("Virtual Pad",
                                       VirtualPad::Parts{.axes = 6, .buttons = 15, .known = true});
    return KivuMain(argc, argv);
}
