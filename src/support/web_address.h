#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/program_starter.h"

namespace kivu::support {

// Addresses come from files that travel with skins and collections. What is handed to the system
// as an address and is none could be a program, which it would run.

// "http://" or "https://" with a host behind it, and no blank, double quote or control character.
bool IsWebAddress(std::string_view address);
// The same with "https://" alone.
bool IsSafeWebAddress(std::string_view address);

// Hands the address to the user's browser. False: it is none, and nothing has been opened; or the
// host could not.
bool ShowHtmlWithBrowser(platform::ProgramStarter& starter, const std::string& address);

// What a download entry opens: the stored address, with "http://" in front of one that names no
// scheme. Empty: it is no address for a browser.
std::optional<std::string> DownloadAddress(std::string_view stored);

// The text of the download entry of an emulator. Empty: there is no emulator or no address.
std::string getEmuDownloadPath(std::string_view emulatorName, std::string_view downloadURL);

}  // namespace kivu::support
