#include "driver/properties.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "driver/windows.h"
#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/list_control.h"
#include "ui/colors.h"

namespace kivu::driver {

namespace {

using forms::Control;

struct Property {
    const char* name;
    // Empty: the control has no such property.
    std::function<std::optional<Json>(Control&)> get;
    // None: read only. False: the control cannot have it set.
    std::function<bool(Control&, const Json&)> set = nullptr;
};

// Runs the action on the control if it is one of these; true if it was.
template <typename... Kinds, typename Action>
bool OnKinds(Control& control, Action action) {
    const auto attempt = [&]<typename Kind>(Kind*) {
        auto* match = dynamic_cast<Kind*>(&control);
        if (match) action(*match);
        return match != nullptr;
    };
    return (attempt(static_cast<Kinds*>(nullptr)) || ...);
}

template <typename... Kinds, typename Read>
auto Reads(Read read) {
    return [read](Control& control) {
        std::optional<Json> value;
        OnKinds<Kinds...>(control, [&](auto& match) { value = Json(read(match)); });
        return value;
    };
}

template <typename... Kinds, typename Write>
auto Writes(Write write) {
    return [write](Control& control, const Json& value) {
        return OnKinds<Kinds...>(control, [&](auto& match) { write(match, value); });
    };
}

Json Number(double value) {
    const bool whole = value == std::floor(value) && std::fabs(value) < 1e9;
    return whole ? Json(static_cast<int>(value)) : Json(value);
}

Json ChosenRows(int row) {
    Json rows = Json::array();
    if (row >= 0) rows.push_back(row);
    return rows;
}

std::vector<std::string> RowsFrom(const Json& value, const char* what) {
    if (!value.is_array()) throw CommandError(std::string(what) + " must be an array of texts");
    std::vector<std::string> rows;
    for (const Json& row : value)
        rows.push_back(TextFrom(row, what));
    return rows;
}

template <typename List>
Json RowsOf(const List& list) {
    Json rows = Json::array();
    for (int row = 0; row < list.ListCount(); ++row)
        rows.push_back(list.List(row));
    return rows;
}

std::vector<Property> PlaceProperties() {
    const auto place = [](const char* name, int (Control::*get)() const,
                          void (Control::*set)(int)) {
        return Property{name, Reads<Control>([get](Control& c) { return (c.*get)(); }),
                        Writes<Control>([name, set](Control& c, const Json& value) {
                            (c.*set)(WholeFrom(value, name));
                        })};
    };
    return {place("Left", &Control::Left, &Control::SetLeft),
            place("Top", &Control::Top, &Control::SetTop),
            place("Width", &Control::Width, &Control::SetWidth),
            place("Height", &Control::Height, &Control::SetHeight)};
}

std::vector<Property> LookProperties() {
    return {
        {"Visible", Reads<Control>([](Control& c) { return c.Visible(); }),
         Writes<Control>([](Control& c, const Json& v) { c.SetVisible(FlagFrom(v, "Visible")); })},
        {"Enabled", Reads<Control>([](Control& c) { return c.Enabled(); }),
         Writes<Control>([](Control& c, const Json& v) { c.SetEnabled(FlagFrom(v, "Enabled")); })},
        {"FontSize", Reads<Control>([](Control& c) { return Number(c.FontSize()); }),
         Writes<Control>([](Control& c, const Json& v) {
             if (!v.is_number()) throw CommandError("FontSize must be a number");
             c.SetFontSize(v.get<double>());
         })},
        {"FontName", Reads<Control>([](Control& c) { return c.GetFont().name; }),
         Writes<Control>([](Control& c, const Json& v) {
             forms::Font font = c.GetFont();
             font.name = TextFrom(v, "FontName");
             c.SetFont(font);
         })},
        {"BackColor", Reads<Control>([](Control& c) { return ColorText(c.BackColor()); }),
         Writes<Control>(
             [](Control& c, const Json& v) { c.SetBackColor(ColorFrom(v, "BackColor")); })},
        {"ForeColor", Reads<Control>([](Control& c) { return ColorText(c.ForeColor()); }),
         Writes<Control>(
             [](Control& c, const Json& v) { c.SetForeColor(ColorFrom(v, "ForeColor")); })},
        {"ToolTipText", Reads<Control>([](Control& c) { return c.ToolTipText(); }),
         Writes<Control>(
             [](Control& c, const Json& v) { c.SetToolTipText(TextFrom(v, "ToolTipText")); })},
        {"Picture", Reads<Control>([](Control& c) { return c.GetPicture().source; })},
    };
}

std::vector<Property> TextProperties() {
    using namespace forms;
    return {
        {"Caption",
         Reads<Form, Label, CommandButton, ValueButton, Frame>([](auto& c) { return c.Caption(); }),
         Writes<Form, Label, CommandButton, ValueButton, Frame>(
             [](auto& c, const Json& v) { c.SetCaption(TextFrom(v, "Caption")); })},
        {"Text",
         [](Control& control) {
             auto value = Reads<TextBox, ComboBox>([](auto& c) { return c.Text(); })(control);
             return value ? value
                          : Reads<ListBox>([](auto& c) { return c.SelectedText(); })(control);
         },
         Writes<TextBox, ComboBox>([](auto& c, const Json& v) { c.SetText(TextFrom(v, "Text")); })},
        {"SelStart", Reads<TextBox, ComboBox>([](auto& c) { return c.SelStart(); }),
         Writes<TextBox, ComboBox>([](auto& c, const Json& v) {
             c.SetSelection(WholeFrom(v, "SelStart"), c.SelLength());
         })},
        {"SelLength", Reads<TextBox, ComboBox>([](auto& c) { return c.SelLength(); }),
         Writes<TextBox, ComboBox>([](auto& c, const Json& v) {
             c.SetSelection(c.SelStart(), WholeFrom(v, "SelLength"));
         })},
        {"Value", Reads<ValueButton, Slider>([](auto& c) { return c.Value(); }),
         Writes<ValueButton, Slider>(
             [](auto& c, const Json& v) { c.SetValue(WholeFrom(v, "Value")); })},
        {"ShownWidth", Reads<ComboBox>([](auto& c) { return c.ShownWidth(); })},
        {"MultiLine", Reads<TextBox>([](auto& c) { return c.IsMultiLine(); })},
        {"ShownText", Reads<Label>([](auto& c) { return c.ShownText(); })},
        {"Hint", Reads<Label, ListBox>([](auto& c) { return c.Hint(); })},
        {"Interval", Reads<Timer>([](auto& c) { return c.Interval(); }),
         Writes<Timer>([](auto& c, const Json& v) { c.SetInterval(WholeFrom(v, "Interval")); })},
    };
}

std::vector<Property> ListProperties() {
    using namespace forms;
    return {
        {"List", Reads<ListControl, DirectoryControl>([](auto& c) { return RowsOf(c); }),
         Writes<ListControl>([](auto& c, const Json& v) {
             std::vector<std::string> rows = RowsFrom(v, "List");
             c.Clear();
             c.AddItems(std::move(rows));
         })},
        {"ListCount", Reads<ListControl, DirectoryControl>([](auto& c) { return c.ListCount(); })},
        {"ListIndex", Reads<ListControl, DirectoryControl>([](auto& c) { return c.ListIndex(); }),
         Writes<ListControl, DirectoryControl>(
             [](auto& c, const Json& v) { c.SetListIndex(WholeFrom(v, "ListIndex")); })},
        {"Selected",
         [](Control& control) {
             auto value = Reads<ListBox>([](auto& c) { return Json(c.SelectedRows()); })(control);
             return value ? value : Reads<ListControl, DirectoryControl>([](auto& c) {
                 return ChosenRows(c.ListIndex());
             })(control);
         }},
        {"MultiSelect", Reads<ListBox>([](auto& c) { return c.MultiSelect(); })},
        {"MeantRow", Reads<ListBox>([](auto& c) { return c.MeantRow(); })},
        {"Path", Reads<DirListBox, FileListBox>([](auto& c) { return c.Path(); }),
         Writes<DirListBox, FileListBox>(
             [](auto& c, const Json& v) { c.SetPath(TextFrom(v, "Path")); })},
        {"Pattern", Reads<FileListBox>([](auto& c) { return c.Pattern(); }),
         Writes<FileListBox>([](auto& c, const Json& v) { c.SetPattern(TextFrom(v, "Pattern")); })},
        {"Drive", Reads<DriveListBox>([](auto& c) { return c.Drive(); }),
         Writes<DriveListBox>([](auto& c, const Json& v) { c.SetDrive(TextFrom(v, "Drive")); })},
    };
}

std::vector<Property> WindowProperties() {
    using forms::Form;
    return {
        {"WindowState", Reads<Form>([](auto& c) { return static_cast<int>(c.State()); }),
         Writes<Form>([](auto& c, const Json& v) {
             const int state = WholeFrom(v, "WindowState");
             if (state < 0 || state > 2) throw CommandError("WindowState must be 0, 1 or 2");
             c.SetState(static_cast<forms::WindowState>(state));
         })},
        {"CornerRadius", Reads<Form>([](auto& c) { return c.CornerRadius(); })},
        {"HasFrame", Reads<Form>([](auto& c) { return c.HasFrame(); })},
        {"ToolWindow", Reads<Form>([](auto& c) { return c.IsToolWindow(); })},
        {"Topmost", Reads<Form>([](auto& c) { return c.IsTopmost(); })},
        {"AboveAll", Reads<Form>([](auto& c) { return c.IsAboveAll(); })},
        {"Activates", Reads<Form>([](auto& c) { return c.Activates(); })},
    };
}

const std::vector<Property>& Properties() {
    static const std::vector<Property> all = [] {
        std::vector<Property> properties;
        for (auto group : {ListProperties(), TextProperties(), LookProperties(), PlaceProperties(),
                           WindowProperties()}) {
            properties.insert(properties.end(), group.begin(), group.end());
        }
        return properties;
    }();
    return all;
}

const Property* Find(const std::string& name) {
    for (const Property& property : Properties()) {
        if (SameName(property.name, name)) return &property;
    }
    return nullptr;
}

const char* KindName(const Control& control) {
    static constexpr const char* names[] = {
        "Form",          "ListBox",      "ComboBox",   "TextBox",    "Label", "CheckBox",
        "CommandButton", "OptionButton", "Slider",     "PictureBox", "Image", "Frame",
        "Timer",         "DriveListBox", "DirListBox", "FileListBox"};
    return names[static_cast<std::size_t>(control.GetKind())];
}

CommandError Missing(const Control& control, const std::string& name) {
    return CommandError(NameOf(control) + " has no property " + name);
}

}  // namespace

std::string ColorText(forms::Color color) {
    return ui::LongToHex(color);
}

forms::Color ColorFrom(const Json& value, const std::string& what) {
    const std::string& text = TextFrom(value, what);
    const bool digits = text.size() == 7 && text[0] == '#' &&
                        text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
    if (!digits) throw CommandError(what + " must be a colour such as \"#0052BC\"");
    return ui::HexToLong(text);
}

bool HasProperty(Control& control, const std::string& name) {
    const Property* property = Find(name);
    return property && property->get(control);
}

Json GetProperty(Control& control, const std::string& name) {
    const Property* property = Find(name);
    auto value = property ? property->get(control) : std::nullopt;
    if (!value) throw Missing(control, name);
    return std::move(*value);
}

void SetProperty(Control& control, const std::string& name, const Json& value) {
    if (!HasProperty(control, name)) throw Missing(control, name);
    const Property* property = Find(name);
    if (!property->set || !property->set(control, value))
        throw CommandError(NameOf(control) + "." + property->name + " cannot be set");
}

Json AllProperties(Control& control) {
    Json all = Json::object();
    all["Kind"] = KindName(control);
    for (const Property& property : Properties()) {
        if (auto value = property.get(control)) all[property.name] = std::move(*value);
    }
    return all;
}

}  // namespace kivu::driver
