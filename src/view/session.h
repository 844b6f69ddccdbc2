#pragma once

#include <QString>

namespace kivu::view {

// What windows can do in the session that the program runs in.
struct Session {
    bool placesWindows = true;  // where they want
    bool keepsOnTop = true;     // above those of other programs
    bool bypassesManager = false;
};

// By the toolkit's name for the kind of session.
Session SessionOf(const QString& platform);
// The one that the program runs in.
Session ThisSession();

}  // namespace kivu::view
