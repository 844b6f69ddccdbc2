#pragma once

#include <cstddef>
#include <string>

#include "hosts/windows/handle.h"

namespace kivu::hosts {

// A file that grows beside its target and takes its place when it is whole. It goes away with this
// if it has not, and with the process, however that ends.
class PartFile {
 public:
    PartFile() = default;
    virtual ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    // Named "NAME.part", or "NAME.1.part" and so on where another program's download has that name.
    // False: the target is a directory or read-only, or nothing can be made there.
    bool Open(const std::string& path);
    virtual bool Write(const char* bytes, std::size_t size);
    // On the disk and at its place. False: the old file is still there.
    bool Finish();

 private:
    // Once the handle is closed, by whomever.
    void GoesWhenClosed(bool goes);

    std::wstring target, name;
    Handle file;
};

}  // namespace kivu::hosts
