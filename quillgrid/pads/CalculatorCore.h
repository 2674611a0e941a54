#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/pads/CalculatorLayout.h"
#include "quillgrid/pads/CalculatorMachine.h"
#include "quillgrid/pads/CalculatorSettings.h"
#include "quillgrid/pads/FormulaSlots.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

/// Everything of the calculator pad but its window and its drawing: properties, keyboard and mouse, and the
/// key that is drawn pressed. After each call the pad draws what has changed.
class QUILLGRID_EXPORT CalculatorCore {
public:
    /// A persisted property was set: its key in the property bag.
    quillgrid::Event<std::string_view> PropertyChanged;

    /// `locale` says how values that are texts are read.
    explicit CalculatorCore(Locale locale, CalculatorSettings settings = {});

    /// The calculator itself, for its events. Its ValueChange also tells that a mouse button was released.
    CalculatorMachine& Machine() { return machine_; }

    const CalculatorSettings& Settings() const { return settings_; }
    /// All the properties at once, as from a property bag; nothing is reported.
    void SetSettings(CalculatorSettings settings);
    void SetDoublePrecision(bool on);
    void SetNumSeparators(std::string separators);
    void SetMin(Variant bound);
    void SetMax(Variant bound);

    /// A Currency, a double with DoublePrecision.
    Variant Value() const { return machine_.Value().ToVariant(); }
    /// The number that the value means, 0 for Null and what is no number.
    void SetValue(const Variant& value);
    const CalculatorDisplay& Display() const { return machine_.Display(); }
    /// Whether the value lies outside of Min and Max, which only changes the display's colour.
    bool IsOutOfLimits() const;

    quillgrid::Formulas& Formulas() { return formulas_.Formulas(); }
    const FormulaSlots& Slots() const { return formulas_; }
    /// Gives formula key 1..4 another formula until the next layout; other keys change nothing.
    void DefineFormula(std::int32_t index, std::string text, Variant listImage, std::string tooltipText);
    /// The host's list, or null.
    void SetImages(const ImageSource* images) { formulas_.SetImages(images); }

    /// Lays out anew; the formula keys get their formulas of old.
    void LayOut(const CalculatorMeasures& measures);
    /// Lays out and looks at the formulas anew.
    void Refresh(const CalculatorMeasures& measures);
    const CalculatorLayout& Layout() const { return layout_; }

    /// A typed character; becomes 0 when it is refused or ends the calculation. Handlers of the events raised
    /// in these calls may destroy the calculator.
    void KeyPress(std::int32_t& character);
    /// F5 to F8 run the formulas and become 0.
    void KeyDown(std::int32_t& keyCode);
    void KeyUp() { pressedKey_ = 0; }
    /// The one key of the pad that no character types.
    void ChangeSign();

    void MouseDown(Point point);
    void MouseMove(Point point, bool buttonDown);
    void MouseUp();
    /// "" where there is no formula key.
    std::string TooltipAt(Point point) const;

    /// The key that is drawn pressed, 0 for none.
    std::int32_t PressedKey() const { return pressedKey_; }

private:
    bool Press(std::int32_t& code);

    Locale locale_;
    CalculatorSettings settings_;
    FormulaSlots formulas_;
    CalculatorMachine machine_;
    CalculatorLayout layout_;
    CalculatorMeasures measures_;
    std::int32_t pressedKey_ = 0;
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

} // namespace quillgrid
