#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace kivu::support {

// SHA-256 as FIPS 180-4 has it.
class Sha256 {
 public:
    void Take(std::string_view bytes);
    // 64 hexadecimal digits in small letters. Nothing is taken any more.
    std::string Result();

    static std::string Of(std::string_view bytes);
    // Empty: missing, a directory, or unreadable.
    static std::optional<std::string> OfFile(const platform::FileSystem& files,
                                             const std::string& path);

 private:
    void TakeBlock(const unsigned char* block);

    std::array<std::uint32_t, 8> state{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                       0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<unsigned char, 64> waiting{};
    std::size_t waitingCount = 0;
    std::uint64_t length = 0;
};

}  // namespace kivu::support
