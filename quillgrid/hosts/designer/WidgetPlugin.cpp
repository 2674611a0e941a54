#include "quillgrid/hosts/designer/WidgetPlugin.h"

namespace quillgrid::designer {

QString WidgetPlugin::domXml() const {
    return QStringLiteral(R"(<ui language="c++" displayname="%5">
 <widget class="%1" name="%2">
  <property name="geometry"><rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property>
 </widget>
</ui>)")
        .arg(name(), QString::fromLatin1(widget_.ObjectName))
        .arg(widget_.Size.width())
        .arg(widget_.Size.height())
        .arg(QString::fromLatin1(widget_.DisplayName));
}

} // namespace quillgrid::designer
