#pragma once

#include <functional>
#include <type_traits>
#include <utility>

namespace kivu::core {

// What a routine asks of a room above its own. The place that builds both joins them; a hook that
// nobody has joined does nothing and gives a default value.
template <typename Signature>
class Hook;

template <typename Result, typename... Arguments>
class Hook<Result(Arguments...)> {
 public:
    template <typename Function>
    Hook& operator=(Function value) {
        function = std::move(value);
        return *this;
    }
    explicit operator bool() const { return static_cast<bool>(function); }
    Result operator()(Arguments... arguments) const {
        if (function) return function(std::forward<Arguments>(arguments)...);
        if constexpr (!std::is_void_v<Result>) return Result{};
    }

 private:
    std::function<Result(Arguments...)> function;
};

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
