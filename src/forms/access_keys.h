#pragma once

#include <string>
#include <string_view>

#include "forms/control.h"

namespace kivu::forms {

// In a caption "&" marks the letter or digit that, with Alt, does what a click does; "&&" is the
// sign itself.

// The marked letter in lower case, a digit as it is; 0 for none. ASCII, as keys are.
char AccessKeyOf(std::string_view caption);
// The caption as it is read.
std::string PlainCaption(std::string_view caption);
// The caption of a control in which "&" marks a letter; null for one that has none.
const std::string* CaptionWithAccessKey(const Control& control);

}  // namespace kivu::forms
