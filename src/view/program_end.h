#pragma once

#include <QObject>
#include <functional>

namespace kivu::view {

// Hears of the end of the desktop's session, and of what else the toolkit ends a program for.
class ProgramEnd : public QObject {
 public:
    // `store` is called when the session is about to end, which may still be called off; `end` when
    // the program is to end now. Neither is to ask the user anything.
    ProgramEnd(std::function<void()> store, std::function<void()> end);

    bool eventFilter(QObject* object, QEvent* event) override;

 private:
    std::function<void()> store;
    std::function<void()> end;
};

}  // namespace kivu::view
