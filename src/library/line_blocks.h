#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kivu::library {

// A text file in blocks of whole lines, with little memory for files of any size. A line that is
// longer than a block is counted and left out: nothing that the launcher writes comes near it.
class LineBlocks {
 public:
    static constexpr std::size_t blockSize = std::size_t{1} << 18;  // bytes

    explicit LineBlocks(platform::FileSystem::Reader& reader, std::size_t size = blockSize)
        : reader(reader), buffer(size) {}

    // False: the file is through.
    bool Next();
    // Whole lines, valid until Next is called again. The last line of a file may lack its end.
    std::string_view Block() const { return {buffer.data() + begin, end - begin}; }
    // Lines of the block, left out ones with them.
    std::size_t LineCount() const { return lineCount; }

 private:
    bool Fill();
    void LeaveOutLongLine();

    platform::FileSystem::Reader& reader;
    std::vector<char> buffer;
    std::size_t begin = 0, end = 0;  // the block
    std::size_t filled = 0;          // bytes in the buffer
    std::size_t lineCount = 0;
    bool insideLongLine = false;
    bool atEnd = false;
};

}  // namespace kivu::library
