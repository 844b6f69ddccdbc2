#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace kivu::platform {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Icon { None, Information, Question, Warning, Error };
enum class Answer { Ok, Cancel, Yes, No };

// Message and input boxes. Texts hold line breaks as CR, LF or both.
class Dialogs {
 public:
    virtual ~Dialogs() = default;
    // Closing a box gives its cancelling answer: No, Cancel, or Ok where there is nothing else.
    virtual Answer MessageBox(const std::string& text, const std::string& title, Buttons buttons,
                              Icon icon) = 0;
    // Empty text: cancelled, or left empty.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& initial) = 0;
};

class Beeper {
 public:
    virtual ~Beeper() = default;
    virtual void Beep() = 0;
};

// The user interface's turn inside a long routine.
class EventPump {
 public:
    virtual ~EventPump() = default;
    virtual void DoEvents() = 0;
};

class Locale {
 public:
    virtual ~Locale() = default;
    // English name of the user's language, such as "German" or "English"; empty when unknown.
    virtual std::string LanguageEnglishName() const = 0;
};

// A small per-user store of texts, apart from the data directory.
class UserStore {
 public:
    virtual ~UserStore() = default;
    virtual std::string Get(const std::string& section, const std::string& key,
                            const std::string& missing) const = 0;
    virtual void Set(const std::string& section, const std::string& key,
                     const std::string& value) = 0;
    // A value of the system's own registry by its full path; empty where there is none.
    virtual std::string SystemValue(const std::string& root, const std::string& key,
                                    const std::string& name) const = 0;
};

// An earlier instance of the program for the same user.
class Instance {
 public:
    virtual ~Instance() = default;
    // Longest file name that a later instance hands over, in bytes.
    static constexpr std::size_t maxFile = 4096;

    // True: an earlier one runs and has been asked to come to the front, and to start `file` (an
    // absolute path; empty for none).
    virtual bool HandOver(const std::string& title, const std::string& file) = 0;
    // What to do when a later instance asks this one to come to the front: `file` is what it was
    // given to start, empty for nothing. It comes from outside, and may be any text of at most
    // `maxFile` bytes without NUL.
    virtual void OnSummoned(std::function<void(const std::string& file)> summon) = 0;
};

}  // namespace kivu::platform
