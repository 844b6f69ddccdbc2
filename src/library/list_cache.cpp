#include "library/list_cache.h"

#include <cstring>
#include <limits>

namespace kivu::library {

CacheEntries::CacheEntries(std::string_view all)
    : bytes(all.substr(0, std::numeric_limits<std::uint32_t>::max())) {
    // Lines of some 60 bytes are usual; a wrong guess costs a move of the vector.
    starts.reserve(bytes.size() / 50 + 2);
    for (std::size_t at = 0; at < bytes.size();) {
        starts.push_back(static_cast<std::uint32_t>(at));
        const void* end = std::memchr(bytes.data() + at, '\n', bytes.size() - at);
        at = end ? static_cast<std::size_t>(static_cast<const char*>(end) - bytes.data()) + 1
                 : bytes.size();
    }
    starts.push_back(static_cast<std::uint32_t>(bytes.size()));
}

std::string_view CacheEntries::Line(std::size_t line) const {
    std::string_view text = bytes.substr(starts[line], starts[line + 1] - starts[line]);
    if (!text.empty() && text.back() == '\n') text.remove_suffix(1);
    if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
    return text;
}

CacheEntry CacheEntries::operator[](std::size_t entry) const {
    CacheEntry pair;
    pair.path = Line(2 * entry);
    pair.hasName = 2 * entry + 2 < starts.size();
    if (pair.hasName) pair.name = Line(2 * entry + 1);
    return pair;
}

void AppendCacheEntry(std::string& cache, std::string_view path, std::string_view name) {
    cache.append(path).append("\r\n").append(name).append("\r\n");
}

}  // namespace kivu::library
