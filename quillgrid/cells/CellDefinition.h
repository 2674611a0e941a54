#pragma once

#include "quillgrid/cells/Cell.h"

namespace quillgrid {

struct CellTemplate;

/// Gives a cell the properties that a template lists.
class CellDefinition {
public:
    explicit CellDefinition(Cell& cell) : cell_(cell) {}

    void Apply(DefineArguments&& arguments);

private:
    void ClearBounds();
    void ApplyTemplate(const CellTemplate& row, Variant&& newValue);
    void ApplyLayout(const CellTemplate& row);
    void ApplySettings(const CellTemplate& row);
    void AssignValue(const CellTemplate& row, Variant&& newValue);
    Variant StartValue(const CellTemplate& row, Variant&& newValue) const;

    Cell& cell_;
};

} // namespace quillgrid
