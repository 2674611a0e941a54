// The plugin as programs find it: by Qt's own loader, from its file. It brings a library of its own, so that
// its widgets are looked at by their properties alone.
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QApplication>
#include <QDate>
#include <QFile>
#include <QFont>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QUiLoader>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

const QString Plugins = QStringLiteral(QUILLGRID_DESIGNER_PLUGINS);

std::unique_ptr<QWidget> LoadSample() {
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(Plugins);
    QFile file(QStringLiteral(QUILLGRID_SAMPLE_UI));
    if (!file.open(QIODevice::ReadOnly)) return nullptr;
    return std::unique_ptr<QWidget>(loader.load(&file));
}

struct Wanted {
    const char* Widget;
    const char* Property;
    QVariant Value;
};

const std::vector<Wanted> InSample{
    {"form", "caption", QStringLiteral("Address")},
    {"form", "showCaption", true},
    {"form", "gridStyle", 0},
    {"form", "labelBackColor", QColor(205, 228, 222)},
    {"form", "cellCount", 4},
    {"form", "tabPolicy", 1},
    {"calendar", "minDate", QDate(2026, 2, 1)},
    {"calendar", "currentDate", QDate(2026, 2, 14)},
    {"calendar", "firstDayOfWeek", 1},
    {"calendar", "autoHolidays", 3},
};

void ExpectSample(const QWidget& window) {
    for (const Wanted& wanted : InSample) {
        const auto* widget = window.findChild<QWidget*>(QLatin1String(wanted.Widget));
        ASSERT_TRUE(widget) << wanted.Widget;
        const QVariant value = widget->property(wanted.Property);
        const bool same =
            wanted.Value.typeId() == QMetaType::Int ? value.toInt() == wanted.Value : value == wanted.Value;
        EXPECT_TRUE(same) << wanted.Property << " is " << value.toString().toStdString();
    }
    const auto font = window.findChild<QWidget*>(QStringLiteral("form"))->property("cellFont").value<QFont>();
    EXPECT_EQ(font.pointSize(), 11);
    EXPECT_TRUE(font.italic());
}

TEST(DesignerPlugin, LoadsAFormWithItsProperties) {
    const auto window = LoadSample();
    ASSERT_TRUE(window);
    ExpectSample(*window);
    EXPECT_STREQ(window->findChild<QWidget*>(QStringLiteral("calculator"))->metaObject()->className(),
                 "quillgrid::qt::CalculatorWidget");
    window->show();
    QApplication::processEvents();
    const QImage drawn = window->grab().toImage();
    const QWidget& form = *window->findChild<QWidget*>(QStringLiteral("form"));
    int labels = 0; // pixels in a column through them
    for (int y = form.y(); y < form.geometry().bottom(); ++y)
        labels += drawn.pixelColor(form.x() + 20, y) == QColor(205, 228, 222) ? 1 : 0;
    EXPECT_GT(labels, 3 * form.fontMetrics().height());
}

TEST(DesignerPlugin, TellsOfItsWidgets) {
    QPluginLoader plugin(Plugins + QStringLiteral("/quillgrid-designer.so"));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
    ASSERT_TRUE(collection) << plugin.errorString().toStdString();
    EXPECT_EQ(collection->customWidgets().size(), 3);
    for (QDesignerCustomWidgetInterface* widget : collection->customWidgets()) {
        SCOPED_TRACE(widget->name().toStdString());
        const std::unique_ptr<QWidget> made(widget->createWidget(nullptr));
        EXPECT_EQ(widget->name(), QLatin1String(made->metaObject()->className()));
        EXPECT_TRUE(QFile::exists(QStringLiteral(QUILLGRID_TOP "/") + widget->includeFile()));
        EXPECT_TRUE(widget->domXml().contains(widget->name()));
        EXPECT_FALSE(widget->toolTip().isEmpty() || widget->isContainer());
        for (const int size : {16, 64}) {
            const QImage icon = widget->icon().pixmap(size, size).toImage();
            EXPECT_EQ(icon.width(), size);
            EXPECT_GT(qAlpha(icon.pixel(size / 2, size / 2)), 0);
            EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
