#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kivu::library {

// One game image of a list cache; the views point into the cache's bytes.
struct CacheEntry {
    std::string_view path;  // as stored, relative to the program's directory
    std::string_view name;  // display name
    bool hasName = true;    // false for a path in an odd last line
};

// The pairs of lines of a list cache: a path, then its display name. Lines end in CR LF; LF alone
// is taken as well. No line is refused: what a name or a path is worth shows when it is used.
// A cache holds many thousand lines, few of which are looked at: only their begins are kept.
class CacheEntries {
 public:
    explicit CacheEntries(std::string_view bytes);

    std::size_t size() const { return starts.size() / 2; }
    bool empty() const { return size() == 0; }
    CacheEntry operator[](std::size_t entry) const;
    CacheEntry front() const { return (*this)[0]; }
    CacheEntry back() const { return (*this)[size() - 1]; }

    class Iterator {
     public:
        Iterator(const CacheEntries& entries, std::size_t at) : entries(&entries), at(at) {}
        CacheEntry operator*() const { return (*entries)[at]; }
        Iterator& operator++() {
            ++at;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return at != other.at; }

     private:
        const CacheEntries* entries;
        std::size_t at;
    };
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, size()}; }

 private:
    std::string_view Line(std::size_t line) const;

    std::string_view bytes;
    // Of the lines, and the end of the bytes. Caches of 4 GB are read by no host.
    std::vector<std::uint32_t> starts;
};

// A cache in memory with its pairs.
struct LoadedCache {
    explicit LoadedCache(std::string read) : bytes(std::move(read)), entries(bytes) {}
    LoadedCache(const LoadedCache&) = delete;
    LoadedCache& operator=(const LoadedCache&) = delete;

    const std::string bytes;
    const CacheEntries entries;
};

// Two lines ended by CR LF for each image.
void AppendCacheEntry(std::string& cache, std::string_view path, std::string_view name);

}  // namespace kivu::library
