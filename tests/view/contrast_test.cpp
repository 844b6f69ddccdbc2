// What is on can be read at 4.5:1 and what is off at 3:1, and controls are seen at 3:1, in the look
// of the launcher and in the skins that come with it.

#include "view/contrast.h"

#include <QAbstractButton>
#include <QDir>
#include <QPainter>
#include <QSettings>
#include <functional>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

struct Look {
    QString name;
    QColor back, fore;
};

std::vector<Look> Looks() {
    std::vector<Look> looks{{QStringLiteral("default"), QColor(0x00, 0x52, 0xbc), Qt::white}};
    const QDir skins(QStringLiteral(KIVU_SKINS));
    for (const QString& name : skins.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QSettings skin(skins.filePath(name + QStringLiteral("/Skin.ini")),
                             QSettings::IniFormat);
        const auto color = [&](const char* key) {
            return QColor(skin.value(QStringLiteral("Settings/") + QLatin1String(key)).toString());
        };
        looks.push_back({name, color("BackColor"), color("FontColor")});
    }
    return looks;
}

// What the pictures of a look lie on: its own one in the corner of the window where they are, in
// patches, and its plain colour.
std::vector<QColor> GroundsOf(const Look& look) {
    const QString skins = QStringLiteral(KIVU_SKINS "/");
    const QImage picture(look.name == QStringLiteral("default")
                             ? skins + QStringLiteral("../png/background.png")
                             : skins + look.name + QStringLiteral("/Background.jpg"));
    EXPECT_FALSE(picture.isNull()) << look.name.toStdString();
    QImage covered(8, 6, QImage::Format_RGB32);
    covered.fill(look.back);
    QPainter(&covered).drawImage(
        0, 0, picture.scaled(covered.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    std::vector<QColor> grounds{look.back};
    for (int y = covered.height() / 2; y < covered.height(); ++y)
        for (int x = covered.width() / 2; x < covered.width(); ++x)
            grounds.push_back(covered.pixelColor(x, y));
    return grounds;
}

// A picture of ours as it is shown, this many pixels wide and high.
QImage PictureOn(const QColor& ground, const char* name, int size) {
    const QString directory = QStringLiteral(KIVU_SKINS "/../png/");
    const QImage picture(directory + QLatin1String(name) + QStringLiteral(".png"));
    EXPECT_FALSE(picture.isNull()) << name;
    QImage shown(size, size, QImage::Format_RGB32);
    shown.fill(ground);
    QPainter(&shown).drawImage(
        0, 0, picture.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return shown;
}

forms::Color Of(const QColor& color) {
    return forms::Rgb(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
                      static_cast<unsigned>(color.blue()));
}

class ContrastTest : public ShownForm {
 protected:
    ContrastTest() {
        // Strokes of more than a pixel show their colour whole.
        for (forms::Control* control : form.Controls())
            control->SetFont({"", 20, true});
        for (int i = 0; i < 20; ++i)
            form.list.AddItem("HIIIIII");
        form.list.SetListIndex(1);
        form.choice.SetVisible(true);
        form.choice.SetText("HIII");
        form.combo.SetText("HIII");
        form.text.SetText("HIII");
        form.label.SetCaption("HIII");
        form.label.Move(5100, 3300, 3000, 600);
        form.button.SetCaption("HIII");
        form.button.Move(5100, 4000, 3000, 750);
        form.check.SetCaption("HIII");
        form.check.Move(5100, 4800, 3000, 600);
    }
    // As a window takes the colours of a skin.
    void Dress(const Look& look) {
        form.SetBackColor(Of(look.back));
        form.SetForeColor(Of(look.fore));
        for (forms::Control* control : form.Controls()) {
            const bool swapped = control->GetKind() == forms::Kind::textBox;
            control->SetBackColor(Of(swapped ? look.fore : look.back));
            control->SetForeColor(Of(swapped ? look.back : look.fore));
        }
        Settle();
    }
    QImage Grab(const char* name, QRect part = {}) {
        QWidget* widget = Find(name);
        const QRect whole(widget->mapTo(&view.Window(), QPoint()), widget->size());
        const QImage picture = view.Window().grab(whole).toImage();
        return part.isNull() ? picture : picture.copy(part & picture.rect());
    }
    // Within the pill of a row.
    double RowContrast(int row) {
        auto* list = Find<QAbstractItemView>("List");
        const QRect rect = list->visualRect(list->model()->index(row, 0));
        return FurthestContrast(list->viewport()->grab(rect.adjusted(8, 6, -80, -6)).toImage());
    }
    // Of what has changed between two strips to what lies beside it at either end.
    static double ChangedContrast(const QImage& before, const QImage& after) {
        const QColor left = after.pixelColor(0, 0), right = after.pixelColor(8, 0);
        double contrast = 1;
        for (int x = 0; x < after.width(); ++x) {
            const QColor now = after.pixelColor(x, 0);
            if (now == before.pixelColor(x, 0)) continue;
            contrast = std::max({contrast, Contrast(now, left), Contrast(now, right)});
        }
        return contrast;
    }
    static void Hover(QWidget* widget, bool over) {
        widget->setAttribute(Qt::WA_UnderMouse, over);
        widget->update();
    }
    void InEachLook(const std::function<void()>& check) {
        const std::vector<Look> looks = Looks();
        ASSERT_GE(looks.size(), 4U);
        Show();
        for (const Look& look : looks) {
            SCOPED_TRACE(look.name.toStdString());
            ASSERT_TRUE(look.back.isValid() && look.fore.isValid());
            Dress(look);
            check();
        }
    }

    static constexpr double text = 4.5, quiet = 3, shape = 3;
};

TEST_F(ContrastTest, SkinsColoursCanBeReadOnEachOther) {
    for (const Look& look : Looks())
        EXPECT_GE(Contrast(look.fore, look.back), text) << look.name.toStdString();
}

TEST_F(ContrastTest, RowsCanBeRead) {
    InEachLook([this] {
        for (const bool focus : {false, true}) {
            focus ? form.list.SetFocus() : form.text.SetFocus();
            Settle();
            EXPECT_GE(RowContrast(0), text) << focus;
            EXPECT_GE(RowContrast(1), text) << "selected, " << focus;
        }
    });
}

TEST_F(ContrastTest, WordsCanBeRead) {
    InEachLook([this] {
        const QRect words(8, 8, 80, 24);
        for (const char* name : {"Label", "Button", "Text", "Combo", "Choice"})
            EXPECT_GE(FurthestContrast(Grab(name, words)), text) << name;
        EXPECT_GE(FurthestContrast(Grab("Check(0)", QRect(26, 8, 80, 24))), text);
        for (const bool down : {false, true}) {
            Hover(Find("Button"), !down);
            Find<QAbstractButton>("Button")->setDown(down);
            EXPECT_GE(FurthestContrast(Grab("Button", words)), text) << down;
        }
        Find<QAbstractButton>("Button")->setDown(false);
        Hover(Find("Button"), false);
    });
}

// Blocks in place of letters: they show their colour whole.
TEST_F(ContrastTest, HintsCanBeRead) {
    const std::string blocks = "\u2588\u2588\u2588\u2588";
    form.other.SetHint(blocks);
    form.label.Move(8400, 3600, 3000, 1800);
    form.label.SetHint(blocks);
    InEachLook([this] {
        EXPECT_GE(FurthestContrast(Grab("Other", QRect(30, 24, 140, 16))), text);
        EXPECT_GE(FurthestContrast(Grab("Label", QRect(30, 48, 140, 40))), text);
    });
}

TEST_F(ContrastTest, LettersOfAButtonKeepTheirColourUnderTheMouse) {
    Show();
    const QRect words(8, 8, 80, 24);
    const auto hold = [this](bool over, bool down) {
        Hover(Find("Button"), over);
        Find<QAbstractButton>("Button")->setDown(down);
    };
    // Faces on which one ink or the other has little to spare.
    std::vector<QColor> faces{QColor(0x3f, 0x74, 0xc4)};
    for (int part = 0; part <= 255; part += 5)
        faces.emplace_back(part, part, part);
    for (const QColor& face : faces) {
        for (const QColor& ink : {QColor(Qt::white), QColor(Qt::black)}) {
            Dress({QString(), face, ink});
            hold(false, false);
            const QImage rest = Grab("Button", words);
            for (const bool down : {false, true}) {
                hold(true, down);
                const QImage picture = Grab("Button", words);
                EXPECT_GE(FurthestContrast(picture), text) << face.name().toStdString() << down;
                EXPECT_EQ(InksOf(picture).furthest, InksOf(rest).furthest)
                    << face.name().toStdString() << down;
            }
        }
    }
}

TEST_F(ContrastTest, TabsCanBeReadUnderTheMouseToo) {
    form.label.onClick = [] {};
    InEachLook([this] {
        for (const bool marked : {false, true}) {
            form.label.SetOpaque(marked);
            for (const bool over : {false, true}) {
                Hover(Find("Label"), over);
                EXPECT_GE(FurthestContrast(Grab("Label", QRect(10, 8, 80, 24))), text)
                    << marked << over;
            }
        }
    });
}

TEST_F(ContrastTest, WhatIsOffCanBeRead) {
    for (forms::Control* control : form.Controls())
        control->SetEnabled(false);
    InEachLook([this] {
        for (const char* name : {"Label", "Button", "Text", "Combo", "Choice"})
            EXPECT_GE(FurthestContrast(Grab(name, QRect(8, 8, 80, 24))), quiet) << name;
        EXPECT_GE(FurthestContrast(Grab("Check(0)", QRect(26, 8, 80, 24))), quiet);
    });
}

TEST_F(ContrastTest, ControlsAreSeen) {
    InEachLook([this] {
        form.text.SetFocus();
        Settle();
        for (const char* name : {"Button", "Combo", "Choice"}) {
            // Of the line at the left end to the window beside it.
            const QPoint at = Find(name)->mapTo(&view.Window(), QPoint(-6, 10));
            const QImage edge = view.Window().grab(QRect(at, QSize(8, 4))).toImage();
            EXPECT_GE(FurthestContrast(edge), shape) << name;
        }
        for (const int value : {0, 1}) {
            form.check.SetValue(value);
            Settle();
            EXPECT_GE(FurthestContrast(Grab("Check(0)", QRect(0, 8, 22, 24))), shape) << value;
        }
        const int arrow = Find("Choice")->width() - 26;
        EXPECT_GE(FurthestContrast(Grab("Choice", QRect(arrow, 8, 22, 24))), shape);
        EXPECT_GE(FurthestContrast(Grab("Slider")), shape);
        auto* bar = Find<QAbstractItemView>("List")->verticalScrollBar();
        EXPECT_GE(FurthestContrast(bar->grab().toImage()), shape);
    });
}

TEST_F(ContrastTest, PicturesAreSeen) {
    const std::vector<std::pair<const char*, int>> pictures{
        {"pin-enabled", 28}, {"pin-disabled", 28}, {"pin-hover", 28}, {"search", 22},
        {"joystick", 28},    {"close", 24},        {"fault", 24}};
    for (const Look& look : Looks()) {
        for (const QColor& ground : GroundsOf(look)) {
            for (const auto& [name, size] : pictures)
                EXPECT_GE(FurthestContrast(PictureOn(ground, name, size)), shape)
                    << look.name.toStdString() << ", " << name << " on "
                    << ground.name().toStdString();
        }
    }
}

TEST_F(ContrastTest, FocusIsSeen) {
    InEachLook([this] {
        for (forms::Control* control : std::initializer_list<forms::Control*>{
                 &form.button, &form.check, &form.combo, &form.text}) {
            const QPoint at =
                Find(control->FullName().c_str())->mapTo(&view.Window(), QPoint(-4, 20));
            const auto strip = [&] { return view.Window().grab({at, QSize(9, 1)}).toImage(); };
            form.list.SetFocus();
            Settle();
            const QImage before = strip();
            control->SetFocus();
            Settle();
            EXPECT_GE(ChangedContrast(before, strip()), shape) << control->FullName();
        }
    });
}

}  // namespace
}  // namespace kivu::tests
