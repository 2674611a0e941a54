#include "quillgrid/hosts/headless/FakeSurface.h"

#include "quillgrid/hosts/headless/TextOf.h"

namespace quillgrid::headless {

void FakeSurface::Invalidate(const Rect& area) {
    Invalid.push_back(area);
    journal_.Note("repaint " + TextOf(area));
}

void FakeSurface::SetPointer(MousePointer pointer) {
    Pointer = pointer;
    if (pointer == MousePointer::Busy) ++BusyTimes;
}

} // namespace quillgrid::headless
