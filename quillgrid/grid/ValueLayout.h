#pragma once

#include "quillgrid/base/Rect.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/grid/GridLayout.h"
#include "quillgrid/platform/ImageSource.h"

#include <cstdint>

namespace quillgrid {

/// Where the parts of one value stand. Painting and the edit box share it, so that a text keeps its place
/// when the box opens over it.
struct ValueLayout {
    Rect Swatch; ///< of colour cells, else empty
    Rect Image;  ///< empty when there is none
    const Picture* ImageContent = nullptr;
    Rect Button;   ///< the strip at the right, empty without a button
    Rect EditArea; ///< the edit box
    Rect TextArea; ///< painted text
};

/// `images` may be null. Without `dataVisible` the image is the lock.
ValueLayout LayOutValue(const Cell& cell, const Rect& area, const GridLayout& layout,
                        const ImageSource* images, bool dataVisible);

} // namespace quillgrid
