#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"

namespace kivu::forms {

// Shows windows beside and over one another, and keeps the list of them. Three hosts serve it: real
// windows, a conversation by lines, and a script in tests.
//
// It must outlive every form whose toolkit names it.
class WindowHost {
 public:
    WindowHost() = default;
    virtual ~WindowHost();
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;

    // Loads the form where that has not been done, and shows it over another one; null: over none.
    // One that is shown already comes to the front. No effect on one that is about to be destroyed.
    void Show(Form& form, Form* over);
    // The same, and returns when the form has been hidden or unloaded. Meanwhile the user reaches
    // only this window and those over it. One that is modal already only comes to the front.
    void ShowModal(Form& form, Form* over);
    // As the window manager would: nothing happens where the form objects.
    void Close(Form& form) { form.Close(); }
    // Takes a window into the list that is shown by other means, as the main one is. It counts as
    // loaded without its load handler being run.
    void Adopt(Form& form);
    // To the front, with all that stands over it.
    void Raise(Form& form);

    struct Window {
        Form* form = nullptr;
        Form* over = nullptr;
        bool modal = false;
    };
    // Those that are shown, from the back to the front.
    std::vector<Window> OpenWindows() const;
    // The loaded window of a name, shown or not, without regard to case; null: there is none.
    Form* Find(std::string_view name) const;
    bool IsOpen(const Form& form) const;
    // A modal window keeps the user away from this one.
    bool IsBlocked(const Form& form) const;

    // Whether the user works in one of our windows or in another program's.
    enum class Activity { ours, others, unknown };
    virtual Activity ActiveWindow() const { return Activity::unknown; }

    // Whether a window can be kept above those of other programs.
    virtual bool CanStayOnTop() const { return true; }

    // How many boxes and modal windows wait for the user. What would start, switch or open
    // something by itself rests while there are any.
    int Questions() const { return questions; }
    // One more or one less of them.
    std::function<void()> onQuestions;
    // A question lasts as long as this.
    class Question {
     public:
        explicit Question(WindowHost& host) : host(host) { host.CountQuestion(1); }
        ~Question() { host.CountQuestion(-1); }
        Question(const Question&) = delete;
        Question& operator=(const Question&) = delete;

     private:
        WindowHost& host;
    };

    // Twips of the screen that a window over this one may fill; null: over none.
    virtual Size Room(const Form* over) const = 0;
    // Where that part of the screen begins.
    virtual Point RoomCorner(const Form*) const { return {}; }

    // Takes over what must be destroyed with an unloaded form, once no handler of that runs.
    void FreeLater(Form& form, std::shared_ptr<void> owner);
    // Destroys what is not held any more. For places where no code of a form is under way.
    void FreeUnloaded();

    // What forms tell of themselves.
    void Loaded(Form& form);
    void VisibilityChanged(Form& form);
    void Unloaded(const Form& form);
    // It is being destroyed.
    void Gone(Form& form);
    void Released() { FreeWanted(); }

 protected:
    // Puts the form on the screen; it is in the list.
    virtual void Appear(const Window&) {}
    virtual void ComeForward(Form&) {}
    // The form is seen no more; it may be shown again.
    virtual void Vanish(Form&) {}
    // Nothing may refer to the form any more.
    virtual void Forget(Form&) {}
    // Lets the user work until the form is not open any more.
    virtual void Serve(Form& form, const std::function<bool()>& isOpen) = 0;
    // FreeUnloaded is to be called soon.
    virtual void FreeWanted() {}

 private:
    struct Known : Window {
        bool placed = false;  // over another window, or by itself
    };
    struct Dying {
        Form* form;
        std::shared_ptr<void> owner;
    };

    void CountQuestion(int change);
    Known* Entry(const Form& form);
    const Known* Entry(const Form& form) const;
    bool IsDying(const Form& form) const;
    bool StandsOver(const Form& form, const Form& below) const;
    // False: it has not been shown.
    bool PutInFront(Form& form, Form* over, bool modal);
    void MoveToFront(const Form& form);

    std::vector<Known> windows;  // those that are loaded, from the back to the front
    std::vector<Dying> dying;
    int questions = 0;
};

}  // namespace kivu::forms
