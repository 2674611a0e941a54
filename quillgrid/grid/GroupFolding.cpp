#include "quillgrid/grid/GroupFolding.h"

namespace quillgrid {

void GroupFolding::Toggle(const Cell& heading) {
    if (heading.Template() != qgctGroup) return;
    if (const auto group = groups_.Find(heading.Group())) Change(*group, !group->Expanded());
}

void GroupFolding::SetExpanded(const Cell& heading, bool expanded) {
    if (heading.Template() != qgctGroup) return;
    const auto group = groups_.Find(heading.Group());
    if (group && group->Expanded() != expanded) Change(*group, expanded);
}

void GroupFolding::Change(Group& group, bool expanded) {
    group.SetExpanded(expanded);
    state_.ResortNeeded = true;
    refresher_.Refresh();
}

} // namespace quillgrid
