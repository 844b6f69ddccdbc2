// The form of the settings window as it is drawn: no text is cut in either language at any size,
// and a panel hides what it lies over.

#include "settings/settings_form.h"

#include <QImage>
#include <QTest>
#include <gmock/gmock.h>
#include <memory>
#include <vector>

#include "forms/access_keys.h"
#include "forms/look.h"
#include "view/box_fonts.h"
#include "view/form_view.h"
#include "view/text_measure.h"

namespace kivu::scenarios {
namespace {

using settings::SettingsForm;
constexpr int px = forms::twipsPerPixel;

class SettingsFormView : public ::testing::Test {
 protected:
    // Everything that may ever be there at once, on a screen of that size.
    void InEach(const std::function<void(SettingsForm&, const std::string& where)>& look) {
        for (const int language : {1, 2}) {
            for (const double points : {8.0, 9.0, 10.0, 11.0, 13.0, 16.0, 24.0, 40.0, 72.0}) {
                for (const auto& [wide, high] : {std::pair(1024, 768), std::pair(1920, 1080)}) {
                    for (const bool main : {false, true}) {
                        SettingsForm form({&measure}, language);
                        forms::TakeLook(form, {points}, {wide * px, high * px});
                        for (forms::Control* control : form.Controls())
                            control->SetVisible(true);
                        if (main) form.ShowMainSettingsOnly(true);
                        look(form, " at " + std::to_string(points) + " on " + std::to_string(wide) +
                                       (main ? " reduced" : ""));
                    }
                }
            }
        }
    }
    int Width(const forms::Control& control, const std::string& text) const {
        return measure.Width(control.GetFont(), text);
    }

    const view::TextMeasure measure;
};

TEST_F(SettingsFormView, NoLabelIsCutInEitherLanguageAtAnySize) {
    if (tests::FontsAreBoxes()) GTEST_SKIP() << "this host has no fonts";
    InEach([](SettingsForm& form, const std::string& where) {
        form.EmuNameLabel.SetCaption("Commodore Amiga 500 / 1200");
        form.EmuDownload.SetCaption("Download: Project64");
        for (const forms::Control* control : form.Controls()) {
            const auto* label = dynamic_cast<const forms::Label*>(control);
            const bool picker = control->Parent() == &form.ColorSelect1.frame;
            if (!label || !label->Visible() || label->Caption().empty() || picker) continue;
            const int lines =
                label == &form.DeamonToolsIinfo ? label->ShownLines(label->Width()) : 1;
            EXPECT_LE(lines * label->ShownLineHeight(), label->Height())
                << label->Name() << label->Caption() << where;
            if (lines > 1) continue;
            EXPECT_LE(label->TextWidth() + 2 * px, label->Width())
                << label->Name() << label->Caption() << where;
        }
    });
}

TEST_F(SettingsFormView, NoButtonIsCutInEitherLanguageAtAnySize) {
    if (tests::FontsAreBoxes()) GTEST_SKIP() << "this host has no fonts";
    InEach([this](SettingsForm& form, const std::string& where) {
        for (const forms::Control* control : form.Controls()) {
            const std::string* caption = forms::CaptionWithAccessKey(*control);
            const bool picker = control->Parent() == &form.ColorSelect1.frame;
            if (!caption || !control->Visible() || picker) continue;
            if (control->GetKind() == forms::Kind::label) continue;
            const int height = measure.LineHeight(control->GetFont());
            // A box has its sign and some air beside its text.
            const int beside = control->GetKind() == forms::Kind::commandButton ? 8 * px : 26 * px;
            EXPECT_LE(Width(*control, forms::PlainCaption(*caption)) + beside, control->Width())
                << control->Name() << *caption << where;
            EXPECT_LE(height, control->Height()) << control->Name() << where;
        }
    });
}

TEST_F(SettingsFormView, FieldsHoldWhatIsChosenInThem) {
    if (tests::FontsAreBoxes()) GTEST_SKIP() << "this host has no fonts";
    InEach([this](SettingsForm& form, const std::string& where) {
        constexpr int arrowAndAir = 38 * px;
        const auto fits = [&](const forms::ComboBox& box, const char* text) {
            if (!box.Visible()) return;
            EXPECT_LE(Width(box, text) + arrowAndAir, box.Width()) << text << where;
        };
        fits(form.FontSizeCombo, form.IsGerman() ? "Schriftgröße: 80" : "Font size: 80");
        fits(form.KillButtonKombo, form.IsGerman() ? "Keinen" : "Button: 8");
        for (const forms::Control* control : form.Controls()) {
            const bool field = control->GetKind() == forms::Kind::textBox ||
                               control->GetKind() == forms::Kind::comboBox;
            if (!field || !control->Visible()) continue;
            EXPECT_LE(measure.LineHeight(control->GetFont()) + 4 * px, control->Height())
                << control->Name() << where;
        }
    });
}

TEST_F(SettingsFormView, PanelHidesWhatItLiesOver) {
    SettingsForm form({&measure}, 1);
    form.TxtRomPath.SetText("before");
    view::FormView view(form);
    view.Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view.Window(), 20000));
    const auto* panel = view.Window().findChild<QWidget*>("UAEFrame");
    ASSERT_TRUE(panel);
    const auto picture = [&] {
        QCoreApplication::processEvents();
        const QRect place(panel->mapTo(&view.Window(), QPoint()), panel->size());
        return view.Window().grab(place.adjusted(8, 8, -8, -8)).toImage();
    };
    const QImage closed = picture();
    form.TxtRomPath.SetText("/another/text/that/is/long/enough/to/lie/below/the/panel");
    EXPECT_NE(picture(), closed) << "the field lies elsewhere";
    form.TogglePanel(form.UAEFrame);
    const QImage open = picture();
    EXPECT_NE(open, closed);
    form.TxtRomPath.SetText("before");
    EXPECT_EQ(picture(), open);
}

TEST_F(SettingsFormView, PictureOfASkinLeavesTheWindowItsEdge) {
    SettingsForm form({&measure}, 1);
    forms::Bitmap black{8, 8, std::vector<std::uint32_t>(64, 0xff000000), true};
    form.BackgroundFrame.SetPicture(
        {"black", std::make_shared<const forms::Bitmap>(std::move(black))});
    view::FormView view(form);
    view.Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view.Window(), 20000));
    QCoreApplication::processEvents();
    const QImage picture = view.Window().grab().toImage();
    const int middle = picture.height() / 2;
    EXPECT_GT(qGray(picture.pixel(0, middle)), 30);
    EXPECT_GT(qGray(picture.pixel(picture.width() - 1, middle)), 30);
    EXPECT_LT(qGray(picture.pixel(4, middle)), 10);
}

}  // namespace
}  // namespace kivu::scenarios
