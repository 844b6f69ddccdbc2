#pragma once

#include <functional>
#include <optional>
#include <string>

#include "hosts/windows/handle.h"
#include "hosts/windows/win32.h"
#include "platform/instance.h"

namespace kivu::hosts {

// One instance for each user, program name and directory of the program, within a session. The
// first one holds a named mutex,
// which goes with its process whatever becomes of it, and a hidden window of its own for calls. A
// later one finds that window and sends it a message. Neither the class nor the title of the
// visible window would do: the class is the toolkit's and changes with it, and the title is a
// running progress report.
class WindowsInstance : public platform::Instance {
 public:
    // `directory`: the one that holds Config, with every link resolved.
    explicit WindowsInstance(const std::string& programName, const std::string& directory = {});
    ~WindowsInstance() override;
    WindowsInstance(const WindowsInstance&) = delete;
    WindowsInstance& operator=(const WindowsInstance&) = delete;

    // False: this is the first one, and it hears calls from now on while the thread that asked
    // serves its messages. The title plays no part. Where the system refuses a mutex, every
    // instance is a first one.
    bool HandOver(const std::string& title, const std::string& file) override;
    void OnSummoned(std::function<void(const std::string&)> summon) override;

 private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    bool BecomeFirst();
    bool Call(const std::string& file) const;
    void Summoned(const std::string& file);
    std::string TakeFile();

    std::wstring name;  // of the mutex, and title of the window
    Handle mutex;
    HWND window = nullptr;
    std::string told;  // the file of a call that has still to be served
    std::function<void(const std::string&)> summon;
    std::optional<std::string> missed;  // a call that came before there was somebody to tell
};

}  // namespace kivu::hosts
