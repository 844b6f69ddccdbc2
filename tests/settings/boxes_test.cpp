#include "settings/boxes.h"

#include <gtest/gtest.h>

namespace kivu::settings {
namespace {

using platform::Buttons;
using platform::Icon;

struct Boxes : ::testing::Test {
    Boxes() { english.CurrentLanguage = 2; }
    core::ProgramState german;
    core::ProgramState english;
};

TEST_F(Boxes, LeavingWithUnsavedChangesAsks) {
    EXPECT_EQ(DiscardQuestion(german),
              (Box{"Sie haben noch nicht gespeichert, Änderungen verwerfen?",
                   "Änderungen verwerfen?", Buttons::OkCancel, Icon::Question}));
    EXPECT_EQ(DiscardQuestion(english),
              (Box{"You have not saved your settings! \r\r Refuse changes?",
                   "Undo changes and exit?", Buttons::OkCancel, Icon::Question}));
}

TEST_F(Boxes, ReadingDirectoriesAgain) {
    EXPECT_EQ(SaveFirstBox(),
              (Box{"Bitte erst speichern", "Speichern", Buttons::Ok, Icon::Information}));
    EXPECT_EQ(ScanTitle(german), "Bitte warten! Verzeichniss wird durchsucht...");
    EXPECT_EQ(ScanTitle(english), "Please wait!  searching directory..");
    EXPECT_EQ(ReloadAllQuestion(german),
              (Box{"Sollen alle Rom-Verzeichnisse aller Emulatoren neu eingelesen werden?",
                   "Reload all", Buttons::OkCancel, Icon::Question}));
    EXPECT_EQ(ReloadAllQuestion(english), (Box{"Re-scan all directories of all emulators in list?",
                                               "Reload all", Buttons::OkCancel, Icon::Question}));
}

TEST_F(Boxes, StartingAndImportingSpeakGerman) {
    EXPECT_EQ(StartNowQuestion("C:\\Emu\\snes9x.exe"),
              (Box{"Emulator zum Einstellen jetzt starten?", "snes9x.exe starten?", Buttons::YesNo,
                   Icon::Question}));
    EXPECT_EQ(ImportCancelledBox(), (Box{"Abbruch!", "Kivu 1.4b", Buttons::Ok, Icon::None}));
}

TEST_F(Boxes, WhatCouldNotBeWrittenIsNamed) {
    for (const core::ProgramState& program : {german, english}) {
        EXPECT_NE(NotSavedBox("/k/x.ini", program).text.find("\r\r/k/x.ini"), std::string::npos);
        for (const bool emptied : {false, true}) {
            const Box box = MasterQuestion("/k/m.uaecfg", program, emptied);
            EXPECT_NE(box.text.find("\r\r/k/m.uaecfg\r\r"), std::string::npos);
            EXPECT_EQ(box.buttons, Buttons::YesNo);
        }
        EXPECT_NE(MasterQuestion("", program, false), MasterQuestion("", program, true));
        EXPECT_EQ(NotSavedBox("", program).icon, Icon::Error);
    }
    EXPECT_NE(NotSavedBox("", german), NotSavedBox("", english));
    const Box noEditor{"Diese Datei konnte in keinem Editor geöffnet werden:\r\r/k/x.ini", "Editor",
                       Buttons::Ok, Icon::Warning};
    EXPECT_EQ(NotEditedBox("/k/x.ini", german), noEditor);
    EXPECT_EQ(NotEditedBox("/k/x.ini", english).text,
              "No editor could be started for this file:\r\r/k/x.ini");
    for (const bool emptied : {false, true})
        EXPECT_NE(MasterQuestion("", german, emptied), MasterQuestion("", english, emptied));
}

}  // namespace
}  // namespace kivu::settings
