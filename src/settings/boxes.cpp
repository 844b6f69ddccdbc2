#include "settings/boxes.h"

#include "core/window_looks.h"
#include "text/paths.h"

namespace kivu::settings {

namespace {

using platform::Buttons;
using platform::Icon;

}  // namespace

// Here no language counts as German, too.
Box Mame32Warning(const core::ProgramState& program) {
    if (program.Get_Current_Language() < 2) {
        return {
            "Dies ist NICHT die Command-Line Version von Mame!\r"
            "Sie sollten die Command-Line Version benutzen. Fall noch nicht vorhanden, einfach "
            "ins Mame-Verzeichnis kopieren (nichts überschreiben!) und anschl. die 'Mame.exe' "
            "auswählen.",
            "Achtung: Keine Command Line-Version of Mame!", Buttons::Ok, Icon::Error};
    }
    return {
        "This is NOT the Command line Version of Mame!\r"
        "Copy the Command line Version into your Mame - directory and choose the 'mame.exe'.",
        "Caution: This is not the command line version of Mame!", Buttons::Ok, Icon::Error};
}

Box DiscardQuestion(const core::ProgramState& program) {
    return {program.Say("Sie haben noch nicht gespeichert, Änderungen verwerfen?",
                        "You have not saved your settings! \r\r Refuse changes?"),
            program.Say("Änderungen verwerfen?", "Undo changes and exit?"), Buttons::OkCancel,
            Icon::Question};
}

Box SaveFirstBox() {
    return {"Bitte erst speichern", "Speichern", Buttons::Ok, Icon::Information};
}

std::string ScanTitle(const core::ProgramState& program) {
    return program.Say("Bitte warten! Verzeichniss wird durchsucht...",
                       "Please wait!  searching directory..");
}

Box ReloadAllQuestion(const core::ProgramState& program) {
    return {program.Say("Sollen alle Rom-Verzeichnisse aller Emulatoren neu eingelesen werden?",
                        "Re-scan all directories of all emulators in list?"),
            "Reload all", Buttons::OkCancel, Icon::Question};
}

Box StartNowQuestion(const std::string& exePath) {
    return {"Emulator zum Einstellen jetzt starten?", text::GetFileNameOnly(exePath) + " starten?",
            Buttons::YesNo, Icon::Question};
}

Box ImportCancelledBox() {
    return {"Abbruch!", core::defaultTitle, Buttons::Ok, Icon::None};
}

Box MasterQuestion(const std::string& path, const core::ProgramState& program, bool emptied) {
    const std::string why =
        emptied ? program.Say("Alle WinUAE-Profile benutzen diese Datei, und sie ist nicht leer:",
                              "All WinUAE profiles use this file, and it is not empty:")
                : program.Say("Ein anderes Programm hat diese Datei inzwischen geändert:",
                              "Another program has changed this file meanwhile:");
    return {why + ("\r\r" + path + "\r\r") +
                program.Say("Soll sie mit dem Text aus diesem Fenster überschrieben werden?",
                            "Do you want to overwrite it with the text of this window?"),
            program.Say("WinUAE - Config Vorlage", "WinUAE config template"), Buttons::YesNo,
            Icon::Question};
}

Box NotEditedBox(const std::string& path, const core::ProgramState& program) {
    return {program.Say("Diese Datei konnte in keinem Editor geöffnet werden:",
                        "No editor could be started for this file:") +
                ("\r\r" + path),
            "Editor", Buttons::Ok, Icon::Warning};
}

Box NotSavedBox(const std::string& path, const core::ProgramState& program) {
    return {program.Say("Diese Datei konnte nicht geschrieben werden:",
                        "This file could not be written:") +
                ("\r\r" + path),
            program.Say("Speichern", "Save"), Buttons::Ok, Icon::Error};
}

}  // namespace kivu::settings
