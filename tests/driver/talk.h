#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "driver/conversation.h"

namespace kivu::driver {

// A conversation of given lines.
class Talk {
 public:
    explicit Talk(Interpreter& interpreter)
        : conversation(
              interpreter,
              [this]() -> std::optional<std::string> {
                  if (lines.empty()) return {};
                  std::string line = std::move(lines.front());
                  lines.pop_front();
                  return line;
              },
              [this](const std::string& line) { answers.push_back(line); }) {}

    // All answers up to now.
    const std::vector<std::string>& Run(std::deque<std::string> given) {
        lines = std::move(given);
        conversation.Run();
        return answers;
    }

 private:
    std::deque<std::string> lines;
    std::vector<std::string> answers;
    Conversation conversation;
};

}  // namespace kivu::driver
