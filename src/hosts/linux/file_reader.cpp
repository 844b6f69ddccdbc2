#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "hosts/linux/file_descriptor.h"
#include "hosts/linux/file_system_linux.h"

namespace kivu::hosts {

namespace {

class DescriptorReader : public platform::FileSystem::Reader {
 public:
    explicit DescriptorReader(FileDescriptor descriptor) : file(std::move(descriptor)) {}

    std::size_t Read(char* buffer, std::size_t size) override {
        for (;;) {
            const ssize_t count = ::read(file.Get(), buffer, size);
            if (count >= 0) return static_cast<std::size_t>(count);
            if (errno != EINTR) return 0;
        }
    }

 private:
    FileDescriptor file;
};

}  // namespace

std::unique_ptr<platform::FileSystem::Reader> LinuxFileSystem::OpenFile(
    const std::string& path) const {
    if (path.empty() || path.find('\0') != std::string::npos) return nullptr;
    // Without O_NONBLOCK, opening a pipe would wait for somebody who writes to it.
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status {};
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return nullptr;
    return std::make_unique<DescriptorReader>(std::move(file));
}

}  // namespace kivu::hosts
