// What the settings window's controls say, and what they tell of themselves.

#include "settings/settings_form.h"

namespace kivu::settings {

// Those of the design. English leaves some of them.
void SettingsForm::NameInGerman() {
    SetCaption("Einstellungen");
    TitleLabel.SetCaption(Caption());
    EmulatorGroup.SetCaption("Emulator");
    NewEmuBtn.SetCaption("Neuer Emulator..");
    Label1.SetCaption("Emulator (Winuae, Mame, x64, Project64, Fusion.exe...) inkl. Pfad: ");
    LaunchButton.SetCaption("Starten");
    KnownEmuLabel.SetCaption("Bekannte Emulatoren");
    EmuDownload.SetCaption("Download");
    WinUAEBtn.SetCaption("WinUAE Einstellungen");
    Label2.SetCaption("Disketten - Images (Roms):");
    LoadBtn.SetCaption("Images neu einlesen");
    ReloadAllBtn.SetCaption("Alle (!)");
    ErwLabel.SetCaption("Datei-Erweiterung(en): ");
    for (forms::CommandButton* browse : {&Command2, &BrowseDir, &BrowseKickromBtn, &Command4})
        browse->SetCaption("...");

    UseMasterConfig.SetCaption("WinUAE -  Config Vorlage benutzen:");
    Label6.SetCaption("Parameter");
    Command1.SetCaption("<   Importieren");
    Command3.SetCaption("Starten");
    FullscreenCheck.SetCaption("WinUAE Fullscreen starten");
    IntelligenteRomauswahl.SetCaption("Autom. Multi-ROM Auswahl");
    Label4.SetCaption("WinUAE - OS-Rom (Kickstart)");

    StartGroup.SetCaption("Spielstart");
    Label3.SetCaption("Parameter:");
    UAELaunchParameterAddPath.SetCaption("Rom-Pfad");
    UseAnfz.SetCaption("In Anführungszeichen (\"Pfad\")");
    ParameterWithoutPath.SetCaption("Nur Datei ohne Pfad");
    DeMulAutostart.SetCaption("Startscript (vbs)");
    OpenVBS.SetCaption("Bearbeiten ..");
    AutoMoundDeamonTools.SetCaption("Auto-Mount Images (CD/DVD/BR)");
    DeamonButton.SetCaption("Deamon Tools >");
    Label14.SetCaption("Deamon Tools:");
    DeamonToolsIinfo.SetCaption(
        "Wichtig: Sicheren Modus abschalten: Rechts-klick auf  Deamon-Tool  im Tray -> "
        "Einstellungen -> Sicherer Modus = Aus");
    Label11.SetCaption("Spiel-Splashscreen (Sek)");

    ProgramGroup.SetCaption("Programm");
    Joystickcheck.SetCaption("Joystick / Gamepad Menüsteuerung");
    KillButtonLabel.SetCaption("Button zum Spiel killen:");
    SetJOyBtn.SetCaption("Buttons ..");
    ResetScreenRes.SetCaption("Bildschirmauflösung zurücksetzen");
    ResetScreenHint.SetCaption("(800 x 600)");
    Command5.SetCaption("Schrift && Farben ..");
    Label9.SetCaption("Farben && Schrift anpassen");
    Label12.SetCaption("Farben werden in dieser Version  nicht gespeichert!");
    FensterRahmChk.SetCaption("Fensterrahmen");
    FavoritenReparierenLabel.SetCaption("Favoriten reparieren");
    IniBtn.SetCaption("Ini-Dateien ..");
    Label7.SetCaption("Homepage");
    Label5.SetCaption("Online-Update");
    DonateBtn.SetCaption("Spenden");
    SaveBtn.SetCaption("Speichern");
    ExitBtn.SetCaption("Schliessen");
}

void SettingsForm::NameInEnglish() {
    NewEmuBtn.SetCaption("New emulator..");
    Label1.SetCaption("Emulator (Winuae.exe, x64.exe, Fusion.exe...) incl. path: ");
    KnownEmuLabel.SetCaption("Known emulators");
    WinUAEBtn.SetCaption("WinUAE settings");
    Label2.SetCaption("Image / Rom directory:");
    UseAnfz.SetCaption("Add quotes");
    ResetScreenRes.SetCaption("Restore Screen Res.");
    ReloadAllBtn.SetCaption("All (!)");
    LoadBtn.SetCaption("Reload Directory");
    ErwLabel.SetCaption("File extension:");
    UAELaunchParameterAddPath.SetCaption("Rom path");
    Joystickcheck.SetCaption("Use Joystick navigation");
    Label11.SetCaption("Game loading screen (sec.)");
    IntelligenteRomauswahl.SetCaption("Intelligent Rom selection");
    FavoritenReparierenLabel.SetCaption("Repair favorites");
    SaveBtn.SetCaption("&Save");
    ExitBtn.SetCaption("&Close");
    DonateBtn.SetCaption("Donate");
    UseMasterConfig.SetCaption("Use WinUAE config template");
    Command1.SetCaption("Import config");
    Command3.SetCaption("Run");
    LaunchButton.SetCaption("Run");
    FullscreenCheck.SetCaption("Start WinUAE fullscreen");
    DeamonToolsIinfo.SetCaption(
        "Disable secure-Modus (Right-click on Deamon-Tool  in Tray -> Settings -> Secure-Mode = "
        "Off)");
    AutoMoundDeamonTools.SetCaption("Auto-Mount (Deamon-Tools)");

    StartGroup.SetCaption("Start of a game");
    ProgramGroup.SetCaption("Program");
    OpenVBS.SetCaption("Edit ..");
    IniBtn.SetCaption("Ini files ..");
}

void SettingsForm::GiveHints() {
    const auto hint = [this](forms::Control& control, const char* german, const char* english) {
        control.SetToolTipText(IsGerman() ? german : english);
    };
    hint(NewEmuBtn, "Legt das Profil eines weiteren Emulators an",
         "Makes the profile of another emulator");
    hint(txtWinUAEExe, "Das Programm, das die Spiele startet", "The program that runs the games");
    for (forms::CommandButton* browse : {&Command2, &BrowseDir, &BrowseKickromBtn, &Command4})
        hint(*browse, "Durchsuchen", "Browse");
    hint(LaunchButton, "Startet den Emulator ohne Spiel", "Runs the emulator without a game");
    hint(KnownEmuCombo, "Setzt Parameter und Erweiterungen eines bekannten Emulators",
         "Sets the parameters and the file extensions of a known emulator");
    hint(WinUAEBtn, "Config Vorlage, Vollbild und Kickstart",
         "Template, full screen and Kickstart");
    hint(EmuDownload, "Öffnet die Seite im Browser", "Opens the page in the browser");
    hint(TxtRomPath, "Das Verzeichnis der Spiele", "The directory of the games");
    hint(LoadBtn, "Durchsucht das Verzeichnis dieses Emulators",
         "Searches the directory of this emulator");
    hint(ReloadAllBtn, "Durchsucht die Verzeichnisse aller Emulatoren",
         "Rescan all directories for all emulators.");
    hint(DirBefehleTxt, "Mehrere mit Komma getrennt: *.adf, *.zip",
         "Several with commas between: *.adf, *.zip");

    hint(UseMasterConfig, "Alle WinUAE-Profile teilen sich diese Vorlage",
         "All WinUAE profiles share this template");
    hint(TxtMasterConfig,
         "Alle WinUAE-Profile teilen sich diese Vorlage. Doppelklick öffnet sie im Editor",
         "All WinUAE profiles share this template. A double click opens it in the editor");
    hint(UAEMasterConfigLaunchParameter, "Steht in der Befehlszeile vor der Config",
         "Stands in front of the config on the command line");
    hint(Command1, "Übernimmt eine Config von WinUAE in die Vorlage",
         "Takes a config of WinUAE over into the template");
    hint(Command3, "Startet WinUAE mit der gespeicherten Vorlage",
         "Runs WinUAE with the template as it is saved");
    hint(IntelligenteRomauswahl, "Wählt automatisch die folgenden Disketten / Roms aus",
         "Selects the disks / roms that follow by itself");
    hint(TxtKickstartRomFile, "Leer lassen, wenn die Vorlage das Kickstart-Rom nennt",
         "May stay empty where the template names the Kickstart rom");

    hint(UAELaunchParaneter, "Steht in der Befehlszeile vor dem Spiel",
         "Stands in front of the game on the command line");
    hint(UAELaunchParameterAddPath, "Der Pfad des Spiels steht in der Befehlszeile",
         "The game's path stands on the command line");
    hint(UseAnfz, "Für Pfade mit Leerzeichen", "For paths with blanks");
    hint(ParameterWithoutPath, "Der Dateiname ohne Verzeichnis",
         "Only the file name, without its directory");
    hint(DeMulAutostart, "Startet mit dem Spiel ein eigenes Script",
         "Runs a script of your own with the game");
    hint(OpenVBS, "Öffnet das Script im Editor", "Opens the script in the editor");
    hint(AutoMoundDeamonTools, "Bindet das Image vor dem Start ein",
         "Mounts the image before the start");
    hint(DeamonButton, "Der Pfad der Deamon Tools", "The path of Deamon Tools");
    hint(DeamonPath, "Das Programm, das Images einbindet", "The program that mounts images");
    hint(SecondsTimerTxt, "So lange steht das Bild beim Start; 0: gar nicht",
         "How long the picture stays at the start; 0: not at all");

    hint(Joystickcheck, "Die Listen mit dem Gamepad bedienen", "Go through the lists by gamepad");
    hint(SetJOyBtn, "Legt fest, was jeder Button tut", "Sets what each button does");
    hint(KillButtonKombo, "Dieser Button beendet das laufende Spiel",
         "The button that ends the running game");
    hint(ResetScreenRes, "Stellt nach dem Spiel die Auflösung wieder her",
         "Restore your original Screen resolution after game ends");
    hint(ResetScreenHint, "Beim Programmstart schaltet der Bildschirm auf 800 x 600",
         "When the program starts the screen goes to 800 x 600");
    hint(FontSizeCombo, "Schriftgröße der Listen", "Font size of the lists");
    hint(Command5, "Farben ausprobieren", "Try out colours");
    hint(FensterRahmChk, "Der Rahmen des Systems um das Hauptfenster",
         "The system's frame around the main window");
    hint(FavoritenReparierenLabel, "Sucht Favoriten, die verschoben wurden",
         "Looks for favourites that have been moved");
    hint(IniBtn, "Öffnet die Profile im Editor", "Opens the profiles in the editor");
    hint(Label7, "Öffnet die Homepage im Browser", "Opens the home page in the browser");
    hint(Label5, "Sucht eine neue Version", "Looks for a new version");
    hint(SaveBtn, "Strg+S", "Ctrl+S");
    for (forms::Image& sign : FehlerIcon)
        hint(sign, "Nicht gefunden. Ein Klick öffnet die Auswahl",
             "Not found. A click opens the dialog");
    hint(FehlerIcon[faultyRomPath], "Leer oder nicht gefunden. Ein Klick öffnet die Auswahl",
         "Empty or not found. A click opens the dialog");
    hint(FehlerIcon[faultyDeamon], "Nicht gefunden", "Not found");
    for (forms::Image* cross : {&Picture1, &Picture2, &RemovePicEnabled})
        hint(*cross, "Ausblenden", "Hide");
}

}  // namespace kivu::settings
