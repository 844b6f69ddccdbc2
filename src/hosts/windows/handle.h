#pragma once

#include <utility>

#include "hosts/windows/win32.h"

namespace kivu::hosts {

// Owns a kernel object's handle and closes it. Calls say "none" by null or by INVALID_HANDLE_VALUE:
// here both are none.
class Handle {
 public:
    Handle() = default;
    explicit Handle(HANDLE handle) : handle(handle) {}
    Handle(Handle&& other) noexcept : handle(std::exchange(other.handle, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        if (this != &other) {
            Close();
            handle = std::exchange(other.handle, nullptr);
        }
        return *this;
    }
    ~Handle() { Close(); }

    explicit operator bool() const { return handle != nullptr && handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle; }
    // The caller closes it from now on.
    HANDLE Release() { return std::exchange(handle, nullptr); }

    // False: what was written may not have arrived.
    bool Close() {
        HANDLE closing = std::exchange(handle, nullptr);
        return closing == nullptr || closing == INVALID_HANDLE_VALUE || ::CloseHandle(closing) != 0;
    }

 private:
    HANDLE handle = nullptr;
};

}  // namespace kivu::hosts
