// What is switched off is quiet, and can still be read: 3:1 against its ground.

#include "view/contrast.h"
#include "view/shown_form.h"

namespace kivu::tests {
namespace {

class DisabledText : public ShownForm {
 protected:
    DisabledText() {
        // Strokes of more than a pixel show their colour whole.
        for (forms::Control* control : Texts())
            control->SetFont({"", 20, true});
        form.label.SetCaption("HIII");
        form.label.Move(5100, 3300, 3000, 600);
        form.button.SetCaption("HIII");
        form.button.Move(5100, 4000, 3000, 750);
        form.check.SetCaption("HIII");
        form.check.Move(5100, 4800, 3000, 600);
        form.text.SetText("HIII");
        form.choice.SetText("HIII");
        form.choice.SetVisible(true);
        form.combo.SetText("HIII");
    }
    std::vector<forms::Control*> Texts() {
        return {&form.label, &form.button, &form.check, &form.text, &form.choice, &form.combo};
    }

    // Between the writing, which is the colour furthest from the ground, and the ground, which is
    // the commonest one. Edges, boxes and arrows are left out.
    double ContrastOf(const forms::Control& control) {
        QWidget* widget = Find(control.FullName().c_str());
        const QRect place(widget->mapTo(&view.Window(), QPoint()), widget->size());
        const int left = &control == &form.check ? 24 : 5;
        const QImage picture = view.Window().grab(place).toImage();
        return FurthestContrast(picture.copy(left, 6, std::min(picture.width() - 34 - left, 90),
                                             picture.height() - 12));
    }
};

TEST_F(DisabledText, CanBeReadInTheLookOfTheLauncher) {
    const forms::Color blue = forms::Rgb(0x00, 0x52, 0xbc), white = forms::Rgb(255, 255, 255);
    form.SetBackColor(blue);
    for (forms::Control* control : Texts()) {
        control->SetBackColor(blue);
        control->SetForeColor(white);
        control->SetEnabled(false);
    }
    Show();
    for (forms::Control* control : Texts())
        EXPECT_GE(ContrastOf(*control), 3.0) << control->FullName();
}

TEST_F(DisabledText, CanBeReadWhateverTheColours) {
    const forms::Color colors[] = {forms::Rgb(0, 0, 0),          forms::Rgb(255, 255, 255),
                                   forms::Rgb(0x60, 0x60, 0x60), forms::Rgb(0xf6, 0xf7, 0xd2),
                                   forms::Rgb(0xc0, 0xff, 0xc0), forms::Rgb(0x30, 0x00, 0x60)};
    Show();
    for (const forms::Color back : colors) {
        const bool dark = back == colors[0] || back == colors[2] || back == colors[5];
        form.SetBackColor(back);
        for (forms::Control* control : Texts()) {
            control->SetBackColor(back);
            control->SetForeColor(dark ? forms::Rgb(255, 255, 255) : forms::Rgb(0, 0, 0));
            control->SetEnabled(false);
        }
        // A white button in a window of another colour, as the one that searches all lists.
        form.button.SetBackColor(forms::Rgb(255, 255, 255));
        Settle();
        for (forms::Control* control : Texts())
            EXPECT_GE(ContrastOf(*control), 3.0) << control->FullName() << " on " << back;
    }
}

TEST_F(DisabledText, IsQuieterThanWhatIsOn) {
    const forms::Color blue = forms::Rgb(0x00, 0x52, 0xbc);
    form.SetBackColor(blue);
    Show();
    for (forms::Control* control :
         std::vector<forms::Control*>{&form.label, &form.button, &form.choice}) {
        control->SetBackColor(blue);
        control->SetForeColor(forms::Rgb(255, 255, 255));
        Settle();
        const double on = ContrastOf(*control);
        control->SetEnabled(false);
        Settle();
        EXPECT_LT(ContrastOf(*control), on) << control->FullName();
    }
}

}  // namespace
}  // namespace kivu::tests
