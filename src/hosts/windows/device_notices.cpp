#include "hosts/windows/device_notices.h"

#include <utility>

namespace kivu::hosts {

namespace {

// The class of what a mouse, a keyboard and a game controller are to the system.
constexpr GUID inputDevices{
    0x4D1E55B2, 0xF16F, 0x11CF, {0x88, 0xCB, 0x00, 0x11, 0x11, 0x00, 0x00, 0x30}};

}  // namespace

DeviceNotices::DeviceNotices() {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = &DeviceNotices::Procedure;
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.lpszClassName = windowClass;
    ::RegisterClassExW(&description);
    window = ::CreateWindowExW(0, windowClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                               description.hInstance, nullptr);
    if (window == nullptr) return;
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    DEV_BROADCAST_DEVICEINTERFACE_W wanted{};
    wanted.dbcc_size = sizeof wanted;
    wanted.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
    wanted.dbcc_classguid = inputDevices;
    registration = ::RegisterDeviceNotificationW(window, &wanted, DEVICE_NOTIFY_WINDOW_HANDLE);
}

DeviceNotices::~DeviceNotices() {
    if (registration != nullptr) ::UnregisterDeviceNotification(registration);
    if (window != nullptr) ::DestroyWindow(window);
}

bool DeviceNotices::Take() {
    return std::exchange(heard, false);
}

LRESULT CALLBACK DeviceNotices::Procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
    auto* notices = reinterpret_cast<DeviceNotices*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (notices != nullptr && message == WM_DEVICECHANGE) {
        const bool news = first == DBT_DEVICEARRIVAL || first == DBT_DEVICEREMOVECOMPLETE;
        notices->heard = notices->heard || news;
        return TRUE;
    }
    return ::DefWindowProcW(window, message, first, second);
}

}  // namespace kivu::hosts
