#include "view/button_mirror.h"

#include <QCheckBox>
#include <QKeySequence>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>

#include "forms/access_keys.h"
#include "forms/form.h"
#include "view/colors.h"
#include "view/text.h"

namespace kivu::view {

namespace {

class PushButton : public QPushButton {
 public:
    using QPushButton::QPushButton;

 protected:
    // The toolkit's own lights up by mouse moves alone, and those go to the form.
    void initStyleOption(QStyleOptionButton* option) const override {
        QPushButton::initStyleOption(option);
        option->state.setFlag(QStyle::State_MouseOver, underMouse() && isEnabled());
    }
};

QAbstractButton* MakeValueButton(const forms::ValueButton& control, QWidget* parent) {
    if (control.GetKind() == forms::Kind::optionButton) {
        auto* radio = new QRadioButton(parent);
        radio->setAutoExclusive(false);  // the model keeps them apart
        return radio;
    }
    return new QCheckBox(parent);
}

}  // namespace

ButtonMirror::ButtonMirror(forms::CommandButton& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host) {
    auto* push = new PushButton(parent);
    push->setAutoDefault(false);
    push->setCursor(Qt::PointingHandCursor);
    Take(push);
}

ButtonMirror::ButtonMirror(forms::ValueButton& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host) {
    Take(MakeValueButton(control, parent));
    // Not that of the panel that it may stand on.
    button->setCursor(Qt::ArrowCursor);
}

void ButtonMirror::Take(QAbstractButton* newButton) {
    button = newButton;
    // Real clicks never reach the toolkit's button; these are a screen reader's.
    QObject::connect(button, &QAbstractButton::clicked, button, [this] {
        const RepaintRest::Handler running(host.Rest());
        host.Input().Click(control);
        Apply(forms::Aspect::text);
    });
    Adopt(button);
}

const std::string& ButtonMirror::Caption() const {
    return *forms::CaptionWithAccessKey(control);
}

void ButtonMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (!button || aspect != forms::Aspect::text) return;
    button->setText(ToQt(Caption()));
    // The toolkit would take the access key before the form's key handlers see it.
    button->setShortcut(QKeySequence());
    const auto* value = dynamic_cast<const forms::ValueButton*>(&control);
    if (!value) return;
    if (auto* check = qobject_cast<QCheckBox*>(button)) {
        check->setTristate(value->Value() == 2);
        check->setCheckState(value->Value() == 2   ? Qt::PartiallyChecked
                             : value->Value() == 1 ? Qt::Checked
                                                   : Qt::Unchecked);
    } else {
        button->setCheckable(true);
        button->setChecked(value->Value() != 0);
    }
}

void ButtonMirror::ShowPressed(bool pressed) {
    if (button) button->setDown(pressed);
}

void ButtonMirror::WindowColored() {
    ApplyColors();
}

void ButtonMirror::ApplyColors() {
    Mirror::ApplyColors();
    const QColor window = ToQt(control.ParentForm()->BackColor());
    const QColor own = ToQt(control.BackColor());
    if (control.GetKind() != forms::Kind::commandButton) {
        // A colour of its own is there to be seen.
        widget->setAutoFillBackground(own != window);
        return;
    }
    QPalette palette = widget->palette();
    // One that is off sinks into what lies behind it.
    palette.setColor(QPalette::Window, window);
    // A button in its window's colour would not stand out from it.
    if (own == window || control.BackColor() == forms::Rgb(0x00, 0x52, 0xbc)) {
        palette.setColor(QPalette::Button, Mix(window, InkOn(window, 255), 0.16));
    }
    widget->setPalette(palette);
}

}  // namespace kivu::view
