#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

namespace kivu::hosts {

// Runs `work`, which waits for a program, on a thread of its own, and asks `goOn` ten times a
// second. Once that says no the thread is left alone with the program, so `work` owns all it uses.
inline std::error_code RunBeside(std::function<std::error_code()> work,
                                 const std::function<bool()>& goOn) {
    std::packaged_task<std::error_code()> task(std::move(work));
    std::future<std::error_code> result = task.get_future();
    std::thread(std::move(task)).detach();
    while (result.wait_for(std::chrono::milliseconds(100)) != std::future_status::ready)
        if (!goOn()) return std::make_error_code(std::errc::operation_canceled);
    return result.get();
}

}  // namespace kivu::hosts
