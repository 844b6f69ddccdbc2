#include "ui/picture_loader.h"

#include <atomic>
#include <new>
#include <optional>
#include <utility>

#include "core/form1.h"
#include "ui/jpeg_header.h"
#include "ui/picture_file.h"
#include "ui/picture_surface.h"

namespace kivu::ui {

namespace {

// A small file may hold a large picture, or a small one many times over.
constexpr std::int64_t mostPixelsAtOnce = 1 << 20;

bool IsQuick(const PictureFile& file, const std::optional<PictureHeader>& header) {
    if (!file.IsWhole() || !header || header->progressive) return false;
    if (header->format == PictureFormat::jpeg && HasManyScans(file.Bytes())) return false;
    return std::int64_t{header->width} * header->height <= mostPixelsAtOnce;
}

}  // namespace

// One file on its way. The worker has it to itself from Start to Finish, but for the flag.
struct PictureLoader::Job {
    Job(const platform::FileSystem& files, const std::string& path)
        : path(path), file(files, path) {}

    void Work(platform::PictureDecoder& decoder) {
        if (cancelled) return;
        result = ownReader ? LoadOwnPng(file, backColor.value_or(0), cancelled)
                           : LoadByHost(file, decoder, cancelled);
        if (!backColor || cancelled) return;
        try {
            result.bitmap = OverColor(std::move(result.bitmap), *backColor);
        } catch (const std::bad_alloc&) {
            result = {};
        }
    }

    std::string path;
    PictureFile file;
    bool ownReader = false;
    // What lies below a preview, which shows nothing of the lists behind it. A skin has none: the
    // window shines through.
    std::optional<forms::Color> backColor;
    std::atomic<bool> cancelled = false;
    LoadedPicture result;
    std::function<void(const JobPointer&)> finish;
};

PictureLoader::PictureLoader(const core::ProgramState& program, Services services)
    : program(program), services(services) {
}

PictureLoader::~PictureLoader() {
    for (auto& [target, job] : loads)
        Cancel(job);
    for (auto& [purpose, job] : skins)
        Cancel(job);
}

void PictureLoader::Cancel(JobPointer& job) {
    if (!job) return;
    job->cancelled = true;
    // What it holds goes on this thread.
    job->finish = nullptr;
    job.reset();
}

void PictureLoader::Drop(forms::PictureBox& target) {
    const auto found = loads.find(&target);
    if (found == loads.end()) return;
    Cancel(found->second);
    loads.erase(found);
}

void PictureLoader::Start(const JobPointer& job, bool atOnce) {
    if (atOnce) {
        job->Work(services.decoder);
        Finish(job);
        return;
    }
    platform::PictureDecoder& decoder = services.decoder;
    services.background.Run([job, &decoder] { job->Work(decoder); },
                            [this, job, living = std::weak_ptr(alive)] {
                                if (!living.expired()) Finish(job);
                            });
}

// Nothing comes after a newer wish for the same place, and nothing after the program's end.
void PictureLoader::Finish(const JobPointer& job) {
    if (job->cancelled || program.Ended) return;
    const auto finish = std::move(job->finish);
    finish(job);
}

void PictureLoader::Load(const std::string& path, forms::PictureBox& target,
                         std::function<void(bool shown)> done) {
    Drop(target);
    if (program.Ended) return;
    target.SetPicture({});
    auto job = std::make_shared<Job>(services.files, path);
    job->ownReader = path.find(".png") != std::string::npos;
    job->backColor = target.BackColor();
    const auto header = job->file.Header();
    const bool moreMayTell = !job->file.IsWhole() && MayTellMore(job->file.Bytes());
    if (!header && !moreMayTell) {
        done(false);
        return;
    }
    loads[&target] = job;
    job->finish = [this, &target, done = std::move(done)](const JobPointer& finished) {
        loads.erase(&target);
        Show(target, *finished);
        done(finished->result.bitmap != nullptr);
        if (finished->result.treeFailed) TellOfTree(finished->path);
    };
    Start(job, IsQuick(job->file, header));
}

void PictureLoader::Show(forms::PictureBox& target, const Job& job) {
    const LoadedPicture& loaded = job.result;
    if (!loaded.bitmap) return;
    target.Move(target.Left(), target.Top(), loaded.width * forms::twipsPerPixel,
                loaded.height * forms::twipsPerPixel);
    target.SetPicture({job.path, loaded.bitmap});
}

// From the event loop: who loads a picture may be in the midst of something, and no box stands
// before the window does.
void PictureLoader::TellOfTree(const std::string& path) {
    if (program.Ended || !toldOfTree.insert(path).second) return;
    services.background.Run([] {},
                            [this, living = std::weak_ptr(alive)] {
                                if (living.expired() || program.Ended) return;
                                services.dialogs.MessageBox(
                                    "Error in tree creation (Static)", core::defaultTitle,
                                    platform::Buttons::Ok, platform::Icon::None);
                            });
}

bool PictureLoader::LoadSkin(const std::string& path, const std::string& purpose,
                             std::function<void(forms::Picture)> receive) {
    if (program.Ended) return false;
    auto job = std::make_shared<Job>(services.files, path);
    const auto header = job->file.SearchHeader();
    if (header || path.empty()) Cancel(skins[purpose]);
    if (!header) return false;
    skins[purpose] = job;
    job->finish = [this, purpose, receive = std::move(receive)](const JobPointer& finished) {
        skins.erase(purpose);
        if (finished->result.bitmap) receive({finished->path, finished->result.bitmap});
    };
    Start(job, IsQuick(job->file, header));
    return true;
}

}  // namespace kivu::ui
