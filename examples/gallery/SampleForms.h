#pragma once

#include "quillgrid/hosts/qt/QuillgridWidget.h"

namespace quillgrid::example {

/// A small address with one cell of most kinds.
void FillAddress(Quillgrid& grid);
/// One cell of each template, in the control's language.
void FillTemplates(Quillgrid& grid);
/// Three groups, their cells not in the order of their captions, and two cells without a group.
void FillGroups(Quillgrid& grid);
/// A few plain cells, enough to see a frame around them.
void FillPlain(Quillgrid& grid, int cells = 3);
/// As a property list, with the border that lists have.
void AsPropertyList(Quillgrid& grid);

/// A new cell of a template.
Cell& AddCell(Quillgrid& grid, const char* key, const char* caption, Variant value,
              CellTemplateConstants cellTemplate = qgctNone);

// What a user does with the mouse, in logical pixels of the form.
void Hover(qt::QuillgridWidget& form, QPoint position);
void Press(qt::QuillgridWidget& form, QPoint position);
/// The middle of a cell's button.
QPoint ButtonOf(qt::QuillgridWidget& form, const char* key);
/// Brings the focus into a cell.
void Enter(qt::QuillgridWidget& form, const char* key);

} // namespace quillgrid::example
