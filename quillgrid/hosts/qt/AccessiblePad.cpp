#include "quillgrid/hosts/qt/AccessiblePad.h"

#include "quillgrid/hosts/qt/AccessibilityNotices.h"
#include "quillgrid/hosts/qt/AccessibleCalculator.h"
#include "quillgrid/hosts/qt/AccessibleCalendar.h"
#include "quillgrid/hosts/qt/AccessibleList.h"
#include "quillgrid/hosts/qt/AccessiblePart.h"
#include "quillgrid/hosts/qt/CalculatorWidget.h"
#include "quillgrid/hosts/qt/CalendarWidget.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

namespace quillgrid::qt {

namespace {

QAccessibleInterface* MakeFor(QWidget& face, QObject& object) {
    if (auto* list = dynamic_cast<ListPadWidget*>(&object)) return new AccessibleList(face, *list);
    if (auto* date = dynamic_cast<DatePadWidget*>(&object)) return new AccessibleCalendar(face, *date);
    if (auto* calc = dynamic_cast<CalcPadWidget*>(&object)) return new AccessibleCalculator(face, *calc);
    return nullptr;
}

/// The widgets around pads stand for them.
QAccessibleInterface* MakeAny(const QString&, QObject* object) {
    auto* face = qobject_cast<QWidget*>(object);
    if (!face) return nullptr;
    const bool around = qobject_cast<CalendarWidget*>(object) || qobject_cast<CalculatorWidget*>(object);
    if (!around) return MakeFor(*face, *object);
    for (QObject* inside : object->children()) {
        if (QAccessibleInterface* made = MakeFor(*face, *inside)) return made;
    }
    return nullptr;
}

} // namespace

void AccessiblePad::Install() {
    static const bool installed = [] {
        QAccessible::installFactory(&MakeAny);
        return true;
    }();
    static_cast<void>(installed);
}

AccessiblePad::AccessiblePad(QWidget& face, PadWidget& pad, QAccessible::Role role)
    : QAccessibleWidget(&face, role), pad_(&pad) {}

AccessiblePad::~AccessiblePad() {
    for (const auto& [number, id] : parts_)
        QAccessible::deleteAccessibleInterface(id);
}

AccessiblePad* AccessiblePad::Of(PadWidget& pad) {
    return dynamic_cast<AccessiblePad*>(QAccessible::queryAccessibleInterface(&pad.Face()));
}

bool AccessiblePad::IsOpen() const {
    return pad_ && (pad_ != widget() || pad_->isVisible());
}

int AccessiblePad::NumberIn(int container, int place) const {
    return place >= 0 && place < CountIn(container) ? place + 1 : 0;
}

int AccessiblePad::ContainerOf(int) const {
    return Whole;
}

AccessiblePart* AccessiblePad::Make(int number) const {
    return new AccessiblePart(*widget(), number);
}

QAccessibleInterface* AccessiblePad::PartAt(int number) const {
    const auto known = parts_.find(number);
    if (known != parts_.end()) return QAccessible::accessibleInterface(known->second);
    AccessiblePart* part = Make(number);
    parts_[number] = QAccessible::registerAccessibleInterface(part);
    return part;
}

void AccessiblePad::Press(int number) {
    const PadPart part = Part(number);
    const Point middle{(part.Area.Left + part.Area.Right) / 2, (part.Area.Top + part.Area.Bottom) / 2};
    if (part.Presses && !part.Area.IsEmpty()) pad_->Click(middle);
}

QRect AccessiblePad::OnScreen(const Rect& area) const {
    if (!pad_ || area.IsEmpty()) return {};
    return ToQRect(OnWidget(area, *pad_)).translated(pad_->mapToGlobal(QPoint()));
}

int AccessiblePad::NumberOnScreen(int container, QPoint point) const {
    if (!IsOpen()) return 0;
    int number = NumberAt(OnControl(pad_->mapFromGlobal(point), *pad_));
    while (number != 0 && ContainerOf(number) != container)
        number = ContainerOf(number);
    return number;
}

QAccessibleInterface* AccessiblePad::parent() const {
    const auto* owner = pad_ ? qobject_cast<const QuillgridWidget*>(pad_->Owner()) : nullptr;
    const AccessibilityNotices* notices = owner && IsOpen() ? AccessibilityNotices::Of(*owner) : nullptr;
    QAccessibleInterface* row = notices ? notices->CurrentRow() : nullptr;
    return row ? row : QAccessibleWidget::parent();
}

int AccessiblePad::childCount() const {
    return IsOpen() ? CountIn(Whole) : 0;
}

QAccessibleInterface* AccessiblePad::child(int index) const {
    return PartAt(IsOpen() ? NumberIn(Whole, index) : 0);
}

int AccessiblePad::indexOfChild(const QAccessibleInterface* child) const {
    const auto* part = dynamic_cast<const AccessiblePart*>(child);
    return part && part->isValid() && part->parent() == this ? PlaceOf(part->Number()) : -1;
}

QAccessibleInterface* AccessiblePad::childAt(int x, int y) const {
    const int number = NumberOnScreen(Whole, {x, y});
    return number == 0 ? nullptr : PartAt(number);
}

QAccessibleInterface* AccessiblePad::focusChild() const {
    const int current = IsOpen() ? Current() : 0;
    return current > 0 && pad_->HasKeys() ? PartAt(current) : nullptr;
}

QString AccessiblePad::text(QAccessible::Text which) const {
    QString own = QAccessibleWidget::text(which);
    if (!own.isEmpty() || !IsOpen()) return own;
    if (which == QAccessible::Name) return Name();
    return which == QAccessible::Value ? Value() : own;
}

QString AccessiblePad::Said(const char* english, const char* german) const {
    const bool speaksGerman = widget() && widget()->locale().language() == QLocale::German;
    return QString::fromUtf8(speaksGerman ? german : english);
}

void AccessiblePad::ForgetTold() {
    toldCurrent_ = 0;
    toldPart_.clear();
    toldName_.clear();
}

void AccessiblePad::Tell() {
    if (!IsOpen()) return;
    const QString name = Name();
    const int current = Current();
    const QString part = Part(current).Name;
    const bool renames = !toldName_.isEmpty() && toldName_ != name;
    const bool moves = current != toldCurrent_ || (part != toldPart_ && renames);
    const bool speaks = !moves && part != toldPart_;
    toldName_ = name;
    toldPart_ = part;
    toldCurrent_ = current;
    const auto tell = [](QAccessibleInterface* of, QAccessible::Event kind) {
        QAccessibleEvent event(of, kind);
        QAccessible::updateAccessibility(&event);
    };
    if (renames) tell(this, QAccessible::NameChanged);
    if (current == 0) return;
    if (speaks) tell(PartAt(current), QAccessible::NameChanged);
    if (!moves || !pad_->HasKeys()) return;
    tell(PartAt(current), QAccessible::Focus);
    tell(PartAt(current), QAccessible::Selection);
}

} // namespace quillgrid::qt
