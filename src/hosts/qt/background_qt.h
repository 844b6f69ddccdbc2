#pragma once

#include <QObject>
#include <QThreadPool>

#include "platform/background.h"

namespace kivu::hosts {

// To be made and destroyed on the window's thread.
class QtBackground : public platform::Background {
 public:
    QtBackground();
    ~QtBackground() override;
    void Run(std::function<void()> work, std::function<void()> done) override;

 private:
    QObject windowThread;
    QThreadPool pool;
};

}  // namespace kivu::hosts
