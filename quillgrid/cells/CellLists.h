#pragma once

#include "quillgrid/cells/Listitems.h"

namespace quillgrid {

class Cell;
class CellOwner;

/// Clears a list and gives it the entries of one kind, in the control's language and from its host; without a
/// control (null) in the default language and without what only a host knows.
using ListFiller = void (*)(Listitems& items, CellOwner* owner);

void FillNothing(Listitems& items, CellOwner* owner);
void FillYesNo(Listitems& items, CellOwner* owner);
void FillSalutations(Listitems& items, CellOwner* owner);
void FillColours(Listitems& items, CellOwner* owner);
void FillSystemColours(Listitems& items, CellOwner* owner);
/// The installed printers; their data are their positions in the host's collection, from 0.
void FillPrinters(Listitems& items, CellOwner* owner);
/// The images of the control's image list; their data are their positions, from 1.
void FillImages(Listitems& items, CellOwner* owner);
/// The installed fonts in the order of their names, with an image that tells screen, printer and common fonts
/// apart; their data are their places in that order, from 0. At design time Arial alone.
void FillFonts(Listitems& items, CellOwner* owner);

/// Puts the texts of a cell's template into the control's present language. Entries that the host replaced
/// (with other data) keep theirs.
void RefillLanguageTexts(Cell& cell);

} // namespace quillgrid
