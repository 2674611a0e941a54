#pragma once

#include "quillgrid/grid/GridProperty.h"
#include "quillgrid/platform/Site.h"

namespace quillgrid {

/// What a setter stores for a value that is given in the property's type. Error 20099 from "Quillgrid: Style
/// Method" for a style that does not exist.
Variant Limited(const PropertyLimit& limit, Variant given, const Site& site);

} // namespace quillgrid
