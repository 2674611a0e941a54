#include "quillgrid/cells/PersistentCells.h"

#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

PersistentCells::Pointer PersistentCells::Add() {
    const auto number = std::to_string(list_.Count() + 1);
    auto record = std::make_shared<PersistentCell>();
    record->SetCollectionKey("Cell" + number);
    record->SetIndex(Count() + 1);
    record->SetCaption("Label" + number);
    record->SetValue("Text" + number);
    if (!list_.Append(record->CollectionKey(), record))
        throw RaiseControlError(20093, "PersistentCells.Add Method");
    return record;
}

PersistentCells::Pointer PersistentCells::Item(ItemKey which) const {
    auto record = FindItem(list_, which);
    if (!record) throw RaiseControlError(20092, "PersistentCells.Item Property Get");
    return record;
}

std::int32_t PersistentCells::Remove(ItemKey which, bool renumber) {
    if (!list_.RemoveAt(FindPosition(list_, which)))
        throw RaiseControlError(20092, "PersistentCells.Remove Method");
    std::int32_t position = 0;
    if (renumber) {
        for (const auto& record : list_)
            record->SetIndex(++position);
    }
    return Count();
}

} // namespace quillgrid
