#pragma once

#include <QAccessible>
#include <memory>
#include <string>
#include <vector>

#include "view/listening.h"
#include "view/shown_form.h"

namespace kivu::tests {
// What the toolkit has told of, as "event name".
inline std::vector<std::string>* told = nullptr;
inline void NoteEvent(QAccessibleEvent* event) {
    if (!told) return;
    const QAccessibleInterface* of = event->accessibleInterface();
    const std::string name = of ? of->text(QAccessible::Name).toStdString() : "";
    if (event->type() == QAccessible::Focus) told->push_back("focus " + name);
    if (event->type() == QAccessible::NameChanged) told->push_back("name " + name);
    if (event->type() == QAccessible::DescriptionChanged) told->push_back("description " + name);
    if (event->type() != QAccessible::StateChanged) return;
    if (static_cast<QAccessibleStateChangeEvent*>(event)->changedStates().checked)
        told->push_back("checked " + name);
}

// Controls that join the form late outlive its view.
struct Late {
    template <typename Kind>
    Kind& Add(forms::Form& form, const char* name) {
        controls.push_back(std::make_unique<Kind>(&form, name));
        return static_cast<Kind&>(*controls.back());
    }
    std::vector<std::unique_ptr<forms::Control>> controls;
};

class AccessibleTest : protected Late, public ShownForm {
 protected:
    AccessibleTest() {
        SetListening(true);
        handler = QAccessible::installUpdateHandler(NoteEvent);
        told = &events;
    }
    ~AccessibleTest() override {
        told = nullptr;
        QAccessible::installUpdateHandler(handler);
        SetListening(false);
    }

    QAccessibleInterface* Of(const char* name) {
        return QAccessible::queryAccessibleInterface(Find(name));
    }
    QAccessibleInterface* Window() { return QAccessible::queryAccessibleInterface(&view.Window()); }
    static std::string Name(const QAccessibleInterface* of) {
        return of ? of->text(QAccessible::Name).toStdString() : "(nobody)";
    }
    static std::vector<std::string> Children(const QAccessibleInterface* of) {
        std::vector<std::string> names;
        for (int i = 0; i < of->childCount(); ++i) {
            const QAccessibleInterface* child = of->child(i);
            EXPECT_EQ(child->parent(), of) << Name(child);
            EXPECT_EQ(of->indexOfChild(child), i) << Name(child);
            names.push_back(Name(child));
        }
        return names;
    }
    void Do(QAccessibleInterface* of, const QString& action) {
        ASSERT_TRUE(of && of->actionInterface());
        of->actionInterface()->doAction(action);
        Settle();
    }
    void Press(QAccessibleInterface* of) { Do(of, QAccessibleActionInterface::pressAction()); }

    // Two tabs over the list; the second one is in front.
    void AddTabs() {
        int left = 300;
        for (const char* name : {"First", "Second"}) {
            auto& tab = Add<forms::Label>(form, name);
            tab.SetAutoSize(true);
            tab.Move(left, 0, 900, 270);
            tab.SetBackColor(form.BackColor());
            tab.onClick = form.Note(name);
            tabs.push_back(&tab);
            left += 1200;
        }
        tabs[0]->SetCaption(" Favourites (2) ");
        tabs[1]->SetCaption(" All ");
        tabs[1]->SetOpaque(true);
    }

    // Where the screen cannot be taken to have tools; tests/program asks one that has them.
    static bool ToldToNobody() { return !QAccessible::isActive(); }

    std::vector<forms::Label*> tabs;
    std::vector<std::string> events;
    QAccessible::UpdateHandler handler = nullptr;
};

}  // namespace kivu::tests
