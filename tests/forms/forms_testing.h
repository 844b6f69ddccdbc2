#pragma once

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/form.h"
#include "forms/list_control.h"
#include "forms/user_input.h"

namespace kivu::forms {

using testing::ElementsAre;
using testing::IsEmpty;

// What has happened, in its order.
using Log = std::vector<std::string>;

// Compares as a screen list does, and counts how often it is asked.
class CountingCollation : public Collation {
 public:
    int Compare(std::string_view a, std::string_view b) const override {
        ++comparisons;
        for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
            const int x = Lower(a[i]), y = Lower(b[i]);
            if (x != y) return x - y;
        }
        return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
    }
    mutable long comparisons = 0;

 private:
    static int Lower(char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; }
};

// Every byte is 100 twips wide at 10 points, a line 200 twips high.
class FixedMeasure : public TextMeasure {
 public:
    int Width(const Font& font, std::string_view line) const override {
        return static_cast<int>(static_cast<double>(line.size()) * font.size * 10);
    }
    int LineHeight(const Font& font) const override { return static_cast<int>(font.size * 20); }
    int LinesWithin(const Font& font, std::string_view line, int width) const override {
        return 1 + std::max(0, Width(font, line) - 1) / width;
    }
};

// Writes "name aspect" for each change, with what the control is like at that moment.
class LoggingObserver : public Observer {
 public:
    explicit LoggingObserver(Log& log) : log(log) {}
    void Changed(Control& control, Aspect aspect) override {
        log.push_back(control.Name() + " " + Word(aspect));
        if (also) also(control, aspect);
    }
    void DragWindow() override { log.push_back("drag"); }
    std::function<void(Control&, Aspect)> also;

 private:
    static std::string Word(Aspect aspect) {
        static const char* const words[] = {"visible",   "enabled",     "geometry",   "font",
                                            "colors",    "text",        "toolTip",    "rows",
                                            "selection", "picture",     "zOrder",     "timer",
                                            "focus",     "windowState", "windowFrame"};
        return words[static_cast<int>(aspect)];
    }
    Log& log;
};

// A function that writes a line into the log.
inline auto Writes(Log& log, std::string line) {
    return [&log, line = std::move(line)](auto&&...) { log.push_back(line); };
}

inline std::vector<std::string> RowsOf(const ListControl& list) {
    return list.Rows();
}

}  // namespace kivu::forms
