#include "quillgrid/hosts/headless/FakeSurface.h"

#include "quillgrid/hosts/headless/TextOf.h"

namespace quillgrid::headless {

void FakeSurface::Invalidate(const Rect& area) {
    Invalid.push_back(area);
    journal_.Note("repaint " + TextOf(area));
}

} // namespace quillgrid::headless
