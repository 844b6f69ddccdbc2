// Quoted words through a real shell.
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>

#include "text/command_line.h"

namespace kivu::text {
namespace {

using std::string;
using namespace std::literals;

string ShellOutput(const string& command) {
    string output;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return output;
    std::array<char, 4096> buffer;
    for (std::size_t n = 0; (n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
        output.append(buffer.data(), n);
    }
    pclose(pipe);
    return output;
}

TEST(QuoteForShell, ComesThroughARealShellUnchanged) {
    std::mt19937 random(10);
    string words;
    string expected;
    for (int i = 0; i < 200; ++i) {
        string word;
        for (auto n = random() % 12; n > 0; --n)
            word += static_cast<char>(1 + random() % 255);
        for (const char c : "'\"$`\\;&|<>()*?[]#~!% \n"sv) {
            if (random() % 3 == 0) word += c;
        }
        words += ' ' + QuoteForShell(word);
        expected += '[' + word + ']';
    }
    EXPECT_EQ(ShellOutput("printf '[%s]'" + words), expected);
}

}  // namespace
}  // namespace kivu::text
