#pragma once

#include <string>

#include "library/scan_source.h"
#include "platform/beeper.h"

namespace kivu::core {
class EventPacer;
struct FileScanControls;
struct Form1;
}  // namespace kivu::core

namespace kivu::forms {
class Label;
class ListBox;
}  // namespace kivu::forms

namespace kivu::library {

// Walks a directory tree without recursion: a directory list and a file list are driven from a
// stack of directories, and what they show is collected in a sorted list.
class FileScanRecursive {
 public:
    // A scan stops at so many results.
    static constexpr int limit = 31999;

    FileScanRecursive(core::Form1& form, ScanSource& source, platform::Beeper& beeper,
                      core::EventPacer& pacer);

    std::string PreParePath(const std::string& Path) const;
    // Files below `Path` that match `Pattern`; gives the number of results. Progress goes into the
    // label's caption, into the window's title without one.
    int ScanFiles(const std::string& Path, const std::string& Pattern,
                  const std::string& ProgressText, forms::Label* ProgressLabel);
    // Directories below `Path`, each with a closing separator.
    int ScanDirs(const std::string& Path, const std::string& ProgressText);
    const forms::ListBox& Result_list() const;
    forms::ListBox& Result_list();
    void BreakScan() { BreakFlag = true; }

    // Keeps the inner lists at the control's size.
    void UserControl_Resize();

 private:
    enum class Step { goOn, leave, stop };

    void Begin(const std::string& path, const std::string& pattern);
    Step CollectFiles(const std::string& progressText, forms::Label* label);
    void AddFiles(const std::string& directory, int& i, int end);
    Step CollectDirectories(const std::string& progressText);
    // True: the directory on top of the stack has been entered, and is taken off it.
    bool EnterTop(std::string& lastDir);
    std::string Caption(const forms::Label* label) const;
    void SetCaption(forms::Label* label, const std::string& text);

    core::Form1& form;
    core::FileScanControls& controls;
    ScanSource& source;
    platform::Beeper& beeper;
    core::EventPacer& pacer;
    bool BreakFlag = false;
};

}  // namespace kivu::library
