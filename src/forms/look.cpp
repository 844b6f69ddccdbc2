#include "forms/look.h"

#include <algorithm>
#include <cmath>

namespace kivu::forms {

namespace {

bool IsField(const Control& control) {
    switch (control.GetKind()) {
        case Kind::listBox:
        case Kind::comboBox:
        case Kind::textBox:
        case Kind::driveListBox:
        case Kind::dirListBox:
        case Kind::fileListBox:
            return true;
        default:
            return false;
    }
}

double FactorFor(const Form& form, double points, Size room) {
    double factor = points > 0 && points <= largestFont ? points / form.FontSize() : 1;
    if (form.Width() > 0) factor = std::min(factor, double(room.width) / form.Width());
    if (form.Height() > 0) factor = std::min(factor, double(room.height) / form.Height());
    return factor;
}

// By the edges, so that what touches goes on touching.
void Scale(Control& control, double factor) {
    const auto scaled = [factor](int twips) {
        return static_cast<int>(std::floor(twips * factor));
    };
    const int left = scaled(control.Left()), top = scaled(control.Top());
    const int right = scaled(control.Right()), bottom = scaled(control.Bottom());
    // A field fits itself to its font, which must not count twice.
    control.SetFontSize(control.FontSize() * factor);
    control.Move(left, top, right - left, bottom - top);
}

}  // namespace

void TakeLook(Form& form, const Look& look, Size room) {
    const Color before = form.BackColor();
    const double factor = FactorFor(form, look.points, room);
    for (Control* control : form.Controls()) {
        if (control->BackColor() == before) {
            control->SetBackColor(IsField(*control) ? look.fieldBack : look.back);
            control->SetForeColor(IsField(*control) ? look.fieldFore : look.fore);
        }
        if (factor > 0 && factor != 1) Scale(*control, factor);
    }
    form.SetBackColor(look.back);
    form.SetForeColor(look.fore);
    if (factor <= 0 || factor == 1) return;
    const auto scaled = [factor](int twips) {
        return static_cast<int>(std::floor(twips * factor));
    };
    form.SetFontSize(form.FontSize() * factor);
    form.Move(form.Left(), form.Top(), scaled(form.Width()), scaled(form.Height()));
}

}  // namespace kivu::forms
