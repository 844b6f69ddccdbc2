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
    // One that the window is gripped by is no button, nor one that does not tell what it is for.
    const bool tells = !label.ToolTipText().empty();
    if (IsClickable(label) && !label.onMouseDown && tells) return Meaning::button;
    return TextOf(label).isEmpty() && label.Hint().empty() ? Meaning::nothing : Meaning::text;
}

// In front of it on the same line, as the eye finds it.
const forms::Label* LabelBeside(const forms::Control& control) {
    const forms::Label* best = nullptr;
    const int middle = control.Top() + control.Height() / 2;
    for (const forms::Control* other : control.Parent()->Children()) {
        const forms::Label* label = LabelOf(*other);
        if (!label || !label->Visible() || MeaningOf(*label) != Meaning::text) continue;
        // What explains itself names nothing else.
        if (!label->ToolTipText().empty()) continue;
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

// The pictures that take turns on a switch; none: the control is something else.
std::vector<forms::Control*> PicturesOf(const forms::Control& control) {
    if (control.GetKind() != forms::Kind::frame) return {};
    const auto& on = static_cast<const forms::Frame&>(control).Children();
    const auto fits = [&](const forms::Control* one) {
        return one->GetKind() == forms::Kind::image && one->onClick &&
               !one->ToolTipText().empty() && one->ToolTipText() == on.front()->ToolTipText();
    };
    if (on.size() < 2 || !std::all_of(on.begin(), on.end(), fits)) return {};
    return on;
}

forms::Control* PictureInFront(const forms::Control& theSwitch) {
    const std::vector<forms::Control*> pictures = PicturesOf(theSwitch);
    const auto shown = std::find_if(pictures.begin(), pictures.end(),
                                    [](const forms::Control* one) { return one->Visible(); });
    return shown == pictures.end() ? nullptr : *shown;
}

// A list's, or those of the one that the drop-down leads.
QString WordsForRows(const forms::Control& control) {
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control))
        return list->ListCount() > 0 ? QString() : Read(list->Hint());
    if (control.GetKind() != forms::Kind::comboBox) return {};
    for (const forms::Control* other : control.ParentForm()->Controls()) {
        const auto* led = dynamic_cast<const forms::ListBox*>(other);
        if (led && led->Leader() == &control) return WordsForRows(*led);
    }
    return {};
}

// A window that shows them has little else to tell.
QString FirstSteps(const forms::Control& control) {
    if (!control.HasFocus()) return {};
    for (const forms::Control* other : control.ParentForm()->Controls()) {
        const forms::Label* label = LabelOf(*other);
        if (label && label->Visible() && !label->Hint().empty()) return Read(label->Hint());
    }
    return {};
}

// A picture without words is known by its file.
QString NameOfPicture(const forms::Control& control) {
    if (!control.ToolTipText().empty()) return Read(control.ToolTipText());
    if (!control.GetPicture().pixels) return {};
    QString name = ToQt(control.GetPicture().source);
    name = name.mid(std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1);
    return name.left(name.lastIndexOf(u'.'));
}

// A click anywhere on the window does the same, and it is not moved by its surface.
bool IsOfSurface(const forms::Control& control) {
    const forms::Form& form = FormOf(control);
    return form.onClick && !form.onMouseDown && control.ToolTipText().empty();
}

// One without a name would be a button for nobody knows what.
Meaning MeaningOfPicture(const forms::Control& control) {
    const bool button = control.onClick && !IsOfSurface(control) && !IsSwitch(*control.Parent());
    return button && !NameOfPicture(control).isEmpty() ? Meaning::button : Meaning::nothing;
}

Meaning MeaningOfFrame(const forms::Frame& frame) {
    if (IsSwitch(frame)) return PictureInFront(frame) ? Meaning::check : Meaning::nothing;
    return frame.Caption().empty() ? Meaning::nothing : Meaning::group;
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

bool IsSwitch(const forms::Control& control) {
    return !PicturesOf(control).empty();
}

bool IsOn(const forms::Control& theSwitch) {
    const std::vector<forms::Control*> pictures = PicturesOf(theSwitch);
    return !pictures.empty() && pictures.front()->Visible();
}

forms::Control& ClickedOf(forms::Control& control) {
    forms::Control* picture = PictureInFront(control);
    return picture ? *picture : control;
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
            return MeaningOfFrame(static_cast<const forms::Frame&>(control));
        case forms::Kind::image:
            return MeaningOfPicture(control);
        case forms::Kind::pictureBox:
            // With something on it, it is a ground.
            if (!static_cast<const forms::Container&>(control).Children().empty()) break;
            return MeaningOfPicture(control);
        case forms::Kind::timer:
            break;
    }
    return Meaning::nothing;
}

QString NameOf(const forms::Control& control) {
    if (const auto* label = LabelOf(control)) return NameOfLabel(*label);
    if (const forms::Control* picture = PictureInFront(control)) return NameOfPicture(*picture);
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
    QStringList parts;
    const QString tip = Read(control.ToolTipText());
    if (!NameOf(control).contains(tip)) parts << tip;
    const QString rows = WordsForRows(control);
    const QString words = rows.isEmpty() ? FirstSteps(control) : rows;
    if (!words.isEmpty()) parts << words;
    return parts.join(u' ');
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
