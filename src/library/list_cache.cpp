#include "library/list_cache.h"

#include <cstring>

namespace kivu::library {

namespace {

std::string_view TakeLine(std::string_view& rest) {
    const void* end = std::memchr(rest.data(), '\n', rest.size());
    const std::size_t length =
        end ? static_cast<std::size_t>(static_cast<const char*>(end) - rest.data()) : rest.size();
    std::string_view line = rest.substr(0, length);
    rest.remove_prefix(end ? length + 1 : length);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

}  // namespace

std::vector<CacheEntry> ParseCache(std::string_view bytes) {
    std::vector<CacheEntry> entries;
    // Two lines of some 60 bytes each are usual; a wrong guess costs a move of the vector.
    entries.reserve(bytes.size() / 100 + 1);
    while (!bytes.empty()) {
        CacheEntry entry;
        entry.path = TakeLine(bytes);
        entry.hasName = !bytes.empty();
        if (entry.hasName) entry.name = TakeLine(bytes);
        entries.push_back(entry);
    }
    return entries;
}

void AppendCacheEntry(std::string& cache, std::string_view path, std::string_view name) {
    cache.append(path).append("\r\n").append(name).append("\r\n");
}

}  // namespace kivu::library
