#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace quillgrid::designer {

/// What a form designer, or a program that loads .ui files, finds in the plugin.
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit WidgetCollection(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return widgets_; }

private:
    QList<QDesignerCustomWidgetInterface*> widgets_; ///< children
};

} // namespace quillgrid::designer
