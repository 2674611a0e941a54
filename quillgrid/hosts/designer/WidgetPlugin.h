#pragma once

#include "quillgrid/hosts/designer/DesignerWidget.h"

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace quillgrid::designer {

/// One widget in the words of Qt's interface.
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit WidgetPlugin(const DesignerWidget& widget, QObject* parent = nullptr)
        : QObject(parent), widget_(widget) {}

    QString name() const override { return QString::fromLatin1(widget_.ClassName); }
    QString group() const override { return QStringLiteral("Quillgrid"); }
    QString toolTip() const override { return QString::fromLatin1(widget_.ToolTip); }
    QString whatsThis() const override { return QString::fromLatin1(widget_.Description); }
    QString includeFile() const override { return QString::fromLatin1(widget_.Header); }
    QIcon icon() const override { return widget_.Icon(); }
    bool isContainer() const override { return false; }
    bool isInitialized() const override { return initialized_; }
    void initialize(QDesignerFormEditorInterface*) override { initialized_ = true; }
    QWidget* createWidget(QWidget* parent) override { return widget_.Create(parent); }
    QString domXml() const override;

private:
    const DesignerWidget& widget_;
    bool initialized_ = false;
};

} // namespace quillgrid::designer
