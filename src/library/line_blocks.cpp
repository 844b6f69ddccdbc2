#include "library/line_blocks.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "library/letter_pair.h"

namespace kivu::library {

// Moves what is left behind the last block to the front and reads until the buffer is full. False:
// there is nothing left.
bool LineBlocks::Fill() {
    filled -= end;
    std::memmove(buffer.data(), buffer.data() + end, filled);
    begin = end = 0;
    while (!atEnd && filled < buffer.size()) {
        const std::size_t count = reader.Read(buffer.data() + filled, buffer.size() - filled);
        if (count == 0) atEnd = true;
        filled += count;
    }
    return filled > 0;
}

// Steps over the rest of a line that did not fit, which counts where it ends.
void LineBlocks::LeaveOutLongLine() {
    const std::string_view bytes(buffer.data(), filled);
    const std::size_t feed = bytes.find('\n');
    const bool ends = feed != std::string_view::npos;
    begin = end = ends ? feed + 1 : filled;
    if (!ends && !atEnd) return;
    insideLongLine = false;
    ++lineCount;
}

bool LineBlocks::Next() {
    lineCount = 0;
    if (!Fill()) {
        const bool cutLine = std::exchange(insideLongLine, false);
        lineCount = cutLine ? 1 : 0;
        return cutLine;
    }
    if (insideLongLine) LeaveOutLongLine();
    if (insideLongLine) return true;
    const std::string_view bytes(buffer.data() + begin, filled - begin);
    const std::size_t feed = bytes.rfind('\n');
    if (feed != std::string_view::npos) {
        end = begin + feed + 1;
    } else if (atEnd) {
        end = filled;
    } else if (begin == 0) {
        insideLongLine = true;
        begin = end = filled;
        return true;
    }
    lineCount += CountLineFeeds(Block());
    // The last line of the file, without its end.
    if (atEnd && end < filled) end = filled;
    if (end > begin && buffer[end - 1] != '\n') ++lineCount;
    return true;
}

}  // namespace kivu::library
