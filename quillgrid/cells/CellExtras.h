#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Currency.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/Listitems.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quillgrid {

/// Where the value of a cell comes from in the host's database.
struct DataBinding {
    std::string RecordSource;
    std::string ForeignSource;
    std::string ForeignKey;
    std::string ForeignField;
    std::string ForeignIndex;
};

/// The fields that plain text cells leave at their defaults: a cell allocates them with the first that
/// differs.
struct QUILLGRID_EXPORT CellExtras {
    Variant Min = Variant::Null();
    Variant Max = Variant::Null();
    Variant Default = Variant::Null();
    Variant ListImage = Variant::Null();
    Variant ItemData;
    Variant Tag = Variant::Null();
    std::string Charlist;
    std::string Unit;
    std::string TooltipText;
    std::int32_t UserLevelEnabled = 0;
    std::int32_t UserlevelVisible = 0;
    std::int32_t UserLevelDataVisible = 0;
    std::int32_t WhatsThisHelpID = 0;
    std::int32_t HelpContextID = 0;
    Colour FillColor = ColourDesktop;
    Currency Increment = Currency::FromScaled(Currency::Scale);
    std::unique_ptr<Listitems> Items;
    std::unique_ptr<DataBinding> Binding;

    static const CellExtras& Defaults();
};

} // namespace quillgrid
