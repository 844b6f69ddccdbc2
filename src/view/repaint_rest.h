#pragma once

#include <QTimer>
#include <QWidget>

namespace kivu::view {

// What a handler has changed when it lets events through is no picture for the user yet. So the
// window draws nothing from then on until the outermost handler returns; a longer one gets its
// pictures after a tenth of a second, and can show how far it is.
class RepaintRest {
 public:
    explicit RepaintRest(QWidget& window);

    // Lives as long as a handler runs.
    class Handler {
     public:
        explicit Handler(RepaintRest& rest) : rest(rest) { ++rest.running; }
        ~Handler() { rest.Left(); }
        Handler(const Handler&) = delete;
        Handler& operator=(const Handler&) = delete;

     private:
        RepaintRest& rest;
    };

    // The window is about to draw what has changed. True: not now; it will be asked again.
    bool Holds();

 private:
    void Left();
    void DrawHeld();

    QWidget& window;
    QTimer limit;
    int running = 0;
    bool held = false;   // a picture waits
    bool spent = false;  // the handler has taken its time
};

}  // namespace kivu::view
