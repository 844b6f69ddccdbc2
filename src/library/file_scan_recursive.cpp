#include "library/file_scan_recursive.h"

#include <algorithm>

#include "core/busy_state.h"
#include "core/form1.h"
#include "text/paths.h"

namespace kivu::library {

namespace {

constexpr int rowsPerTurn = 100;

std::string WithSeparator(std::string directory) {
    const char closing = directory.empty() ? '\0' : directory.back();
    if (closing == '/' || closing == '\\') return directory;
    const bool posix = directory.starts_with('/') || directory.find('\\') == std::string::npos;
    directory += posix ? '/' : '\\';
    return directory;
}

std::string Joined(const std::string& start, const std::string& name) {
    std::string path;
    path.reserve(start.size() + name.size());
    path = start;
    return path += name;
}

}  // namespace

FileScanRecursive::FileScanRecursive(core::Form1& form, ScanSource& source,
                                     platform::Beeper& beeper, core::EventPacer& pacer)
    : form(form), controls(form.FileScanRecursive1), source(source), beeper(beeper), pacer(pacer) {
}

const forms::ListBox& FileScanRecursive::Result_list() const {
    return controls.ResultList;
}

forms::ListBox& FileScanRecursive::Result_list() {
    return controls.ResultList;
}

std::string FileScanRecursive::PreParePath(const std::string& Path) const {
    return text::PreParePath(Path);
}

void FileScanRecursive::Begin(const std::string& path, const std::string& pattern) {
    BreakFlag = false;
    controls.ResultList.Clear();
    controls.TmpDirList.Clear();
    controls.ResultList.SetVisible(false);
    controls.TmpDirList.SetVisible(false);
    // The new pattern reads where the file list stands from an earlier scan, which is no part of
    // this one.
    controls.MyTmpFile.SetPattern(pattern);
    source.BeginScan(path);
    controls.TmpDirList.AddItem(path);
}

bool FileScanRecursive::EnterTop(std::string& lastDir) {
    const int top = controls.TmpDirList.ListCount() - 1;
    controls.MyTmpDir.SetPath(controls.TmpDirList.List(top));
    controls.TmpDirList.RemoveItem(top);
    // A directory that cannot be entered leaves the control where it was.
    if (controls.MyTmpDir.Path() == lastDir) return false;
    lastDir = controls.MyTmpDir.Path();
    return true;
}

int FileScanRecursive::ScanFiles(const std::string& Path, const std::string& Pattern,
                                 const std::string& ProgressText, forms::Label* ProgressLabel) {
    const std::string noted = Caption(ProgressLabel);
    Begin(PreParePath(Path), Pattern);
    // Where the control stands from an earlier scan is no place to start from.
    std::string lastDir = controls.MyTmpDir.Path();
    controls.MyTmpDir.ForgetPath();
    lastDir.clear();
    Step step = Step::goOn;
    while (step == Step::goOn && controls.TmpDirList.ListCount() > 0) {
        if (EnterTop(lastDir)) step = CollectFiles(ProgressText, ProgressLabel);
        if (step == Step::goOn && controls.ResultList.ListCount() % 100 == 0) {
            form.SetCaption(ProgressText + std::to_string(controls.ResultList.ListCount()));
            pacer.DoEventsWhenDue();
        }
    }
    source.EndScan();
    if (step == Step::leave) return controls.ResultList.ListCount();
    if (step == Step::stop) {
        beeper.Beep();
        SetCaption(ProgressLabel, "Abbruch!");
    } else {
        SetCaption(ProgressLabel, noted);
    }
    controls.TmpDirList.SetVisible(false);
    controls.ResultList.SetVisible(true);
    return controls.ResultList.ListCount();
}

FileScanRecursive::Step FileScanRecursive::CollectFiles(const std::string& progressText,
                                                        forms::Label* label) {
    source.WillEnter(controls.MyTmpDir.Rows());
    controls.MyTmpFile.SetPath(controls.MyTmpDir.Path());
    if (BreakFlag) return Step::leave;
    // A copy: an event handler may drive the controls too.
    const std::string directory = WithSeparator(controls.MyTmpFile.Path());
    for (int i = 0; i < controls.MyTmpFile.ListCount();) {
        // Events run at row 0 and at each hundredth, behind which the next rows come at once, or
        // the one with which a break is noticed.
        const int turn = BreakFlag ? i + 1 : (i + rowsPerTurn - 1) / rowsPerTurn * rowsPerTurn + 1;
        AddFiles(directory, i, std::min(turn, i + limit - controls.ResultList.ListCount()));
        if (controls.ResultList.ListCount() >= limit || BreakFlag) return Step::stop;
        if ((i - 1) % rowsPerTurn != 0) continue;
        pacer.DoEventsWhenDue();
        SetCaption(label, progressText + std::to_string(controls.ResultList.ListCount()));
    }
    for (int i = 0; i < controls.MyTmpDir.ListCount(); ++i) {
        controls.TmpDirList.AddItem(controls.MyTmpDir.List(i));
    }
    pacer.DoEventsWhenDue();
    return Step::goOn;
}

// At least one, from row `i` on, which moves behind them. Names of one directory are in order, and
// so are the paths that end in them.
void FileScanRecursive::AddFiles(const std::string& directory, int& i, int end) {
    std::vector<std::string> paths;
    end = std::min(std::max(end, i + 1), controls.MyTmpFile.ListCount());
    paths.reserve(static_cast<std::size_t>(end - i));
    for (; i < end; ++i)
        paths.push_back(Joined(directory, controls.MyTmpFile.List(i)));
    controls.ResultList.AddInOrder(std::move(paths));
}

int FileScanRecursive::ScanDirs(const std::string& Path, const std::string& ProgressText) {
    const std::string noted = form.Caption();
    Begin(PreParePath(Path), "*.*");
    controls.MyTmpDir.ForgetPath();
    std::string lastDir;
    Step step = Step::goOn;
    while (step == Step::goOn && controls.TmpDirList.ListCount() > 0) {
        if (EnterTop(lastDir)) step = CollectDirectories(ProgressText);
        const int count = controls.ResultList.ListCount();
        if (step == Step::goOn && count % 300 == 0) {
            // The outcome of a comparison, and no count: an old look that users know.
            form.SetCaption(count == 0 ? "False" : "True");
            pacer.DoEventsWhenDue();
        }
    }
    source.EndScan();
    if (step == Step::leave) return controls.ResultList.ListCount();
    if (step == Step::stop) {
        beeper.Beep();
        form.SetCaption("Überlauf - Abbruch!");
    } else {
        form.SetCaption(noted);
    }
    controls.TmpDirList.SetVisible(false);
    controls.ResultList.SetVisible(true);
    return controls.ResultList.ListCount();
}

FileScanRecursive::Step FileScanRecursive::CollectDirectories(const std::string& progressText) {
    if (BreakFlag) return Step::leave;
    source.WillEnter(controls.MyTmpDir.Rows());
    for (int i = 0; i < controls.MyTmpDir.ListCount(); ++i) {
        const std::string directory = controls.MyTmpDir.List(i);
        controls.ResultList.AddItem(WithSeparator(directory));
        controls.TmpDirList.AddItem(directory);
        if (controls.ResultList.ListCount() >= limit || BreakFlag) return Step::stop;
        if (i % 200 != 199) continue;
        form.SetCaption(progressText + std::to_string(controls.ResultList.ListCount()) + "  (" +
                        std::to_string(controls.TmpDirList.ListCount()) + ")");
        pacer.DoEventsWhenDue();
    }
    return Step::goOn;
}

std::string FileScanRecursive::Caption(const forms::Label* label) const {
    return label ? label->Caption() : form.Caption();
}

void FileScanRecursive::SetCaption(forms::Label* label, const std::string& text) {
    if (label) {
        label->SetCaption(text);
    } else {
        form.SetCaption(text);
    }
}

void FileScanRecursive::UserControl_Resize() {
    constexpr int margin = 50;
    const int width = controls.frame.Width() - margin;
    const int height = controls.frame.Height() - margin;
    for (forms::ListBox* list : {&controls.ResultList, &controls.TmpDirList})
        list->Move(0, 0, width, height);
    controls.TmpDirList.SetVisible(false);
    controls.ResultList.SetVisible(true);
}

}  // namespace kivu::library
