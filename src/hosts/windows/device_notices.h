#pragma once

#include "hosts/windows/win32.h"

namespace kivu::hosts {

// Hears of input devices that come and go, in a window that is never seen. For a thread that serves
// messages.
class DeviceNotices {
 public:
    static constexpr const wchar_t* windowClass = L"KivuDeviceNotices";

    DeviceNotices();
    ~DeviceNotices();
    DeviceNotices(const DeviceNotices&) = delete;
    DeviceNotices& operator=(const DeviceNotices&) = delete;

    // One came or went since this was last asked.
    bool Take();
    HWND Window() const { return window; }

 private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);

    HWND window = nullptr;
    HDEVNOTIFY registration = nullptr;
    bool heard = false;
};

}  // namespace kivu::hosts
