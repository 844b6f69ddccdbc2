#include "favourites/edit_alias_name.h"

#include <gtest/gtest.h>

#include "testing/scripted_host.h"

namespace kivu::favourites {
namespace {

class EditAliasNameTest : public ::testing::Test {
 protected:
    std::string Edit(const std::string& name, const std::string& input) {
        dialogs.inputs = {input};
        return EditAliasName(name, program, dialogs);
    }

    core::ProgramState program;
    testing::ScriptedDialogs dialogs;
};

TEST_F(EditAliasNameTest, AsksInGermanWithTheNameAsDefault) {
    program.CurrentLanguage = 1;
    EXPECT_EQ(Edit("Zool", "Zool 2"), "Zool 2");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(dialogs.shown[0].isInput);
    EXPECT_EQ(dialogs.shown[0].title, "Anzeigenamen anpassen");
    EXPECT_EQ(dialogs.shown[0].text, "Vergeben sie einen neuen Namen für: \r\rZool");
    EXPECT_EQ(dialogs.shown[0].initial, "Zool");
}

TEST_F(EditAliasNameTest, AnyOtherLanguageIsAskedInEnglish) {
    program.CurrentLanguage = 3;
    Edit("Zool", "x");
    EXPECT_EQ(dialogs.shown[0].title, "Change alias");
    EXPECT_EQ(dialogs.shown[0].text, "Please enter a new title for: \r\rZool");
}

TEST_F(EditAliasNameTest, NothingThatAProfileCouldNotHoldReplacesTheName) {
    for (const char* input : {"", " ", "\t ", "\"\"", "''", "\r", "\nx"})
        EXPECT_EQ(Edit("Zool", input), "Zool");
    EXPECT_EQ(Edit("Zool", " Ärger = ] "), " Ärger = ] ");
}

}  // namespace
}  // namespace kivu::favourites
