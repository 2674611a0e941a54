#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/cells/Properties.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/PropertySetter.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/Record.h"

#include <functional>
#include <memory>

namespace quillgrid {

/// The two property sheets of a control: its own and the one that its cells share. Of each it hears the item
/// that was fetched last and carries what is read and written over to the property of that name.
class PropertySheets {
public:
    PropertySheets(GridState& state, PropertySetter& setter, const Locale& locale)
        : state_(state), setter_(setter), locale_(locale) {}

    /// Built on the first call, as is the other one.
    std::shared_ptr<Properties> GridSheet();
    std::shared_ptr<Properties> CellSheet();
    /// Writes every line of the cells' sheet for which the record has a field; a field that does not fit is
    /// passed over. Silent meanwhile and loud afterwards.
    void DefineCurrentCell(const Record& record);
    /// Empties the sheets and listens no more.
    void Terminate();

private:
    using Handler = void (PropertySheets::*)(const std::string& name, Variant& value);
    struct Sheet {
        std::shared_ptr<Properties> List = std::make_shared<Properties>();
        Connection Written; ///< of the item heard now
        Connection Read;
        bool Built = false;
    };

    void Listen(Sheet& sheet, Handler written, Handler read);
    void Hear(Sheet& sheet, Property& item, Handler written, Handler read);
    void WriteGrid(const std::string& name, Variant& value);
    void ReadGrid(const std::string& name, Variant& value);
    void WriteCell(const std::string& name, Variant& value);
    void ReadCell(const std::string& name, Variant& value);
    std::shared_ptr<Cell> CurrentCell() const;

    GridState& state_;
    PropertySetter& setter_;
    const Locale& locale_;
    Sheet grid_;
    Sheet cell_;
};

} // namespace quillgrid
