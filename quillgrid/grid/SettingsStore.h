// The settings as a whole: their defaults, and their way into a property bag and back.
#pragma once

#include "quillgrid/grid/GridSettings.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/PropertyBag.h"
#include "quillgrid/platform/Site.h"

namespace quillgrid {

/// What a new control starts with, but for the caption, which is empty. All fonts are the ambient one.
GridSettings DefaultSettings(const Font& ambient = {});

/// Stores what the bag holds, as it is, but for the number of sample cells and the separators, which are
/// limited as their setters do. What the bag lacks or holds in an unusable form gets its default.
GridSettings ReadSettings(const PropertyBag& bag, const Site& site, const Locale& locale);
void WriteSettings(const GridSettings& settings, PropertyBag& bag, const Font& ambient);

} // namespace quillgrid
