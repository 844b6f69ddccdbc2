#pragma once

#include <string>

#include "platform/dialogs.h"

namespace kivu::settings {

// What a message box is asked for.
struct Box {
    std::string text;
    std::string title;
    platform::Buttons buttons = platform::Buttons::Ok;
    platform::Icon icon = platform::Icon::None;

    bool operator==(const Box&) const = default;
};

inline platform::Answer Show(platform::Dialogs& dialogs, const Box& box) {
    return dialogs.MessageBox(box.text, box.title, box.buttons, box.icon);
}

}  // namespace kivu::settings
