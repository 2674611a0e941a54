#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/Label.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace quillgrid {

/// The rectangles that layout keeps in a cell.
enum class CellArea : std::uint8_t { Value, Button, First, Second };

/// The fields that `Cell::Clear` gives back their first values, apart from the rare ones.
struct CellState {
    // What every layout reads of all cells stands together: a long form does not fit into the processor's
    // cache.
    std::int32_t ListIndex = -1;
    ValidationRuleConstants Rule = qgvrNone;
    CellStyleConstants Style = qgcsText;
    CellTemplateConstants Template = qgctNone;
    bool Visible : 1 = true;
    bool Enabled : 1 = true;
    bool DataVisible : 1 = true;
    bool Locked : 1 = false;
    bool AllowEmpty : 1 = true;
    bool CausesValidation : 1 = true;
    bool FontBold : 1 = false;
    bool FontItalic : 1 = false;
    bool ShowPercent : 1 = false;
    bool Changed : 1 = false;
    bool Repaint : 1 = false;   ///< colour or font changed since the row was painted
    bool StaleText : 1 = false; ///< something that the text depends on changed since it was made
    bool Defining : 1 = false;  ///< values on the way are none to return to
    bool Sample : 1 = false;    ///< made by the control to fill an empty form, and not touched since
    std::int32_t ScrollOffset = 0;
    Rect ValueArea; ///< with the scroll offset added
    quillgrid::Label Label;

    std::unique_ptr<std::array<Rect, 3>> OtherAreas; ///< the other places of CellArea; none while all empty
    std::unique_ptr<Variant> UndoValue;              ///< none while it is the value itself
    Variant Value = Variant::Null();
    std::string Text;
    std::string Format;
    std::string Group;
    std::int32_t MaxLength = 50;
    Colour ForeColor = ColourWindowText;
    Colour InheritedForeColor = ColourWindowText;
    ValidationErrConstants ErrorCode = qgErrNone;
    ButtonStyleConstants Button = qgbtNone;
    AlignmentConstants Alignment = qgalLeftJustify;
    CharCaseConstants CharCase = qgccNone;
};

} // namespace quillgrid
