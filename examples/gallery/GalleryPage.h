#pragma once

#include <QString>

namespace quillgrid::example {

/// The page that shows all pictures, as Markdown; they lie in `folder` as seen from the page.
QString GalleryPage(const QString& folder);

} // namespace quillgrid::example
