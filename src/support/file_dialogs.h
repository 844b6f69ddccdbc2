#pragma once

#include <string>

#include "forms/on_demand.h"
#include "support/file_dialog_window.h"

namespace kivu::support {

// Asks the user for a file or a directory. Each gives the chosen path, a directory's with its
// separator at the end; the empty text when the user has cancelled, or when a dialog is open
// already.
class FileDialogs {
 public:
    virtual ~FileDialogs() = default;

    // `DefaultPath` is where the user begins; empty: in the current directory. `DefaultFilename` is
    // a mask with "*" or "?", or the one file that is looked for.
    [[nodiscard]] virtual std::string FileOpenDialog(const std::string& DefaultPath,
                                                     const std::string& WindowCaption,
                                                     const std::string& DefaultFilename,
                                                     forms::Form* over) = 0;
    [[nodiscard]] virtual std::string filesaveDialog(const std::string& DefaultPath,
                                                     const std::string& WindowCaption,
                                                     const std::string& DefaultFilename,
                                                     forms::Form* over) = 0;
    [[nodiscard]] virtual std::string FileDirSelectDialog(const std::string& DefaultPath,
                                                          const std::string& WindowCaption,
                                                          forms::Form* over) = 0;
};

// By the launcher's own window, which is made for each question.
class WindowedFileDialogs : public FileDialogs {
 public:
    using Make = forms::OnDemand<FilesWindow>::Make;
    WindowedFileDialogs(forms::WindowHost& windows, Make make)
        : windows(windows), window(windows, std::move(make)) {}

    [[nodiscard]] std::string FileOpenDialog(const std::string& DefaultPath,
                                             const std::string& WindowCaption,
                                             const std::string& DefaultFilename,
                                             forms::Form* over) override;
    [[nodiscard]] std::string filesaveDialog(const std::string& DefaultPath,
                                             const std::string& WindowCaption,
                                             const std::string& DefaultFilename,
                                             forms::Form* over) override;
    [[nodiscard]] std::string FileDirSelectDialog(const std::string& DefaultPath,
                                                  const std::string& WindowCaption,
                                                  forms::Form* over) override;

 private:
    std::string Ask(const FileDialogAnswer::Question& question, forms::Form* over);

    forms::WindowHost& windows;
    forms::OnDemand<FilesWindow> window;
};

}  // namespace kivu::support
