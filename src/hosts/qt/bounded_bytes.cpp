#include "hosts/qt/bounded_bytes.h"

#include <algorithm>

namespace kivu::hosts {

BoundedBytes::BoundedBytes(std::string_view bytes, std::chrono::milliseconds longest,
                           const std::atomic<bool>& cancelled)
    : bytes(bytes), longest(longest.count()), cancelled(cancelled) {
    running.start();
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool BoundedBytes::seek(qint64 position) {
    if (position < 0 || position > size() || !QIODevice::seek(position)) return false;
    at = static_cast<std::size_t>(position);
    return true;
}

qint64 BoundedBytes::readData(char* buffer, qint64 most) {
    if (most <= 0 || IsOver()) return 0;
    const std::size_t count = bytes.copy(buffer, static_cast<std::size_t>(most), at);
    at += count;
    return static_cast<qint64>(count);
}

}  // namespace kivu::hosts
