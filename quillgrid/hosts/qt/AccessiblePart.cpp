#include "quillgrid/hosts/qt/AccessiblePart.h"

#include "quillgrid/hosts/qt/AccessiblePad.h"

namespace quillgrid::qt {

AccessiblePad* AccessiblePart::Pad() const {
    return face_ ? dynamic_cast<AccessiblePad*>(QAccessible::queryAccessibleInterface(face_)) : nullptr;
}

PadPart AccessiblePart::Told() const {
    const AccessiblePad* pad = Pad();
    return pad && number_ > 0 && pad->IsOpen() ? pad->Part(number_) : PadPart();
}

QAccessibleInterface* AccessiblePart::parent() const {
    AccessiblePad* pad = Pad();
    const int container = pad ? pad->ContainerOf(number_) : AccessiblePad::Whole;
    return container == AccessiblePad::Whole ? pad : pad->PartAt(container);
}

int AccessiblePart::childCount() const {
    return isValid() ? Pad()->CountIn(number_) : 0;
}

QAccessibleInterface* AccessiblePart::child(int index) const {
    const AccessiblePad* pad = Pad();
    return pad ? pad->PartAt(isValid() ? pad->NumberIn(number_, index) : 0) : nullptr;
}

int AccessiblePart::indexOfChild(const QAccessibleInterface* child) const {
    const auto* part = dynamic_cast<const AccessiblePart*>(child);
    return part && part->isValid() && part->parent() == this ? Pad()->PlaceOf(part->number_) : -1;
}

QAccessibleInterface* AccessiblePart::childAt(int x, int y) const {
    const int number = childCount() > 0 ? Pad()->NumberOnScreen(number_, {x, y}) : 0;
    return number == 0 ? nullptr : Pad()->PartAt(number);
}

QString AccessiblePart::text(QAccessible::Text which) const {
    const PadPart told = Told();
    switch (which) {
    case QAccessible::Name: return told.Name;
    case QAccessible::Description: return told.Description;
    case QAccessible::Accelerator: return told.Key;
    default: return {};
    }
}

QRect AccessiblePart::rect() const {
    const AccessiblePad* pad = Pad();
    return pad ? pad->OnScreen(Told().Area) : QRect();
}

QAccessible::State AccessiblePart::state() const {
    const PadPart told = Told();
    QAccessible::State state = told.State;
    if (told.Role == QAccessible::NoRole) {
        state.invalid = state.invisible = true;
        return state;
    }
    const bool current = Pad()->Current() == number_;
    state.disabled = state.disabled || !face_->isEnabled();
    state.invisible = !face_->isVisible();
    state.offscreen = told.Area.IsEmpty();
    state.focusable = told.TakesFocus;
    state.focused = told.TakesFocus && current && Pad()->focusChild() == this;
    return state;
}

void* AccessiblePart::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessiblePart::actionNames() const {
    const PadPart told = Told();
    QStringList names;
    if (told.TakesFocus) names << setFocusAction();
    if (told.Presses) names << pressAction();
    return names;
}

QStringList AccessiblePart::keyBindingsForAction(const QString& name) const {
    const QString key = Told().Key;
    return name == pressAction() && !key.isEmpty() ? QStringList{key} : QStringList();
}

// A press may be the end of the pad, and of this.
void AccessiblePart::doAction(const QString& name) {
    if (!actionNames().contains(name) || state().disabled) return;
    if (name == setFocusAction()) return Pad()->GoTo(number_);
    Pad()->Press(number_);
}

} // namespace quillgrid::qt
