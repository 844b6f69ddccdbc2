#pragma once

#include <chrono>
#include <functional>
#include <vector>

#include "driver/json.h"
#include "driver/session.h"

namespace kivu::driver {

// What happens in the world while a command is under way.
struct MeanwhilePlan {
    bool atBox = false;  // while a box is on the screen; else while events run
    int count = 1;       // at which of them, from 1
    std::vector<Json> commands;
};

// ["meanwhile", "box" or "events", n, command, ...]
MeanwhilePlan PlanFrom(const Json& command);

// Carries a plan out over one command, in its own lifetime.
class Meanwhile {
 public:
    using Serve = std::function<Json(const Json& command)>;

    Meanwhile(Session& session, MeanwhilePlan plan, Serve serve);
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;
    ~Meanwhile();

    const Json& Answers() const { return answers; }

 private:
    void Happen();

    Session& session;
    MeanwhilePlan plan;
    Serve serve;
    Json answers = Json::array();
    std::function<void()> onShow, onEvents;
    std::chrono::milliseconds perLook;
};

}  // namespace kivu::driver
