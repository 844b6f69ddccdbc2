#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>

namespace kivu::png {

static_assert(std::endian::native == std::endian::little,
              "bit reader and pixel rows read whole words in memory order");

// Bytes on the heap that are not zeroed first: every user writes before it reads.
class ByteBuffer {
 public:
    ByteBuffer() = default;
    explicit ByteBuffer(std::size_t capacity)
        : bytes(std::make_unique_for_overwrite<std::uint8_t[]>(capacity)), size(capacity) {}

    std::uint8_t* Data() { return bytes.get(); }
    const std::uint8_t* Data() const { return bytes.get(); }
    std::size_t Size() const { return size; }
    bool Empty() const { return size == 0; }
    // Keeps the first newSize bytes. A buffer that is cut to nothing gives its memory back.
    void CutTo(std::size_t newSize) {
        size = newSize < size ? newSize : size;
        if (size == 0) bytes.reset();
    }
    std::span<std::uint8_t> Span() { return {bytes.get(), size}; }
    std::span<const std::uint8_t> Span() const { return {bytes.get(), size}; }

 private:
    std::unique_ptr<std::uint8_t[]> bytes;
    std::size_t size = 0;
};

template <typename Word>
inline Word LoadWord(const std::uint8_t* from) {
    Word word;
    std::memcpy(&word, from, sizeof word);
    return word;
}

template <typename Word>
inline void StoreWord(std::uint8_t* to, Word word) {
    std::memcpy(to, &word, sizeof word);
}

// Numbers in a PNG file have their highest byte first.
inline std::uint32_t NetworkLong(const std::uint8_t* from) {
    return std::uint32_t{from[0]} << 24 | std::uint32_t{from[1]} << 16 |
           std::uint32_t{from[2]} << 8 | from[3];
}

inline std::uint16_t NetworkShort(const std::uint8_t* from) {
    return static_cast<std::uint16_t>(from[0] << 8 | from[1]);
}

}  // namespace kivu::png
