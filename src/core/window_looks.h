#pragma once

#include <string>

#include "forms/types.h"

namespace kivu::core {

inline constexpr const char* defaultTitle = "Kivu 1.4b";

// Colours and titles of the main window.
struct WindowLooks {
    // Back colours of FavoritenListe and of EmulatorLongListbox; no part of a skin.
    forms::Color FavouritesColor = forms::Rgb(0xe0, 0xff, 0xf1);
    forms::Color EmulatorListColor = forms::Rgb(0xf6, 0xf7, 0xd2);
    // The drop-down's own colours while the choice is open.
    forms::Color EmuListboxBackColor = 0;
    forms::Color EmuListboxForeColor = 0;
    forms::Color FormBackColor = forms::Rgb(0x00, 0x52, 0xbc);
    forms::Color FormForeColor = forms::Rgb(0xff, 0xff, 0xff);
    std::string TitleString = defaultTitle;
    std::string DownloadURL;
};

}  // namespace kivu::core
