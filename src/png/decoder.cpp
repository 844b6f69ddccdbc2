#include "png/decoder.h"

#include <algorithm>
#include <vector>

#include "png/filters.h"

namespace kivu::png {
namespace {

// Hands out the rows of the inflated data one after the other, with their filters undone.
class RowSource {
 public:
    RowSource(const ImageHeader& imageHeader, std::span<std::uint8_t> inflated)
        : header(imageHeader),
          data(inflated),
          filterStep(std::max(1U, BitsPerPixel(imageHeader) / 8)),
          zeros(RowBytes(imageHeader, imageHeader.width) + 1),
          partialRow(zeros.size()),
          above(zeros.data()) {}

    // Begins a picture or pass: rows of that many pixels, with zeros above the first.
    void Begin(std::size_t pixels) {
        rowBytes = RowBytes(header, pixels);
        above = zeros.data();
    }

    const std::uint8_t* NextFiltered() {
        std::uint8_t* row = NextBytes(rowBytes + 1);
        // Behind the data this does nothing: a row of zeros asks for no filter.
        UndoFilter(row[0], row + 1, above, rowBytes, filterStep);
        return above = row + 1;
    }

    // A row without a filter byte in front.
    const std::uint8_t* NextPlain() { return NextBytes(rowBytes); }

 private:
    std::uint8_t* NextBytes(std::size_t count) {
        if (count <= data.size()) {
            std::uint8_t* bytes = data.data();
            data = data.subspan(count);
            return bytes;
        }
        if (data.empty()) return zeros.data();
        std::fill(std::copy(data.begin(), data.end(), partialRow.begin()), partialRow.end(), 0);
        data = {};
        return partialRow.data();
    }

    const ImageHeader& header;
    std::span<std::uint8_t> data;
    std::size_t filterStep;
    std::vector<std::uint8_t> zeros;
    std::vector<std::uint8_t> partialRow;
    const std::uint8_t* above;
    std::size_t rowBytes = 0;
};

// Converts and blends the rows of one picture.
class RowFinisher {
 public:
    RowFinisher(const RowConverter& rowConverter, const Blending& blending, int width)
        : converter(rowConverter),
          alphaUse(blending.alphaUse),
          backdrop(blending.backdrop),
          scratch(alphaUse == AlphaUse::Blend && !backdrop.IsUniform()
                      ? static_cast<std::size_t>(width)
                      : 0) {}

    void Convert(const std::uint8_t* row, std::span<Pixel> pixels) const {
        converter.Convert(row, pixels);
    }
    void Finish(std::span<Pixel> pixels, int y) {
        if (alphaUse == AlphaUse::Blend) {
            backdrop.BlendRow(pixels, y, scratch);
        } else if (alphaUse == AlphaUse::Ignore) {
            for (Pixel& pixel : pixels) {
                pixel |= opaqueBlack;
            }
        }
    }

 private:
    const RowConverter& converter;
    AlphaUse alphaUse;
    const Backdrop& backdrop;
    std::vector<Pixel> scratch;
};

// Asks at each 64th row whether the picture is wanted.
class Patience {
 public:
    explicit Patience(const std::function<bool()>& isGivenUp) : givenUp(isGivenUp) {}
    bool IsOver() {
        over = over || (rows++ % 64 == 0 && givenUp());
        return over;
    }

 private:
    const std::function<bool()>& givenUp;
    unsigned rows = 0;
    bool over = false;
};

// Without interlacing, row by row while the row is at hand. With an unknown interlace method the
// rows are taken as they lie, filter bytes and all.
void DecodePlain(const ImageHeader& header, RowSource& source, RowFinisher& finisher,
                 Patience& patience, Picture& picture) {
    source.Begin(header.width);
    for (int y = 0; y < picture.Height() && !patience.IsOver(); ++y) {
        const std::span<Pixel> pixels = picture.Row(y);
        finisher.Convert(header.interlacing == 0 ? source.NextFiltered() : source.NextPlain(),
                         pixels);
        finisher.Finish(pixels, y);
    }
}

void DecodePass(const ImageHeader& header, const Pass& pass, RowSource& source,
                RowFinisher& finisher, Patience& patience, Picture& picture) {
    const std::uint32_t columns = pass.Columns(header.width);
    if (columns == 0) return;
    source.Begin(columns);
    std::vector<Pixel> passRow(pass.stepX == 1 ? 0 : columns);
    for (std::uint32_t y = pass.startY; y < header.height && !patience.IsOver(); y += pass.stepY) {
        const std::span<Pixel> pixels = picture.Row(static_cast<int>(y));
        const std::uint8_t* row = source.NextFiltered();
        if (pass.stepX == 1) {
            finisher.Convert(row, pixels);
            continue;
        }
        finisher.Convert(row, passRow);
        std::size_t to = pass.startX;
        for (const Pixel pixel : passRow) {
            pixels[to] = pixel;
            to += pass.stepX;
        }
    }
}

}  // namespace

Picture DecodeRows(const ImageHeader& header, std::span<std::uint8_t> data,
                   const RowConverter& converter, const Blending& blending,
                   const std::function<bool()>& givenUp) {
    Picture picture(static_cast<int>(header.width), static_cast<int>(header.height));
    RowSource source(header, data);
    RowFinisher finisher(converter, blending, picture.Width());
    Patience patience(givenUp);
    if (header.interlacing != 1) {
        DecodePlain(header, source, finisher, patience, picture);
        return picture;
    }
    for (const Pass& pass : adam7Passes) {
        DecodePass(header, pass, source, finisher, patience, picture);
    }
    for (int y = 0; y < picture.Height() && !patience.IsOver(); ++y) {
        finisher.Finish(picture.Row(y), y);
    }
    return picture;
}

}  // namespace kivu::png
