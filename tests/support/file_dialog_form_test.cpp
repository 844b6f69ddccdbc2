#include <gtest/gtest.h>

#include "forms/access_keys.h"
#include "forms/look.h"
#include "forms/tab_order.h"
#include "support/file_dialog_room.h"

namespace kivu::support {
namespace {

using forms::Control;

class FileDialogFormTest : public ::testing::Test {
 protected:
    static std::vector<std::string> Stops(const FilesForm& form) {
        std::vector<std::string> names;
        for (const Control* stop : forms::TabStops(form))
            names.push_back(stop->Name());
        return names;
    }
    // Every language on every host, in every mode.
    static void InEach(const std::function<void(FilesForm&)>& look) {
        for (const bool german : {false, true}) {
            for (const char separator : {'/', '\\'}) {
                FileDialogRoom room(separator, german);
                room.Open("", "", "", look);
                room.Save("", "", "", look);
                room.Directory("", "", look);
            }
        }
    }
};

TEST_F(FileDialogFormTest, TabGoesFromTheTopToTheButtons) {
    FileDialogRoom room('/');
    room.Open("", "", "", [](FilesForm& form) {
        EXPECT_THAT(Stops(form), ::testing::ElementsAre("KomplettPfadText", "UpBtn", "Drive1",
                                                        "Dir1", "File1", "FileName", "Command1",
                                                        "StartmenüBtn", "Ok", "Abbruch"));
    });
    room.Directory("", "", [](FilesForm& form) {
        EXPECT_TRUE(form.Dir1.HasFocus());
        EXPECT_THAT(Stops(form),
                    ::testing::ElementsAre("KomplettPfadText", "UpBtn", "Drive1", "Dir1",
                                           "Command1", "StartmenüBtn", "OkBtn2", "AbbruchBtn2"));
    });
}

TEST_F(FileDialogFormTest, EachLetterMeansOneControl) {
    InEach([](FilesForm& form) {
        std::string letters;
        for (const Control* control : form.Controls()) {
            const std::string* caption = forms::CaptionWithAccessKey(*control);
            const char letter = caption ? forms::AccessKeyOf(*caption) : '\0';
            if (letter == '\0' || !control->IsReachable()) continue;
            EXPECT_EQ(letters.find(letter), std::string::npos) << control->Name();
            letters += letter;
        }
        EXPECT_GE(letters.size(), 6U);
    });
}

TEST_F(FileDialogFormTest, LetterOfALabelGoesToWhatItNames) {
    FileDialogRoom room('/');
    room.Open("", "", "", [](FilesForm& form) {
        const std::vector<std::pair<const char*, Control*>> table{{"Alt+p", &form.KomplettPfadText},
                                                                  {"Alt+l", &form.Drive1},
                                                                  {"Alt+c", &form.Dir1},
                                                                  {"Alt+f", &form.File1},
                                                                  {"Alt+n", &form.FileName}};
        for (const auto& [key, control] : table) {
            FileDialogRoom::Strike(form, key);
            EXPECT_TRUE(control->HasFocus()) << key;
        }
    });
}

// Everything lies on what holds it, and nothing on anything else.
TEST_F(FileDialogFormTest, NothingOverlapsInAnySize) {
    for (const double points : {8.0, 10.0, 16.0, 40.0}) {
        InEach([&](FilesForm& form) {
            const int most = 1024 * forms::twipsPerPixel;
            forms::TakeLook(form, {points}, {most, most * 3 / 4});
            EXPECT_LE(form.Width(), most);
            EXPECT_LE(form.Height(), most * 3 / 4);
            for (Control* a : form.Controls()) {
                if (a->GetKind() == forms::Kind::timer || !a->Visible()) continue;
                EXPECT_LE(a->Right(), a->Parent()->Width()) << a->Name();
                EXPECT_LE(a->Bottom(), a->Parent()->Height()) << a->Name();
                for (Control* b : form.Controls()) {
                    const bool beside = a != b && b->Visible() && a->Parent() == b->Parent();
                    if (!beside || b->GetKind() == forms::Kind::timer) continue;
                    const bool apart = a->Right() <= b->Left() || b->Right() <= a->Left() ||
                                       a->Bottom() <= b->Top() || b->Bottom() <= a->Top();
                    EXPECT_TRUE(apart) << a->Name() << " and " << b->Name() << " at " << points;
                }
            }
        });
    }
}

TEST_F(FileDialogFormTest, PinActsOnTheDialogAlone) {
    FileDialogRoom room('/');
    room.Open("", "", "", [&](FilesForm& form) {
        EXPECT_TRUE(form.IsTopmost());
        EXPECT_TRUE(form.AOT_Enabled.Visible());
        FileDialogRoom::Click(form.AOT_Enabled);
        EXPECT_FALSE(form.IsTopmost());
        EXPECT_FALSE(room.owner.IsTopmost());
        EXPECT_EQ(room.host.stored["AlwaysOnTop/OnTop"], "False");
    });
    room.Open("", "", "", [](FilesForm& form) {
        EXPECT_FALSE(form.IsTopmost());
        FileDialogRoom::Click(form.AOT_Disabled);
        EXPECT_TRUE(form.IsTopmost());
    });
}

TEST_F(FileDialogFormTest, PinTellsWhatItDoes) {
    FileDialogRoom room('/');
    room.Open("", "", "", [](FilesForm& form) {
        for (const forms::Image* pin : {&form.AOT_Enabled, &form.AOT_Disabled, &form.AOT_MouseMove})
            EXPECT_EQ(pin->ToolTipText(), "Always on top");
        FileDialogRoom::Click(form.AOT_Enabled);
        forms::UserInput(form).MouseMove(form.AOT_Disabled, {});
        EXPECT_TRUE(form.AOT_MouseMove.Visible());
        FileDialogRoom::Click(form.AOT_MouseMove);
        EXPECT_TRUE(form.IsTopmost());
        EXPECT_TRUE(form.AOT_Enabled.Visible());
    });
}

TEST_F(FileDialogFormTest, IsDraggedByItsTitleAndByItsSurface) {
    struct Drags : forms::Observer {
        void Changed(Control&, forms::Aspect) override {}
        void DragWindow() override { ++count; }
        int count = 0;
    } drags;
    FileDialogRoom room('/');
    room.Open("", "", "", [&](FilesForm& form) {
        form.SetObserver(&drags);
        forms::UserInput hand(form);
        hand.MouseDown(form.TitleLabel, {forms::buttons::left});
        EXPECT_EQ(drags.count, 1);
        hand.MouseDown(form, {forms::buttons::left});
        EXPECT_EQ(drags.count, 2);
        hand.MouseDown(form.TitleLabel, {forms::buttons::right});
        hand.MouseDown(form.File1, {forms::buttons::left});
        EXPECT_EQ(drags.count, 2);
        form.SetObserver(nullptr);
    });
}

TEST_F(FileDialogFormTest, SpeaksTheUsersLanguage) {
    FileDialogRoom german('\\', true);
    german.Open("", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.Abbruch.Caption(), "Abbrechen");
        EXPECT_EQ(form.StartmenuBtn.Caption(), "&Startmenü");
    });
    FileDialogRoom english('/');
    english.Open("", "", "", [](FilesForm& form) {
        EXPECT_EQ(form.Abbruch.Caption(), "Cancel");
        EXPECT_EQ(form.StartmenuBtn.Caption(), "Pro&grams");
    });
}

}  // namespace
}  // namespace kivu::support
