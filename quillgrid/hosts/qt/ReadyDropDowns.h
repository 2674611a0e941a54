// Ready answers to QuillgridWidget::dropDown, each switched on with one line. With the key of a cell they
// serve that cell, without one all cells of their kind. What the user picks comes into the cell as if it had
// been typed. None waits for its dialog.
#pragma once

#include "quillgrid/base/Export.h"

#include <QString>

namespace quillgrid::qt {

class QuillgridWidget;

/// File cells: a dialog that picks a file.
QUILLGRID_EXPORT void offerFiles(QuillgridWidget& widget, const QString& key = {});
/// Font cells: a dialog that picks a font; the cell takes its name.
QUILLGRID_EXPORT void offerFonts(QuillgridWidget& widget, const QString& key = {});
/// Colour cells: a dialog; the cell takes the colour's number.
QUILLGRID_EXPORT void offerColours(QuillgridWidget& widget, const QString& key = {});
/// Printer cells: a menu of the installed printers.
QUILLGRID_EXPORT void offerPrinters(QuillgridWidget& widget, const QString& key = {});
/// Phone, mail and web cells: the desktop opens the address; never a file, never a program of its own.
QUILLGRID_EXPORT void openAddresses(QuillgridWidget& widget, const QString& key = {});

} // namespace quillgrid::qt
