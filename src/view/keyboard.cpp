#include "view/keyboard.h"

#include <QPointer>
#include <utility>

#include "forms/button_keys.h"
#include "forms/controls.h"
#include "view/keys.h"
#include "view/text.h"

namespace kivu::view {

namespace keys = forms::keys;
namespace shifts = forms::shifts;

Keyboard::Keyboard(forms::Form& form, forms::UserInput& input, MirrorOf mirrorOf)
    : form(form), input(input), mirrorOf(std::move(mirrorOf)) {
}

bool Keyboard::PressCharacters(std::vector<forms::Character>& characters) {
    for (forms::Character& character : characters) {
        character = input.KeyPress(character);
        if (character.code == 0) return false;
    }
    return true;
}

bool Keyboard::OpensPopup(forms::Key key) const {
    const forms::Control* focus = form.Focus();
    if (!focus || focus->GetKind() != forms::Kind::comboBox) return false;
    const bool down = key.code == keys::down && key.shift == shifts::alt;
    return down || (key.code == keys::f4 && key.shift == 0);
}

void Keyboard::Press(QWidget& widget, QKeyEvent& event) {
    const QPointer<QWidget> receiver(&widget);
    const forms::Key key = KeyOf(event);
    if (key.code == 0) {
        // A dead key or the like: the field may make something of it.
        static_cast<QObject&>(widget).event(&event);
        return;
    }
    const forms::Control* const struckOn = form.Focus();
    const forms::Key left = input.KeyDown(key);
    if (left.code == 0) return;
    const std::vector<forms::Character> typed = CharactersOf(event, left);
    std::vector<forms::Character> characters = typed;
    if (!PressCharacters(characters)) return;
    forms::Control* focus = form.Focus();
    Mirror* mirror = focus ? mirrorOf(*focus) : nullptr;
    if (mirror) input.pageRows = mirror->PageRows();
    if (mirror && OpensPopup(left)) {
        mirror->ShowRows();
        return;
    }
    if (forms::PressesAnother(struckOn, focus, left) || input.DefaultKey(left)) return;
    if (left.code == keys::f4 && left.shift == shifts::alt) {
        if (onCloseKey) onCloseKey();
        return;
    }
    if (receiver) Edit(*receiver, event, left, typed, characters);
}

void Keyboard::Edit(QWidget& receiver, QKeyEvent& event, forms::Key key,
                    const std::vector<forms::Character>& typed,
                    const std::vector<forms::Character>& left) {
    forms::Control* focus = form.Focus();
    Mirror* mirror = focus ? mirrorOf(*focus) : nullptr;
    if (!mirror || !mirror->Editor()) return;
    // Enter means nothing in one line of text, and the toolkit's combo box would choose a row.
    const auto* box = dynamic_cast<const forms::TextBox*>(focus);
    if (key.code == keys::enter && !(box && box->IsMultiLine())) return;
    const bool own = mirror->Widget() == &receiver || mirror->Editor() == &receiver;
    if (own && typed == left && key == KeyOf(event)) {
        // Not through the toolkit's own ways, which would offer the key to the windows behind.
        static_cast<QObject&>(receiver).event(&event);
        return;
    }
    // Another key than was struck, or another field: the model edits, and the view shows it.
    if (left.empty()) input.EditKey(key);
    for (const forms::Character character : left) {
        input.EditCharacter(character);
    }
}

}  // namespace kivu::view
