#include "quillgrid/cells/Groups.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellOwner.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

Groups::Pointer Groups::Add(GroupArguments arguments) {
    auto group = std::make_shared<Group>();
    group->key_ =
        arguments.Key.empty() ? "Group" + std::to_string(list_.Count() + 1) : std::move(arguments.Key);
    group->caption_ = arguments.Caption.empty() ? group->key_ : std::move(arguments.Caption);
    group->expanded_ = arguments.Expanded;
    group->tooltipText_ = std::move(arguments.TooltipText);
    if (!list_.Append(group->key_, group)) throw RaiseControlError(20093, "Groups.Add Method");
    AddHeading(*group);
    return group;
}

void Groups::AddHeading(const Group& group) {
    const auto before = CurrentGroup();
    SetCurrentGroup(group.Key());
    try {
        cells_.Add({.Caption = Variant(group.Caption()),
                    .CellTemplate = qgctGroup,
                    .Group = group.Key(),
                    .TooltipText = group.TooltipText().empty() ? group.Key() : group.TooltipText()});
    } catch (const ControlError&) { // a group without its heading would be half added
        list_.RemoveAt(list_.PositionOf(&group));
        SetCurrentGroup(before);
        throw RaiseControlError(20093, "Groups.Add Method");
    }
}

Groups::Pointer Groups::Item(ItemKey which) const {
    auto group = Find(which);
    if (!group) throw RaiseControlError(20092, "Groups.Item Property Get");
    return group;
}

std::int32_t Groups::Remove(ItemKey which) {
    const auto group = list_.RemoveAt(FindPosition(list_, which));
    if (!group) return Count();
    if (EqualIgnoreCase(CurrentGroup(), group->Key())) SetCurrentGroup({});
    if (owner_) owner_->OrderChanged();
    return Count();
}

void Groups::Clear() {
    list_.Clear();
    SetCurrentGroup({});
    if (owner_) owner_->CellsCleared(); // the rows as shown hang on the groups: nothing of them may live on
    if (owner_) owner_->OrderChanged();
}

void Groups::SetCurrentGroup(const std::string& key) {
    if (owner_) owner_->SetCurrentGroup(key);
}

std::string Groups::CurrentGroup() const {
    return owner_ ? owner_->CurrentGroup() : std::string();
}

} // namespace quillgrid
