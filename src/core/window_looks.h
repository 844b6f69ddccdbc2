#pragma once

#include <string>

#include "forms/types.h"

namespace kivu::core {

inline constexpr const char* defaultTitle = "Kivu 1.4b";
// The project has no page of its own yet.
inline constexpr const char* projectPage = "";

// Colours and titles of the main window.
struct WindowLooks {
    forms::Color FavouritesColor = 0;    // back colour of FavoritenListe
    forms::Color EmulatorListColor = 0;  // back colour of EmulatorLongListbox
    // The drop-down's own colours while the choice is open.
    forms::Color EmuListboxBackColor = 0;
    forms::Color EmuListboxForeColor = 0;
    forms::Color FormBackColor = forms::Rgb(0x00, 0x52, 0xbc);
    forms::Color FormForeColor = forms::Rgb(0xff, 0xff, 0xff);
    std::string TitleString = defaultTitle;
    std::string DownloadURL;
};

}  // namespace kivu::core
