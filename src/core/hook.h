#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace kivu::core {

class Wish;

// All wishes that are made while it lives, in their order: a test looks here whether each is joined
// once. Nothing else needs one.
class WishCollection {
 public:
    WishCollection() : outer(current) { current = this; }
    ~WishCollection() { current = outer; }
    WishCollection(const WishCollection&) = delete;
    WishCollection& operator=(const WishCollection&) = delete;

    const std::vector<const Wish*>& Wishes() const { return wishes; }

 private:
    friend class Wish;
    static inline WishCollection* current = nullptr;
    WishCollection* outer;
    std::vector<const Wish*> wishes;
};

// What a routine asks of one that it cannot know. `wiring/` joins them, each wish once.
class Wish {
 public:
    // The routine that asks, a dot, what it asks for; a literal.
    explicit Wish(const char* name) : name(name) {
        if (WishCollection::current) WishCollection::current->wishes.push_back(this);
    }
    Wish(const Wish&) = delete;
    Wish& operator=(const Wish&) = delete;

    const char* Name() const { return name; }
    int Joins() const { return joins; }

 protected:
    ~Wish() = default;
    void Join() { ++joins; }

 private:
    const char* name;
    int joins = 0;
};

// One thing that is asked for. A hook that nobody has joined does nothing and gives a default
// value.
template <typename Signature>
class Hook;

template <typename Result, typename... Arguments>
class Hook<Result(Arguments...)> : public Wish {
 public:
    using Wish::Wish;
    template <typename Function>
    Hook& operator=(Function value) {
        function = std::move(value);
        Join();
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

// One of the interfaces in ports.h, served by a routine that is built later than the one that asks.
template <typename Interface>
class Port : public Wish {
 public:
    using Wish::Wish;
    Port& operator=(Interface& value) {
        served = &value;
        Join();
        return *this;
    }
    Interface* operator->() const {
        if (!served) throw std::logic_error(std::string(Name()) + " is joined to nothing");
        return served;
    }

 private:
    Interface* served = nullptr;
};

}  // namespace kivu::core
