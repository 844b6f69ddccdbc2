#pragma once

#include <QAbstractButton>

#include "forms/controls.h"
#include "view/mirror.h"

namespace kivu::view {

// A command button, a check box or an option button. The toolkit's button only shows the state: the
// click goes through the model.
class ButtonMirror : public Mirror {
 public:
    ButtonMirror(forms::CommandButton& button, QWidget* parent, MirrorHost& host);
    ButtonMirror(forms::ValueButton& button, QWidget* parent, MirrorHost& host);

    void Apply(forms::Aspect aspect) override;
    void ShowPressed(bool pressed) override;
    void WindowColored() override;

 protected:
    void ApplyColors() override;

 private:
    void Take(QAbstractButton* newButton);
    const std::string& Caption() const;

    QPointer<QAbstractButton> button;
};

}  // namespace kivu::view
