#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace kivu::launch {

// Reads a configuration as an emulator would: line by line, keys in front of the first "=", the
// last value of a key counts. Written for the tests alone, with nothing of the launcher in it.
class UaeReader {
 public:
    explicit UaeReader(const std::string& bytes) {
        std::istringstream stream(bytes);
        for (std::string line; std::getline(stream, line);) {
            EXPECT_TRUE(!line.empty() && line.back() == '\r') << "a line does not end in CR LF";
            if (!line.empty()) line.pop_back();
            lines.push_back(line);
        }
        EXPECT_TRUE(bytes.size() >= 2 && bytes.substr(bytes.size() - 2) == "\r\n");
    }

    std::optional<std::string> Value(const std::string& key) const {
        std::optional<std::string> value;
        for (const std::string& line : lines) {
            const std::size_t equals = line.find('=');
            if (equals == std::string::npos || Trimmed(line.substr(0, equals)) != key) continue;
            value = Trimmed(line.substr(equals + 1));
            // Quotes hold a path with blanks together.
            if (value->size() > 1 && value->front() == '"' && value->back() == '"')
                value = value->substr(1, value->size() - 2);
        }
        return value;
    }
    // Lines that begin with the key and "=", without a blank between.
    int Count(const std::string& key) const {
        int count = 0;
        for (const std::string& line : lines)
            count += line.compare(0, key.size() + 1, key + "=") == 0 ? 1 : 0;
        return count;
    }
    // The same in any text.
    static int CountIn(const std::string& text, const std::string& key) {
        const std::string wanted = "\n" + key + "=", searched = "\n" + text;
        int count = 0;
        for (auto at = searched.find(wanted); at != std::string::npos;
             at = searched.find(wanted, at + 1))
            ++count;
        return count;
    }

    std::vector<std::string> lines;

 private:
    static std::string Trimmed(const std::string& text) {
        const std::size_t from = text.find_first_not_of(' ');
        if (from == std::string::npos) return {};
        return text.substr(from, text.find_last_not_of(' ') - from + 1);
    }
};

}  // namespace kivu::launch
