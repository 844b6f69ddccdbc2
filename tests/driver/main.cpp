// The launcher without a screen: one JSON array per line in, one JSON object per line out.

#include <iostream>
#include <string>
#include <vector>

#include "driver/command_line.h"
#include "driver/conversation.h"
#include "host_files.h"
#include "standard_streams.h"

int main(int count, char** values) {
    using namespace kivu;
    std::ios::sync_with_stdio(false);
    kivu::testing::TakeBytesAsTheyAre();
    std::string error;
    const auto options =
        driver::ParseCommandLine(std::vector<std::string>(values + 1, values + count), error);
    if (!options) {
        std::cerr << "kivu-drive: " << error << "\n" << driver::usage;
        return 2;
    }
    kivu::testing::HostFileSystem files;
    driver::Session session(files, *options);
    driver::Interpreter interpreter(session);
    const auto next = []() -> std::optional<std::string> {
        std::string line;
        if (!std::getline(std::cin, line)) return {};
        if (line.ends_with('\r')) line.pop_back();
        return line;
    };
    const auto give = [](const std::string& line) { std::cout << line << '\n' << std::flush; };
    driver::Conversation(interpreter, next, give).Run();
    return 0;
}
