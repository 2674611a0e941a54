#include "quillgrid/cells/Properties.h"

#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

Properties::Pointer Properties::Add(PropertyArguments arguments) {
    const auto alive = weak_from_this().lock();
    const bool inside = arguments.Index >= 1 && arguments.Index <= Count();
    const std::int32_t position = inside ? arguments.Index : Count() + 1;
    auto property = std::make_shared<Property>();
    if (!list_.Insert(static_cast<std::size_t>(position), arguments.Key, property))
        throw RaiseControlError(20093, "Properties.Add Method");
    if (inside) Renumber();
    property->index_ = position;
    property->key_ = std::move(arguments.Key);
    if (arguments.Value) property->SetValue(std::move(*arguments.Value));
    property->SetDescription(std::move(arguments.Description));
    return property;
}

Properties::Pointer Properties::Item(ItemKey which) {
    auto property = FindItem(list_, which);
    if (!property) throw RaiseControlError(20092, "Properties.Item Property Get");
    SelChange.Raise(*property);
    return property;
}

std::int32_t Properties::Remove(ItemKey which) {
    const auto alive = weak_from_this().lock();
    if (!list_.RemoveAt(FindPosition(list_, which)))
        throw RaiseControlError(20092, "Properties.Remove Method");
    Renumber();
    return Count();
}

/// Listeners may change the list meanwhile: every step asks anew how long it is.
void Properties::Renumber() {
    for (std::int32_t position = 1; position <= Count(); ++position)
        Item(position)->index_ = position;
}

} // namespace quillgrid
