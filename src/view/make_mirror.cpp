#include "view/make_mirror.h"

#include "forms/directory_controls.h"
#include "view/button_mirror.h"
#include "view/combo_box_mirror.h"
#include "view/label_mirror.h"
#include "view/list_mirror.h"
#include "view/panel_mirror.h"
#include "view/slider_mirror.h"
#include "view/text_box_mirror.h"
#include "view/text_lines_mirror.h"
#include "view/timer_mirror.h"

namespace kivu::view {

std::unique_ptr<Mirror> MakeMirror(forms::Control& control, QWidget* parent, MirrorHost& host) {
    switch (control.GetKind()) {
        case forms::Kind::listBox: {
            auto rows = std::make_unique<ListRowSource>(static_cast<forms::ListBox&>(control));
            return std::make_unique<ListMirror>(control, std::move(rows), parent, host);
        }
        case forms::Kind::driveListBox:
        case forms::Kind::dirListBox:
        case forms::Kind::fileListBox: {
            auto& list = static_cast<forms::DirectoryControl&>(control);
            auto rows = std::make_unique<DirectoryRowSource>(list);
            return std::make_unique<ListMirror>(control, std::move(rows), parent, host);
        }
        case forms::Kind::comboBox:
            return std::make_unique<ComboBoxMirror>(static_cast<forms::ComboBox&>(control), parent,
                                                    host);
        case forms::Kind::textBox: {
            auto& box = static_cast<forms::TextBox&>(control);
            if (box.IsMultiLine()) return std::make_unique<TextLinesMirror>(box, parent, host);
            return std::make_unique<TextBoxMirror>(box, parent, host);
        }
        case forms::Kind::label:
            return std::make_unique<LabelMirror>(static_cast<forms::Label&>(control), parent, host);
        case forms::Kind::commandButton:
            return std::make_unique<ButtonMirror>(static_cast<forms::CommandButton&>(control),
                                                  parent, host);
        case forms::Kind::checkBox:
        case forms::Kind::optionButton:
            return std::make_unique<ButtonMirror>(static_cast<forms::ValueButton&>(control), parent,
                                                  host);
        case forms::Kind::slider:
            return std::make_unique<SliderMirror>(static_cast<forms::Slider&>(control), parent,
                                                  host);
        case forms::Kind::timer:
            return std::make_unique<TimerMirror>(static_cast<forms::Timer&>(control), host);
        case forms::Kind::form:
        case forms::Kind::pictureBox:
        case forms::Kind::image:
        case forms::Kind::frame:
            break;
    }
    return std::make_unique<PanelMirror>(control, parent, host);
}

}  // namespace kivu::view
