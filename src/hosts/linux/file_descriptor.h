#pragma once

#include <unistd.h>
#include <utility>

namespace kivu::hosts {

// Owns a descriptor and closes it.
class FileDescriptor {
 public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor(std::exchange(other.descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        if (this != &other) {
            Close();
            descriptor = std::exchange(other.descriptor, -1);
        }
        return *this;
    }
    ~FileDescriptor() { Close(); }

    explicit operator bool() const { return descriptor >= 0; }
    int Get() const { return descriptor; }
    // The caller closes it from now on.
    int Release() { return std::exchange(descriptor, -1); }

    // False: what was written may not have arrived (network and quota file systems tell it here).
    bool Close() {
        const int closing = std::exchange(descriptor, -1);
        return closing < 0 || ::close(closing) == 0;
    }

 private:
    int descriptor = -1;
};

}  // namespace kivu::hosts
