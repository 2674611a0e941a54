#include "quillgrid/hosts/qt/QtPads.h"

#include "quillgrid/hosts/qt/CalcPadWidget.h"
#include "quillgrid/hosts/qt/DatePadWidget.h"
#include "quillgrid/hosts/qt/ListPadWidget.h"

namespace quillgrid::qt {

namespace {

template <typename Pad>
Pad& MadeOnce(Pad*& pad, const QWidget& owner) {
    if (!pad) pad = new Pad(owner);
    return *pad;
}

} // namespace

QtPads::QtPads(const QWidget& owner) : owner_(owner), guard_(owner) {
    guard_.Close = [this] { Close(); };
    guard_.IsPad = [this](const QWidget& widget) { return IsPad(widget); };
}

QtPads::~QtPads() {
    guard_.Stop();
    for (QWidget* pad :
         {static_cast<QWidget*>(list_), static_cast<QWidget*>(date_), static_cast<QWidget*>(calc_)}) {
        if (!pad) continue;
        pad->hide();
        pad->deleteLater();
    }
}

QGInputList& QtPads::Listpad() {
    return MadeOnce(list_, owner_).Pad();
}

QGCalendar& QtPads::DatePad() {
    return MadeOnce(date_, owner_).Pad();
}

QGCalcpad& QtPads::CalcPad() {
    return MadeOnce(calc_, owner_).Pad();
}

QWidget& QtPads::WidgetOf(PadKind kind) {
    switch (kind) {
    case PadKind::List: return MadeOnce(list_, owner_);
    case PadKind::Date: return MadeOnce(date_, owner_);
    default: return MadeOnce(calc_, owner_);
    }
}

PadWindow& QtPads::Window(PadKind kind) {
    auto& window = windows_[static_cast<std::size_t>(kind)];
    if (!window) {
        window = std::make_unique<QtPadWindow>(WidgetOf(kind), owner_);
        window->Opens = [this] { guard_.Start(); };
        window->Closes = [this] { guard_.Stop(); };
    }
    return *window;
}

PadWidget* QtPads::Open() const {
    for (PadWidget* pad :
         {static_cast<PadWidget*>(list_), static_cast<PadWidget*>(date_), static_cast<PadWidget*>(calc_)}) {
        if (pad && pad->isVisible()) return pad;
    }
    return nullptr;
}

bool QtPads::IsPad(const QWidget& widget) const {
    const QWidget* top = &widget;
    while (top->parentWidget())
        top = top->parentWidget();
    return top == list_ || top == date_ || top == calc_;
}

} // namespace quillgrid::qt
