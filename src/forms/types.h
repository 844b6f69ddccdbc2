#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kivu::forms {

// Geometry is in twips: 1,440 to the inch, 15 to a pixel at 96 dpi.
inline constexpr int twipsPerPixel = 15;

// Red in the lowest byte, then green, then blue.
using Color = std::uint32_t;

constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) {
    return (red & 0xff) | (green & 0xff) << 8 | (blue & 0xff) << 16;
}

inline constexpr double largestFont = 2160;  // points: 30 inches

struct Font {
    std::string name;  // empty: the toolkit's own
    double size = 10;  // points, above 0 and up to largestFont
    bool bold = false;
    bool operator==(const Font&) const = default;
};

// Key codes as window systems have counted them since the first PC keyboards.
namespace keys {
inline constexpr int back = 8, tab = 9, enter = 13, escape = 27, space = 32, pageUp = 33,
                     pageDown = 34, end = 35, home = 36, left = 37, up = 38, right = 39, down = 40,
                     insert = 45, del = 46, f1 = 112, f3 = 114, f4 = 115, f12 = 123,
                     otherCharacter = 231;  // comes with a character that has no key of its own
}

// Bits of a shift state.
namespace shifts {
inline constexpr int shift = 1, ctrl = 2, alt = 4;
}

// Bits of a mouse button.
namespace buttons {
inline constexpr int left = 1, right = 2, middle = 4;
}

// A key on its way through the handlers; a handler that sets `code` to 0 swallows it.
struct Key {
    int code = 0;
    int shift = 0;
    bool repeat = false;  // the key is held down and strikes by itself
    bool operator==(const Key&) const = default;
};

// A typed character on its way through the handlers; 0 swallows it.
struct Character {
    char32_t code = 0;
    bool operator==(const Character&) const = default;
};

// Twips from the left and top edge of something.
struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

// Twips.
struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Mouse {
    int button = 0;
    int shift = 0;
    int x = 0;  // twips, from the control's left edge
    int y = 0;
};

// Pixels as the toolkit draws them: 0xAARRGGBB, rows from the top, not premultiplied.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
    bool opaque = false;  // every pixel is known to cover what lies below
};

// A picture by its pixels, or by a resource that the toolkit loads.
struct Picture {
    std::string source;                    // the resource; with pixels, the file that they are of
    std::shared_ptr<const Bitmap> pixels;  // never changed once it is shown
    bool operator==(const Picture&) const = default;
};

// What of a control has changed, for whoever shows it.
enum class Aspect {
    visible,
    enabled,
    geometry,
    font,
    colors,
    text,  // Text, Caption or Value
    toolTip,
    rows,       // a list's rows
    selection,  // a list's selected row, a text's caret and selection
    picture,
    zOrder,
    timer,
    focus,
    windowState,
    windowFrame,  // corner radius, frame, stay-on-top, edges, how it is shown
};

// Where text is as wide as on the screen. Units are twips.
class TextMeasure {
 public:
    virtual ~TextMeasure() = default;
    virtual int Width(const Font& font, std::string_view line) const = 0;
    virtual int LineHeight(const Font& font) const = 0;
    // How many lines a view makes of one that it may break to keep within a width.
    virtual int LinesWithin(const Font& font, std::string_view line, int width) const = 0;
};

// The order of sorted lists: without regard to case, in the user's language. Compare gives a value
// below, at or above 0. Texts that begin alike, up to an ASCII character, compare as what follows
// it.
class Collation {
 public:
    virtual ~Collation() = default;
    virtual int Compare(std::string_view a, std::string_view b) const = 0;
    // Of two texts the one with the lower number stands first; equal numbers tell nothing.
    virtual std::uint64_t Rank(std::string_view) const { return 0; }
};

// What drive, directory and file list controls show.
class DirectorySource {
 public:
    virtual ~DirectorySource() = default;
    // Names in no particular order, valid until the next call. Either list may be null: it is not
    // wanted then. False: the directory cannot be entered; nothing is changed then.
    [[nodiscard]] virtual bool Read(const std::string& path,
                                    std::vector<std::string_view>* directories,
                                    std::vector<std::string_view>* files) = 0;
    virtual bool Matches(const std::string& pattern, std::string_view name) = 0;
    // The drives or mount points that a user begins at, each by its path.
    virtual std::vector<std::string> Drives() { return {}; }
};

class WindowHost;

// What the controls ask of the world outside. All may be missing: then rows compare by their bytes,
// text is measured by a fixed width, and nobody keeps a list of the windows.
struct Toolkit {
    const TextMeasure* measure = nullptr;
    const Collation* collation = nullptr;
    DirectorySource* directories = nullptr;
    WindowHost* windows = nullptr;
};

}  // namespace kivu::forms
