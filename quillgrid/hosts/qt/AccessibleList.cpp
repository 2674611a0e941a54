#include "quillgrid/hosts/qt/AccessibleList.h"

#include "quillgrid/hosts/qt/Conversions.h"

namespace quillgrid::qt {

namespace {

/// Empty where the entry is scrolled out.
Rect AreaOf(const QGInputList& list, int row) {
    const ListPadLayout& layout = list.Layout();
    const std::int32_t place = row - list.ScrollPosition();
    if (place < 1 || place > layout.ShownRows) return {};
    return layout.RowAt(row, list.ScrollPosition()).Area.Moved(layout.Frame.Left, layout.Frame.Top);
}

} // namespace

QString AccessibleList::Name() const {
    QAccessibleInterface* row = parent();
    return row ? row->text(QAccessible::Name) : QString();
}

QString AccessibleList::Value() const {
    return List() ? ToQString(List()->Pad().Text()) : QString();
}

PadPart AccessibleList::Part(int number) const {
    ListPadWidget* list = List();
    const auto entry = list ? list->Pad().Item(number) : nullptr;
    if (!entry) return {};
    PadPart part{.Role = QAccessible::ListItem, .Name = ToQString(entry->Text())};
    part.Area = AreaOf(list->Pad(), number);
    part.State.selectable = true;
    part.State.selected = number == list->Pad().ListIndex();
    part.Presses = part.TakesFocus = true;
    return part;
}

int AccessibleList::Current() const {
    return List() ? List()->Pad().ListIndex() : 0;
}

int AccessibleList::CountIn(int container) const {
    return container == Whole && List() ? List()->Pad().RowCount() : 0;
}

int AccessibleList::NumberAt(Point point) const {
    if (!List()) return 0;
    const QGInputList& list = List()->Pad();
    const ListPadLayout& layout = list.Layout();
    if (!layout.Rows.Moved(layout.Frame.Left, layout.Frame.Top).Contains(point)) return 0;
    const std::int32_t row = layout.RowUnder(point.Y - layout.Frame.Top, list.ScrollPosition());
    return row >= 1 && row <= CountIn(Whole) ? row : 0;
}

void AccessibleList::BringIntoView(int number) {
    if (Part(number).Area.IsEmpty()) List()->Pad().ScrollTo(number - 1);
}

void AccessibleList::GoTo(int number) {
    if (!List()) return;
    BringIntoView(number);
    const Rect area = Part(number).Area;
    if (!area.IsEmpty()) List()->Pad().MouseMove({area.Left, area.Top}, false);
}

void AccessibleList::Press(int number) {
    if (!List()) return;
    BringIntoView(number);
    AccessiblePad::Press(number);
}

} // namespace quillgrid::qt
