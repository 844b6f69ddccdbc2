#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "testing/ini_checks.h"
#include "text/text.h"

// The input is a profile and, separated by the byte 0x1F, texts that are set in it three by three:
// section, key, value. Its first byte says how names and values are coded, and whether the profile
// is turned into UTF-16 first.

namespace {

constexpr char separator = '\x1F';

std::string_view NextPart(std::string_view& input) {
    const std::size_t end = input.find(separator);
    const std::string_view part = input.substr(0, end);
    input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    return part;
}

kivu::profile::IniCoding CodingOf(unsigned char choice) {
    using namespace kivu::text;
    if (choice % 3 == 0) return {};
    if (choice % 3 == 1) {
        return {[](std::string_view bytes) { return FromWindows1252(bytes); },
                [](std::string_view text) { return ToWindows1252(text); }};
    }
    return {[](std::string_view bytes) {
                return IsUtf8(bytes) ? std::string(bytes) : FromWindows1252(bytes);
            },
            {}};
}

void Report(const std::string& problem) {
    if (problem.empty()) return;
    std::fprintf(stderr, "%s\n", problem.c_str());
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    std::string_view input(reinterpret_cast<const char*>(data + 1), size - 1);
    const auto coding = CodingOf(data[0]);
    std::string bytes(NextPart(input));
    if (data[0] >= 0xC0) bytes = "\xFF\xFE" + kivu::profile::Utf8ToUtf16(bytes);
    kivu::testing::IniChecks checks(bytes, coding);
    Report(checks.Set("Settings", "Fontsize", "16"));
    kivu::profile::IniDocument many(bytes, coding);
    many.Set("Settings", "Fontsize", "16");
    while (!input.empty()) {
        const std::string_view section = NextPart(input);
        const std::string_view key = NextPart(input);
        const std::string_view value = NextPart(input);
        Report(checks.Set(section, key, value));
        many.Set(section, key, value);
    }
    if (many.Bytes() != checks.Bytes()) Report("all in one go gives other bytes");
    return 0;
}
