#include "hosts/qt/dialogs_qt.h"

#include <QColor>
#include <QLineEdit>
#include <vector>

#include "hosts/qt/dialog_box.h"

namespace kivu::hosts {

namespace {

struct Choice {
    platform::Answer answer;
    const char* name;
    const char* german;
    const char* english;
};

constexpr Choice ok{platform::Answer::Ok, "Ok", "OK", "OK"};
constexpr Choice cancel{platform::Answer::Cancel, "Cancel", "Abbrechen", "Cancel"};
constexpr Choice yes{platform::Answer::Yes, "Yes", "&Ja", "&Yes"};
constexpr Choice no{platform::Answer::No, "No", "&Nein", "&No"};

std::vector<Choice> ChoicesOf(platform::Buttons buttons) {
    switch (buttons) {
        case platform::Buttons::OkCancel:
            return {ok, cancel};
        case platform::Buttons::YesNo:
            return {yes, no};
        case platform::Buttons::Ok:
            break;
    }
    return {ok};
}

void ShowIcon(DialogBox& box, platform::Icon icon) {
    switch (icon) {
        case platform::Icon::None:
            break;
        case platform::Icon::Information:
            box.SetSign(QStringLiteral("i"), QColor(0x6f, 0xb7, 0xff));
            break;
        case platform::Icon::Question:
            box.SetSign(QStringLiteral("?"), QColor(0xff, 0xb5, 0x3d));
            break;
        case platform::Icon::Warning:
            box.SetSign(QStringLiteral("!"), QColor(0xff, 0xb5, 0x3d));
            break;
        case platform::Icon::Error:
            box.SetSign(QStringLiteral("×"), QColor(0xff, 0x7b, 0x6e));
            break;
    }
}

void AddChoices(DialogBox& box, const std::vector<Choice>& choices, bool german) {
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const char* caption = german ? choices[i].german : choices[i].english;
        box.AddButton(QString::fromUtf8(choices[i].name), QString::fromUtf8(caption),
                      static_cast<int>(i) + 1);
    }
}

}  // namespace

platform::Answer QtDialogs::MessageBox(const std::string& text, const std::string& title,
                                       platform::Buttons buttons, platform::Icon icon) {
    const std::vector<Choice> choices = ChoicesOf(buttons);
    DialogBox box(QStringLiteral("MessageBox"), QString::fromStdString(title));
    ShowIcon(box, icon);
    box.SetText(QString::fromStdString(text));
    AddChoices(box, choices, german);
    const int result = Ask(box);
    // The last choice is the cancelling one, and the only one is it too.
    return result > 0 ? choices[static_cast<std::size_t>(result) - 1].answer
                      : choices.back().answer;
}

std::string QtDialogs::InputBox(const std::string& prompt, const std::string& title,
                                const std::string& initial) {
    DialogBox box(QStringLiteral("InputBox"), QString::fromStdString(title));
    box.SetText(QString::fromStdString(prompt));
    auto* line = new QLineEdit(QString::fromStdString(initial));
    line->setObjectName(QStringLiteral("Input"));
    line->setAccessibleName(QString::fromStdString(prompt));
    line->setMinimumSize(380, 34);
    line->selectAll();
    box.AddWidget(line);
    AddChoices(box, {ok, cancel}, german);
    line->setFocus();
    return Ask(box) == 1 ? line->text().toStdString() : std::string();
}

int QtDialogs::Ask(DialogBox& box) {
    open.push_back(&box);
    const int result = box.Ask();
    std::erase(open, &box);
    return result;
}

void QtDialogs::PressInBox(BoxKey key) {
    if (open.empty()) return;
    DialogBox& box = *open.back();
    switch (key) {
        case BoxKey::previous:
            return box.StepToButton(-1);
        case BoxKey::next:
            return box.StepToButton(1);
        case BoxKey::press:
            return box.PressButton();
        case BoxKey::cancel:
            return box.reject();
    }
}

}  // namespace kivu::hosts
