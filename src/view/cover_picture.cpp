#include "view/cover_picture.h"

#include <QThreadPool>
#include <memory>
#include <utility>

#include "view/pictures.h"
#include "view/scaling.h"

namespace kivu::view {

namespace {

struct Preloaded {
    std::string source;
    std::future<QImage> image;
};

Preloaded& ThePreloaded() {
    static Preloaded preloaded;
    return preloaded;
}

// The future of std::async would hold up whoever drops it until the work is done.
template <typename Work>
std::future<QImage> OnAnotherThread(Work work) {
    auto task = std::make_shared<std::packaged_task<QImage()>>(std::move(work));
    std::future<QImage> image = task->get_future();
    QThreadPool::globalInstance()->start([task] { (*task)(); });
    return image;
}

// Read in fewer pixels a PNG picture would take thrice the time: the toolkit's reader makes it
// smaller by slow means.
QImage LoadFitted(const std::string& source, QSize size) {
    return Covering(LoadPicture(DenseEnough(source, size.width())), size);
}

}  // namespace

void PreloadPicture(const std::string& source) {
    ThePreloaded() = {source, OnAnotherThread([source] { return LoadPicture(source); })};
}

QImage Covering(QImage image, QSize size, bool roughly) {
    if (image.isNull() || size.isEmpty()) return {};
    if (image.depth() != 32) {
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                : QImage::Format_RGB32);
    }
    // The part that is seen, so that no more than that is scaled.
    QImage seen = MiddleFor(image, size);
    if (seen.size() != size) {
        const auto mode = roughly ? Qt::FastTransformation : Qt::SmoothTransformation;
        seen = seen.scaled(size, Qt::IgnoreAspectRatio, mode);
    } else if (seen.size() != image.size()) {
        // Lest it keeps the whole.
        seen = seen.copy();
    }
    if (seen.hasAlphaChannel()) seen.convertTo(QImage::Format_ARGB32_Premultiplied);
    return seen;
}

void CoverPicture::Set(const forms::Picture& value) {
    picture = value;
    coming = {};
    taken = false;
    whole = {};
    wholeSource = {};
}

void CoverPicture::Prefetch(QSize size) {
    if (taken || size.isEmpty() || (!picture.pixels && picture.source.empty())) return;
    if (coming.valid() && comingSize == size) return;
    comingSize = size;
    Preloaded& preloaded = ThePreloaded();
    const std::string& source = picture.source;
    if (picture.pixels) {
        coming = OnAnotherThread(
            [size, pixels = picture.pixels] { return Covering(OverPixels(pixels), size); });
    } else if (preloaded.image.valid() && preloaded.source == source &&
               DenseEnough(source, size.width()) == source) {
        auto image = std::make_shared<std::future<QImage>>(std::move(preloaded.image));
        coming = OnAnotherThread([size, image] { return Covering(image->get(), size); });
    } else {
        coming = OnAnotherThread([size, source] { return LoadFitted(source, size); });
    }
}

void CoverPicture::LoadWhole(QSize size) {
    if (picture.pixels) {
        if (whole.isNull()) whole = OverPixels(picture.pixels);
        return;
    }
    if (picture.source.empty()) return;
    const std::string source = DenseEnough(picture.source, size.width());
    if (!whole.isNull() && source == wholeSource) return;
    whole = LoadPicture(source);
    wholeSource = source;
    if (whole.isNull()) picture = {};
}

QImage CoverPicture::Take(QSize size, bool roughly) {
    if (size.isEmpty()) return {};
    const bool first = !std::exchange(taken, true);
    if (coming.valid()) {
        QImage image = coming.get();
        if (comingSize == size) return image;
    } else if (first && !picture.pixels && !picture.source.empty()) {
        return LoadFitted(picture.source, size);
    }
    LoadWhole(size);
    return Covering(whole, size, roughly);
}

}  // namespace kivu::view
