#include "allocation_meter.h"

#include <cstdlib>
#include <new>

namespace {

// In front of each block: its size, in a space that keeps the block aligned.
constexpr std::size_t headBytes = alignof(std::max_align_t);

std::size_t heldBytes = 0;
std::size_t mostBytes = 0;
std::size_t bytesAtRestart = 0;
std::size_t limitBytes = 0;

void* Allocate(std::size_t size) {
    if (limitBytes != 0 && heldBytes + size > limitBytes) throw std::bad_alloc();
    auto* block = static_cast<unsigned char*>(std::malloc(size + headBytes));
    if (block == nullptr) throw std::bad_alloc();
    *reinterpret_cast<std::size_t*>(block) = size;
    heldBytes += size;
    if (heldBytes > mostBytes) mostBytes = heldBytes;
    return block + headBytes;
}

void Release(void* pointer) {
    if (pointer == nullptr) return;
    auto* block = static_cast<unsigned char*>(pointer) - headBytes;
    heldBytes -= *reinterpret_cast<std::size_t*>(block);
    std::free(block);
}

}  // namespace

void* operator new(std::size_t size) {
    return Allocate(size);
}
void* operator new[](std::size_t size) {
    return Allocate(size);
}
void operator delete(void* pointer) noexcept {
    Release(pointer);
}
void operator delete[](void* pointer) noexcept {
    Release(pointer);
}
void operator delete(void* pointer, std::size_t) noexcept {
    Release(pointer);
}
void operator delete[](void* pointer, std::size_t) noexcept {
    Release(pointer);
}

namespace kivu::png::testing {

void AllocationMeter::Restart() {
    mostBytes = bytesAtRestart = heldBytes;
}

std::size_t AllocationMeter::Peak() {
    return mostBytes - bytesAtRestart;
}

void AllocationMeter::Limit(std::size_t bytes) {
    limitBytes = bytes == 0 ? 0 : heldBytes + bytes;
}

}  // namespace kivu::png::testing
