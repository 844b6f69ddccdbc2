#pragma once

#include <QAccessible>
#include <QPointer>
#include <unordered_map>

#include "view/accessible_parts.h"
#include "view/mirror.h"

namespace kivu::view {

// What an assistive tool is told of a control, and what it may do with it: all of that as the
// user's hands do, through the model.
class AccessibleControl : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
    explicit AccessibleControl(Mirror& mirror);
    ~AccessibleControl() override;

    // The tabs that lie on a container, as one thing.
    QAccessibleInterface* TabList();

    bool isValid() const override;
    QObject* object() const override { return widget; }
    QWindow* window() const override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

 protected:
    // Null once the control has gone from the screen.
    Mirror* Find() const;
    // The user's hands reach it: whatever they cannot do no tool does for them.
    bool IsOpen() const;
    forms::Control& Control() const { return Find()->GetControl(); }
    virtual void Press();

    QPointer<QWidget> widget;

 private:
    std::vector<Part> Parts() const;
    QAccessibleInterface* Of(const Part& part) const;

    QAccessible::Id tabList = 0;
};

// A field, or a slider's number.
class AccessibleValue : public AccessibleControl, public QAccessibleValueInterface {
 public:
    using AccessibleControl::AccessibleControl;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }
};

// A list, or the rows of a drop-down. A row is made when somebody asks for it.
class AccessibleRows : public AccessibleControl {
 public:
    using AccessibleControl::AccessibleControl;
    ~AccessibleRows() override;

    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

 private:
    mutable std::unordered_map<int, QAccessible::Id> rows;
};

// The mirror that a widget belongs to; null for none.
Mirror* MirrorOfWidget(const QWidget* widget);
// What the factory makes of a control's widget.
QAccessibleInterface* MakeAccessible(Mirror& mirror);
QAccessibleInterface* AccessibleOf(Mirror* mirror);

}  // namespace kivu::view
