#include "view/accessible_parts.h"

#include <algorithm>

#include "forms/access_keys.h"
#include "forms/list_control.h"
#include "view/text.h"
#include "view/text_block.h"

namespace kivu::view {

namespace {

const forms::Label* LabelOf(const forms::Control& control) {
    return dynamic_cast<const forms::Label*>(&control);
}

const forms::Form& FormOf(const forms::Control& control) {
    return control.GetKind() == forms::Kind::form ? static_cast<const forms::Form&>(control)
                                                  : *control.ParentForm();
}

bool HasWord(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

// In one line, without the air that captions are given.
QString Read(const std::string& text) {
    return SplitLines(ToQt(text)).join(u' ').simplified();
}

QString TextOf(const forms::Label& label) {
    const std::string& shown = label.ShownText().empty() ? label.Caption() : label.ShownText();
    return Read(label.MarksLetter() ? forms::PlainCaption(shown) : shown);
}

Meaning MeaningOfLabel(const forms::Label& label) {
    if (label.IsLink()) return Meaning::link;
    if (IsTab(label)) return Meaning::tab;
    // One that the window is gripped by is no button.
    if (IsClickable(label) && !label.onMouseDown) return Meaning::button;
    return TextOf(label).isEmpty() && label.Hint().empty() ? Meaning::nothing : Meaning::text;
}

// In front of it on the same line, as the eye finds it.
const forms::Label* LabelBeside(const forms::Control& control) {
    const forms::Label* best = nullptr;
    const int middle = control.Top() + control.Height() / 2;
    for (const forms::Control* other : control.Parent()->Children()) {
        const forms::Label* label = LabelOf(*other);
        if (!label || !label->Visible() || MeaningOf(*label) != Meaning::text) continue;
        const bool sameLine = label->Top() <= middle && middle <= label->Bottom();
        if (!sameLine || label->Left() >= control.Left()) continue;
        if (!best || label->Left() > best->Left()) best = label;
    }
    return best;
}

// The label whose letter leads to it.
const forms::Label* LabelInFront(const forms::Control& control) {
    const forms::Label* last = nullptr;
    for (const forms::Control* other : control.ParentForm()->Controls()) {
        if (other == &control) return last;
        if (other->TakesFocus()) last = nullptr;
        const forms::Label* label = LabelOf(*other);
        if (label && label->MarksLetter() && other->Parent() == control.Parent()) last = label;
    }
    return nullptr;
}

const forms::Label* MarkedTab(const forms::Container& container) {
    for (const forms::Label* tab : TabsOf(container)) {
        if (IsMarked(*tab)) return tab;
    }
    return nullptr;
}

QString NameOfField(const forms::Control& control) {
    if (const forms::Label* label = LabelInFront(control)) return TextOf(*label);
    if (const forms::Label* label = LabelBeside(control)) return TextOf(*label);
    return Read(control.ToolTipText());
}

QString NameOfList(const forms::Control& control) {
    const auto* list = dynamic_cast<const forms::ListBox*>(&control);
    if (list && list->Leader()) return NameOfField(*list->Leader());
    if (const forms::Label* label = LabelInFront(control)) return TextOf(*label);
    if (const forms::Label* tab = MarkedTab(*control.Parent())) return NameOf(*tab);
    return NameOfField(control);
}

// A picture without words is known by its file.
QString NameOfPicture(const forms::Control& control) {
    if (!control.ToolTipText().empty()) return Read(control.ToolTipText());
    if (!control.GetPicture().pixels) return {};
    QString name = ToQt(control.GetPicture().source);
    name = name.mid(std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1);
    return name.left(name.lastIndexOf(u'.'));
}

// "Df0:" calls for the file that its tool tip names.
QString NameByCaption(const std::string& caption, const forms::Control& control) {
    const QString name = Read(forms::PlainCaption(caption));
    const QString tip = Read(control.ToolTipText());
    if (!HasWord(name)) return tip.isEmpty() ? name : tip;
    return name.endsWith(u':') && !tip.isEmpty() ? name + u' ' + tip : name;
}

QString NameOfLabel(const forms::Label& label) {
    QString name = TextOf(label);
    // One whose words are cut tells them by its tool tip.
    const bool cut = IsTab(label) && !label.ShownText().empty();
    if ((cut || !HasWord(name)) && !label.ToolTipText().empty()) name = Read(label.ToolTipText());
    const QString hint = Read(label.Hint());
    return name.isEmpty() || hint.isEmpty() ? name + hint : name + u' ' + hint;
}

void AddParts(const forms::Container& container, std::vector<Part>& parts) {
    for (forms::Control* control : FormOf(container).Controls()) {
        if (control->Parent() != &container || !control->Visible()) continue;
        const Meaning meaning = MeaningOf(*control);
        const auto* inner = dynamic_cast<const forms::Container*>(control);
        if (meaning == Meaning::tab) {
            const Part list{control->Parent(), true};
            if (std::find(parts.begin(), parts.end(), list) == parts.end()) parts.push_back(list);
        } else if (meaning != Meaning::nothing) {
            parts.push_back({control, false});
        } else if (inner) {
            AddParts(*inner, parts);
        }
    }
}

}  // namespace

bool IsClickable(const forms::Label& label) {
    return label.onClick && !label.IsLink();
}

bool IsTab(const forms::Label& label) {
    const auto fits = [&](const forms::Control& control) {
        const forms::Label* one = LabelOf(control);
        return one && IsClickable(*one) && !one->onMouseDown && one->Top() == label.Top();
    };
    if (!fits(label)) return false;
    const auto& beside = label.Parent()->Children();
    return std::count_if(beside.begin(), beside.end(),
                         [&](const forms::Control* one) { return fits(*one); }) > 1;
}

bool IsMarked(const forms::Label& label) {
    return IsClickable(label) &&
           (label.IsOpaque() || label.BackColor() != label.ParentForm()->BackColor());
}

Meaning MeaningOf(const forms::Control& control) {
    switch (control.GetKind()) {
        case forms::Kind::form:
            return Meaning::window;
        case forms::Kind::label:
            return MeaningOfLabel(static_cast<const forms::Label&>(control));
        case forms::Kind::commandButton:
            return Meaning::button;
        case forms::Kind::checkBox:
            return Meaning::check;
        case forms::Kind::optionButton:
            return Meaning::option;
        case forms::Kind::slider:
            return Meaning::slider;
        case forms::Kind::textBox:
            return Meaning::field;
        case forms::Kind::comboBox:
            return Meaning::choice;
        case forms::Kind::listBox:
        case forms::Kind::driveListBox:
        case forms::Kind::dirListBox:
        case forms::Kind::fileListBox:
            return Meaning::list;
        case forms::Kind::frame:
            return static_cast<const forms::Frame&>(control).Caption().empty() ? Meaning::nothing
                                                                               : Meaning::group;
        case forms::Kind::image:
            return control.onClick ? Meaning::button : Meaning::nothing;
        case forms::Kind::pictureBox: {
            // With something on it, it is a ground.
            const bool empty = static_cast<const forms::Container&>(control).Children().empty();
            return control.onClick && empty ? Meaning::button : Meaning::nothing;
        }
        case forms::Kind::timer:
            break;
    }
    return Meaning::nothing;
}

QString NameOf(const forms::Control& control) {
    if (const auto* label = LabelOf(control)) return NameOfLabel(*label);
    switch (MeaningOf(control)) {
        case Meaning::window:
            return Read(static_cast<const forms::Form&>(control).Caption());
        case Meaning::group:
            return Read(static_cast<const forms::Frame&>(control).Caption());
        case Meaning::list:
            return NameOfList(control);
        case Meaning::field:
        case Meaning::choice:
        case Meaning::slider:
            return NameOfField(control);
        case Meaning::nothing:
            return {};
        default:
            break;
    }
    const std::string* caption = forms::CaptionWithAccessKey(control);
    return caption ? NameByCaption(*caption, control) : NameOfPicture(control);
}

QString DescriptionOf(const forms::Control& control) {
    const QString tip = Read(control.ToolTipText());
    return NameOf(control).contains(tip) ? QString() : tip;
}

std::vector<Part> PartsOf(const forms::Container& container) {
    std::vector<Part> parts;
    AddParts(container, parts);
    return parts;
}

std::vector<forms::Label*> TabsOf(const forms::Container& container) {
    std::vector<forms::Label*> tabs;
    for (forms::Control* control : FormOf(container).Controls()) {
        auto* label = dynamic_cast<forms::Label*>(control);
        if (label && label->Parent() == &container && label->Visible() && IsTab(*label))
            tabs.push_back(label);
    }
    return tabs;
}

forms::Control& AroundOf(const forms::Control& control) {
    forms::Control* around = control.Parent();
    while (around->Parent() && MeaningOf(*around) == Meaning::nothing)
        around = around->Parent();
    return *around;
}

}  // namespace kivu::view
