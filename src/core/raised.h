#pragma once

namespace kivu::core {

// Raises a flag for the length of a block.
class Raised {
 public:
    explicit Raised(bool& flag) : flag(flag), before(flag) { flag = true; }
    ~Raised() { flag = before; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

 private:
    bool& flag;
    bool before;
};

}  // namespace kivu::core
