#pragma once

#include <utility>

namespace kivu::hosts {

// Owns an object of the system's component model.
template <typename Object>
class ComPointer {
 public:
    ComPointer() = default;
    explicit ComPointer(Object* object) : object(object) {}
    ComPointer(ComPointer&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
    ComPointer& operator=(ComPointer&& other) noexcept {
        if (this != &other) {
            Release();
            object = std::exchange(other.object, nullptr);
        }
        return *this;
    }
    ~ComPointer() { Release(); }

    explicit operator bool() const { return object != nullptr; }
    Object* operator->() const { return object; }
    Object& operator*() const { return *object; }
    // Where a call puts one.
    Object** Place() {
        Release();
        return &object;
    }
    void Release() {
        if (Object* released = std::exchange(object, nullptr)) released->Release();
    }

 private:
    Object* object = nullptr;
};

}  // namespace kivu::hosts
