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

void SettingsForm::Hint(forms::Control& control, const char* german, const char* english) {
    control.SetToolTipText(IsGerman() ? german : english);
}

void SettingsForm::GiveHints() {
    HintAtEmulator();
    HintAtWinUAE();
    HintAtStart();
    HintAtProgram();
    for (forms::Image& sign : FehlerIcon)
        Hint(sign, "Nicht gefunden. Ein Klick öffnet die Auswahl",
             "Not found. A click opens the dialog");
    Hint(FehlerIcon[faultyRomPath], "Leer oder nicht gefunden. Ein Klick öffnet die Auswahl",
         "Empty or not found. A click opens the dialog");
    Hint(FehlerIcon[faultyDeamon], "Nicht gefunden", "Not found");
    for (forms::Image* cross : {&Picture1, &Picture2, &RemovePicEnabled})
        Hint(*cross, "Ausblenden", "Hide");
}

void SettingsForm::HintAtEmulator() {
    Hint(NewEmuBtn, "Legt das Profil eines weiteren Emulators an",
         "Makes the profile of another emulator");
    Hint(txtWinUAEExe, "Das Programm, das die Spiele startet", "The program that runs the games");
    for (forms::CommandButton* browse : {&Command2, &BrowseDir, &BrowseKickromBtn, &Command4})
        Hint(*browse, "Durchsuchen", "Browse");
    Hint(LaunchButton, "Startet den Emulator ohne Spiel", "Runs the emulator without a game");
    Hint(KnownEmuCombo, "Setzt Parameter und Erweiterungen eines bekannten Emulators",
         "Sets the parameters and the file extensions of a known emulator");
    Hint(WinUAEBtn, "Config Vorlage, Vollbild und Kickstart",
         "Template, full screen and Kickstart");
    Hint(EmuDownload, "Öffnet die Seite im Browser", "Opens the page in the browser");
    Hint(TxtRomPath, "Das Verzeichnis der Spiele", "The directory of the games");
    Hint(LoadBtn, "Durchsucht das Verzeichnis dieses Emulators",
         "Searches the directory of this emulator");
    Hint(ReloadAllBtn, "Durchsucht die Verzeichnisse aller Emulatoren",
         "Rescan all directories for all emulators.");
    Hint(DirBefehleTxt, "Mehrere mit Komma getrennt: *.adf, *.zip",
         "Several with commas between: *.adf, *.zip");
}

void SettingsForm::HintAtWinUAE() {
    Hint(UseMasterConfig, "Alle WinUAE-Profile teilen sich diese Vorlage",
         "All WinUAE profiles share this template");
    Hint(TxtMasterConfig,
         "Alle WinUAE-Profile teilen sich diese Vorlage. Doppelklick öffnet sie im Editor",
         "All WinUAE profiles share this template. A double click opens it in the editor");
    Hint(UAEMasterConfigLaunchParameter, "Steht in der Befehlszeile vor der Config",
         "Stands in front of the config on the command line");
    Hint(Command1, "Übernimmt eine Config von WinUAE in die Vorlage",
         "Takes a config of WinUAE over into the template");
    Hint(Command3, "Startet WinUAE mit der gespeicherten Vorlage",
         "Runs WinUAE with the template as it is saved");
    Hint(IntelligenteRomauswahl, "Wählt automatisch die folgenden Disketten / Roms aus",
         "Selects the disks / roms that follow by itself");
    Hint(TxtKickstartRomFile, "Die Datei des Kickstart-Roms", "The file of the Kickstart rom");
}

void SettingsForm::HintAtStart() {
    Hint(UAELaunchParaneter, "Steht in der Befehlszeile vor dem Spiel",
         "Stands in front of the game on the command line");
    Hint(UAELaunchParameterAddPath, "Der Pfad des Spiels steht in der Befehlszeile",
         "The game's path stands on the command line");
    Hint(UseAnfz, "Für Pfade mit Leerzeichen", "For paths with blanks");
    Hint(ParameterWithoutPath, "Der Dateiname ohne Verzeichnis",
         "Only the file name, without its directory");
    Hint(DeMulAutostart, "Startet mit dem Spiel ein eigenes Script",
         "Runs a script of your own with the game");
    Hint(OpenVBS, "Öffnet das Script im Editor", "Opens the script in the editor");
    Hint(AutoMoundDeamonTools, "Bindet das Image vor dem Start ein",
         "Mounts the image before the start");
    Hint(DeamonButton, "Der Pfad der Deamon Tools", "The path of Deamon Tools");
    Hint(DeamonPath, "Das Programm, das Images einbindet", "The program that mounts images");
    Hint(SecondsTimerTxt, "So lange steht das Bild beim Start; 0: gar nicht",
         "How long the picture stays at the start; 0: not at all");
}

void SettingsForm::HintAtProgram() {
    Hint(Joystickcheck, "Die Listen mit dem Gamepad bedienen", "Go through the lists by gamepad");
    Hint(SetJOyBtn, "Legt fest, was jeder Button tut", "Sets what each button does");
    Hint(KillButtonKombo, "Dieser Button beendet das laufende Spiel",
         "The button that ends the running game");
    Hint(ResetScreenRes, "Stellt nach dem Spiel die Auflösung wieder her",
         "Restore your original Screen resolution after game ends");
    Hint(ResetScreenHint, "Beim Programmstart schaltet der Bildschirm auf 800 x 600",
         "When the program starts the screen goes to 800 x 600");
    Hint(FontSizeCombo, "Schriftgröße der Listen", "Font size of the lists");
    Hint(Command5, "Farben ausprobieren", "Try out colours");
    Hint(FensterRahmChk, "Der Rahmen des Systems um das Hauptfenster",
         "The system's frame around the main window");
    Hint(FavoritenReparierenLabel, "Sucht Favoriten, die verschoben wurden",
         "Looks for favourites that have been moved");
    Hint(IniBtn, "Öffnet die Profile im Editor", "Opens the profiles in the editor");
    Hint(Label7, "Öffnet die Homepage im Browser", "Opens the home page in the browser");
    Hint(Label5, "Sucht eine neue Version", "Looks for a new version");
    Hint(SaveBtn, "Strg+S", "Ctrl+S");
}

}  // namespace kivu::settings
