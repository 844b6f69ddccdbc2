#include "hosts/windows/display_windows.h"

#include "hosts/windows/win32.h"

namespace kivu::hosts {

namespace {

// Drivers tell 0 or 1 where the frequency is the hardware's own.
constexpr int frequencyOfTheHardware = 60;

}  // namespace

std::optional<platform::DisplayMode> WindowsDisplay::Current() {
    DEVMODEW mode{};
    mode.dmSize = sizeof mode;
    if (::EnumDisplaySettingsW(nullptr, ENUM_CURRENT_SETTINGS, &mode) == 0) return std::nullopt;
    platform::DisplayMode current;
    current.width = static_cast<int>(mode.dmPelsWidth);
    current.height = static_cast<int>(mode.dmPelsHeight);
    current.bits = static_cast<int>(mode.dmBitsPerPel);
    current.frequency = mode.dmDisplayFrequency > 1 ? static_cast<int>(mode.dmDisplayFrequency)
                                                    : frequencyOfTheHardware;
    return current;
}

bool WindowsDisplay::Change(const platform::DisplayMode& mode) {
    if (mode == platform::DisplayMode{}) return true;
    const auto current = Current();
    if (!current || mode.width < 0 || mode.height < 0 || mode.bits < 0 || mode.frequency < 0)
        return false;
    const auto given = [](int value, int kept) {
        return static_cast<DWORD>(value != 0 ? value : kept);
    };
    DEVMODEW wanted{};
    wanted.dmSize = sizeof wanted;
    wanted.dmPelsWidth = given(mode.width, current->width);
    wanted.dmPelsHeight = given(mode.height, current->height);
    wanted.dmBitsPerPel = given(mode.bits, current->bits);
    wanted.dmFields = DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT | DM_DISPLAYFREQUENCY;
    // At another size the system chooses among the frequencies that there are: 0 asks it to.
    const bool sameSize = wanted.dmPelsWidth == static_cast<DWORD>(current->width) &&
                          wanted.dmPelsHeight == static_cast<DWORD>(current->height);
    wanted.dmDisplayFrequency = given(mode.frequency, sameSize ? current->frequency : 0);
    return ::ChangeDisplaySettingsExW(nullptr, &wanted, nullptr, CDS_FULLSCREEN, nullptr) ==
           DISP_CHANGE_SUCCESSFUL;
}

}  // namespace kivu::hosts
