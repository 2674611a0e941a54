#pragma once

#include "quillgrid/grid/PadFactory.h"
#include "quillgrid/hosts/qt/PadGuard.h"
#include "quillgrid/hosts/qt/QtPadWindow.h"

#include <array>
#include <functional>
#include <memory>

class QWidget;

namespace quillgrid::qt {

class CalcPadWidget;
class DatePadWidget;
class ListPadWidget;
class PadWidget;

/// The pads of one control as windows. They go when this goes, those that handle an event just then as soon
/// as they have done so.
class QtPads : public PadFactory {
public:
    /// `owner` is the control's widget.
    explicit QtPads(const QWidget& owner);
    ~QtPads() override;
    QtPads(const QtPads&) = delete;
    QtPads& operator=(const QtPads&) = delete;

    /// Closes what is open.
    std::function<void()> Close = [] {};

    QGInputList& Listpad() override;
    QGCalendar& DatePad() override;
    QGCalcpad& CalcPad() override;
    PadWindow& Window(PadKind kind) override;
    /// The one on the screen, or null.
    PadWidget* Open() const;

private:
    QWidget& WidgetOf(PadKind kind);
    bool IsPad(const QWidget& widget) const;

    const QWidget& owner_;
    PadGuard guard_;
    ListPadWidget* list_ = nullptr;
    DatePadWidget* date_ = nullptr;
    CalcPadWidget* calc_ = nullptr;
    std::array<std::unique_ptr<QtPadWindow>, 3> windows_;
};

} // namespace quillgrid::qt
