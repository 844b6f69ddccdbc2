#include "hosts/qt/picture_decoder_qt.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <algorithm>

namespace kivu::hosts {

std::optional<platform::DecodedPicture> QtPictureDecoder::Decode(
    std::string_view bytes, int largestSide, const std::atomic<bool>& cancelled) {
    if (cancelled) return std::nullopt;
    QByteArray held = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&held);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull() || cancelled) return std::nullopt;
    if (largestSide > 0 && std::max(image.width(), image.height()) > largestSide)
        image =
            image.scaled(largestSide, largestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    image.convertTo(QImage::Format_ARGB32);
    platform::DecodedPicture picture{image.width(), image.height(), {}};
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
        picture.pixels.insert(picture.pixels.end(), row, row + image.width());
    }
    return picture;
}

}  // namespace kivu::hosts
