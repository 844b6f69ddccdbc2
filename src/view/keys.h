#pragma once

#include <QKeyEvent>
#include <vector>

#include "forms/types.h"

namespace kivu::view {

int ShiftState(Qt::KeyboardModifiers modifiers);
int ButtonBit(Qt::MouseButton button);

// Code 0: a key that no handler can be told of, such as a dead key.
forms::Key KeyOf(const QKeyEvent& event);

// The characters that the key types, after a handler may have changed the key.
std::vector<forms::Character> CharactersOf(const QKeyEvent& event, forms::Key key);

}  // namespace kivu::view
