#pragma once

#include <QString>
#include <vector>

#include "forms/controls.h"
#include "forms/form.h"

namespace kivu::view {

// What the controls of a form mean to somebody who does not see them, from the model alone.

enum class Meaning {
    nothing,  // decoration; what lies on it belongs to what lies around it
    window,
    group,
    text,
    link,
    button,
    tab,
    check,
    option,
    slider,
    field,
    choice,
    list,
};

Meaning MeaningOf(const forms::Control& control);

// A label that can be clicked and is no link. It looks like a quiet tab.
bool IsClickable(const forms::Label& label);
// One of several that stand in a row on the same container.
bool IsTab(const forms::Label& label);
// The one whose list is in front.
bool IsMarked(const forms::Label& label);

// A frame with nothing on it but clickable pictures of one tool tip, which take turns: the one at
// the back shows while it is on.
bool IsSwitch(const forms::Control& control);
bool IsOn(const forms::Control& theSwitch);
// Of a switch the picture that shows takes the click.
forms::Control& ClickedOf(forms::Control& control);

// What it is called: by its caption or, where that has no letter, by its tool tip; a field by its
// label; a list by its tab. Empty: by nothing.
QString NameOf(const forms::Control& control);
// What its tool tip has to add; of a list without rows what stands in their place; and with the
// focus what there is to do first in the window.
QString DescriptionOf(const forms::Control& control);

// One of what is to be told of in a container: a control, or the list of the tabs that lie on it.
struct Part {
    forms::Control* control = nullptr;
    bool tabList = false;
    bool operator==(const Part&) const = default;
};

// What can be seen in a container, in the order in which the controls were made.
std::vector<Part> PartsOf(const forms::Container& container);
std::vector<forms::Label*> TabsOf(const forms::Container& container);
// The nearest around a part that is told of.
forms::Control& AroundOf(const forms::Control& control);

}  // namespace kivu::view
