#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kivu::ui {

// Numbers in the bytes of a file that may be cut anywhere: what lies beyond its end is 0.
class ByteView {
 public:
    explicit ByteView(std::string_view bytes) : bytes(bytes) {}

    std::size_t Size() const { return bytes.size(); }
    bool StartsWith(std::string_view text) const { return bytes.starts_with(text); }
    // What lies from `at` on, and at most so many bytes of it.
    ByteView From(std::size_t at, std::size_t most = std::string_view::npos) const {
        return ByteView(at < bytes.size() ? bytes.substr(at, most) : std::string_view());
    }

    std::uint32_t Byte(std::size_t at) const {
        return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
    }
    std::uint32_t Little16(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8; }
    std::uint32_t Little24(std::size_t at) const { return Little16(at) | Byte(at + 2) << 16; }
    std::uint32_t Little32(std::size_t at) const { return Little16(at) | Little16(at + 2) << 16; }
    std::uint32_t Big16(std::size_t at) const { return Byte(at) << 8 | Byte(at + 1); }
    std::uint32_t Big32(std::size_t at) const { return Big16(at) << 16 | Big16(at + 2); }

 private:
    std::string_view bytes;
};

}  // namespace kivu::ui
