#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "core/program_state.h"
#include "forms/controls.h"
#include "platform/background.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/picture_decoder.h"

namespace kivu::ui {

// How a picture file comes onto a control. Files are a stranger's: what is too large, damaged, no
// picture or no regular file is not shown, and costs neither memory nor time.
class PictureLoading {
 public:
    virtual ~PictureLoading() = default;

    // Takes what `target` shows away, and shows the file there in its natural size (15 twips a
    // pixel), which the control takes on. `done` is told whether a picture is there now: before
    // this returns, or later on the window's thread. It is not called any more once another load,
    // or Drop, has come for the same target. A target that goes away is dropped before.
    virtual void Load(const std::string& path, forms::PictureBox& target,
                      std::function<void(bool shown)> done) = 0;
    // What is under way for the target comes to nothing.
    virtual void Drop(forms::PictureBox& target) = 0;

    // Whether the file is a picture that can be shown, by its header. If so `receive` gets it, now
    // or later on the window's thread, unless another one has been found with the same purpose. A
    // file that is no picture changes nothing, while an empty path calls off what is under way.
    virtual bool LoadSkin(const std::string& path, const std::string& purpose,
                          std::function<void(forms::Picture)> receive) = 0;
};

// Reads a file's beginning at once, since who asks wants to know whether it is a picture, and
// decodes small files there and then. The others' pixels come from beside the window's thread.
class PictureLoader : public PictureLoading {
 public:
    struct Services {
        const platform::FileSystem& files;
        platform::PictureDecoder& decoder;
        platform::Background& background;
        platform::Dialogs& dialogs;
    };

    PictureLoader(const core::ProgramState& program, Services services);
    ~PictureLoader() override;
    PictureLoader(const PictureLoader&) = delete;
    PictureLoader& operator=(const PictureLoader&) = delete;

    // A path that holds ".png" anywhere is read by the launcher's own PNG reader, whatever the file
    // holds; all others by the host's decoder, by their content.
    void Load(const std::string& path, forms::PictureBox& target,
              std::function<void(bool shown)> done) override;
    void Drop(forms::PictureBox& target) override;
    bool LoadSkin(const std::string& path, const std::string& purpose,
                  std::function<void(forms::Picture)> receive) override;

 private:
    struct Job;
    using JobPointer = std::shared_ptr<Job>;

    void Start(const JobPointer& job, bool atOnce);
    void Finish(const JobPointer& job);
    void Cancel(JobPointer& job);
    void Show(forms::PictureBox& target, const Job& job);
    void TellOfTree(const std::string& path);

    const core::ProgramState& program;
    Services services;
    // What is under way.
    std::map<const forms::PictureBox*, JobPointer> loads;
    std::map<std::string, JobPointer> skins;
    std::set<std::string> toldOfTree;
    // For what comes back when this is gone.
    std::shared_ptr<const bool> alive = std::make_shared<const bool>(true);
};

}  // namespace kivu::ui
