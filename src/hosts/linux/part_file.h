#pragma once

#include <cstddef>
#include <mutex>
#include <string>

#include "hosts/linux/file_descriptor.h"

namespace kivu::hosts {

// A file that grows beside its target and takes its place when it is whole. It goes away with this
// if it has not.
class PartFile {
 public:
    PartFile() = default;
    ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    // Named "NAME.part", or "NAME.1.part" and so on where another program's download has that name.
    // False: the target is a directory, or nothing can be made there.
    bool Open(const std::string& path);
    bool Write(const char* bytes, std::size_t size);
    // On the disk and at its place. False: the old file is still there.
    bool Finish();
    // The process ends before this does: the file goes now. From any thread.
    void Abandon();

 private:
    std::string target;
    std::mutex naming;
    std::string name;  // empty: there is none (any more)
    FileDescriptor file;
};

}  // namespace kivu::hosts
