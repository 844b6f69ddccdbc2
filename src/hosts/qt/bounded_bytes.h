#pragma once

#include <QElapsedTimer>
#include <QIODevice>
#include <atomic>
#include <chrono>
#include <string_view>

namespace kivu::hosts {

// A file in memory that ends, however much is left of it, once its time is up or nobody wants it
// any more: the way to stop a reader that goes through it over and over.
class BoundedBytes : public QIODevice {
 public:
    // Bytes and flag are to outlive it.
    BoundedBytes(std::string_view bytes, std::chrono::milliseconds longest,
                 const std::atomic<bool>& cancelled);

    bool IsOver() const { return cancelled || running.elapsed() >= longest; }

    qint64 size() const override { return static_cast<qint64>(bytes.size()); }
    bool seek(qint64 position) override;

 protected:
    qint64 readData(char* buffer, qint64 most) override;
    qint64 writeData(const char*, qint64) override { return -1; }

 private:
    std::string_view bytes;
    qint64 longest;
    const std::atomic<bool>& cancelled;
    QElapsedTimer running;
    std::size_t at = 0;
};

}  // namespace kivu::hosts
