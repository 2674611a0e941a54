#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/pads/CalculatorCore.h"
#include "quillgrid/pads/CalculatorPainter.h"
#include "quillgrid/pads/PadPorts.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quillgrid {

class PropertyBag;

/// The pocket calculator that a cell drops down: a display, 20 keys and four formula keys. Its host hands
/// keys, mouse and painting on and takes `Value` when `CloseUp` is raised. Handlers of events may destroy it.
class QUILLGRID_EXPORT QGCalcpad {
public:
    /// A number was computed, or a mouse button was released.
    Event<> ValueChange;
    /// The user is done.
    Event<> CloseUp;
    /// The display shows something else; handlers leave the pad as it is.
    Event<> DisplayChange;

    /// The pad has the defaults of all properties until the host reads others.
    explicit QGCalcpad(const CalcpadPorts& ports);
    QGCalcpad(const QGCalcpad&) = delete;
    QGCalcpad& operator=(const QGCalcpad&) = delete;

    void InitProperties();
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Published properties; setting one of the first four is reported to the container.

    bool DoublePrecision() const { return core_.Settings().DoublePrecision; }
    void SetDoublePrecision(bool on);
    const std::string& NumSeparators() const { return core_.Settings().NumSeparators; }
    void SetNumSeparators(std::string separators);
    const Variant& Min() const { return core_.Settings().Min; }
    void SetMin(Variant bound);
    const Variant& Max() const { return core_.Settings().Max; }
    void SetMax(Variant bound);
    /// A Currency, a double with DoublePrecision.
    Variant Value() const { return core_.Value(); }
    void SetValue(const Variant& value);
    /// The host's list, or null; it outlives the pad. Formula keys take their faces from it at `Refresh`.
    void SetImageList(const ImageSource* images);
    quillgrid::Formulas& Formulas() { return core_.Formulas(); }
    Surface& hWnd() { return ports_.Window; }

    // Published methods

    /// Typed characters and keys; used ones become 0.
    void KeyPress(std::int32_t& character);
    void KeyDown(std::int32_t& keyCode, std::int32_t shift);
    void KeyUp(std::int32_t keyCode, std::int32_t shift);
    /// Draws one key; other numbers than 1..24 draw nothing.
    void DrawButton(std::int32_t number, bool pressed);
    void DrawValue();
    /// Lays out, looks at the formulas anew and redraws.
    void Refresh();
    /// Gives formula key 1..4 another formula until the next layout.
    void DefineFormula(std::int32_t index, std::string text, Variant listImage, std::string tooltipText);

    // What the host calls

    void Paint(Canvas& canvas, const Rect& area);
    /// The one key that no character types: hosts give it a key of theirs.
    void ChangeSign();
    void MouseDown(Point point);
    void MouseMove(Point point, bool buttonDown);
    void MouseUp();
    void MouseLeave();
    /// The window has another size.
    void Resize();

    const CalculatorLayout& Layout() const { return core_.Layout(); }
    const CalculatorDisplay& Display() const { return core_.Display(); }
    /// What the display says, for a screen reader.
    std::string DisplayText() const { return Display().Operator + Display().Number; }

private:
    /// What the display was drawn from.
    struct Drawn {
        CalculatorDisplay Display;
        bool OutOfLimits = false;

        friend bool operator==(const Drawn&, const Drawn&) = default;
    };

    template <typename Act>
    void Do(Act act);
    void Sync();
    void SyncPressedKey();
    CalculatorMeasures Measure();
    void ResizeWindow();
    void RepaintAll();

    CalcpadPorts ports_;
    CalculatorCore core_;
    const ImageSource* images_ = nullptr;
    Font font_;
    PressedKeys pressed_;
    std::int32_t pressedKey_ = 0;
    Drawn drawn_;
    bool laysOut_ = false;
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

} // namespace quillgrid
