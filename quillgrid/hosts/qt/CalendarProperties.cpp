#include "quillgrid/hosts/qt/CalendarProperties.h"

namespace quillgrid::qt {

void CalendarProperties::WriteControl(PropertyBag& bag) const {
    Control().WriteProperties(bag);
}

void CalendarProperties::ShowControl() {
    Control().Refresh();
}

} // namespace quillgrid::qt
