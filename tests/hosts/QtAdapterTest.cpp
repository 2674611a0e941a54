#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/GridLineEdit.h"
#include "quillgrid/hosts/qt/QtCanvas.h"
#include "quillgrid/hosts/qt/QtEditBox.h"
#include "quillgrid/hosts/qt/QtImageSource.h"
#include "quillgrid/hosts/qt/QtPicture.h"
#include "quillgrid/hosts/qt/QtTextMetrics.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/hosts/qt/VariantConversion.h"
#include "quillgrid/hosts/qt/WheelSteps.h"

#include <QApplication>
#include <QDate>
#include <QDateTime>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QTime>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quillgrid::qt {
namespace {

QPalette DarkPalette() {
    QPalette palette = QApplication::palette(); // like many: the light and dark roles are left as they were
    palette.setColor(QPalette::Window, QColor(40, 42, 46));
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Base, QColor(25, 26, 28));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Button, QColor(50, 52, 56));
    palette.setColor(QPalette::ButtonText, Qt::white);
    return palette;
}

class Drawing {
public:
    explicit Drawing(double ratio = 1.0, const QPalette& palette = QApplication::palette())
        : image_(QSize(60, 40) * ratio, QImage::Format_RGB32) {
        image_.setDevicePixelRatio(ratio);
        image_.fill(Qt::white);
        painter_.begin(&image_);
        canvas_ = std::make_unique<QtCanvas>(painter_, palette, QApplication::font());
    }

    QtCanvas& canvas() { return *canvas_; }
    QPainter& painter() { return painter_; }
    QColor At(int x, int y) const { return image_.pixelColor(x, y); }
    /// Whether anything but white stands in the area (device pixels).
    bool HasInk(QRect area) const {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (At(x, y) != QColor(Qt::white)) return true;
            }
        }
        return false;
    }

private:
    QImage image_;
    QPainter painter_;
    std::unique_ptr<QtCanvas> canvas_;
};

TEST(QtCanvas, FillsExactlyTheAreaAtAnyDensity) {
    for (const int ratio : {1, 2}) {
        Drawing drawing(ratio);
        drawing.canvas().Fill({10, 5, 20, 15}, Rgb(200, 10, 20));
        EXPECT_EQ(drawing.At(10 * ratio, 5 * ratio), QColor(200, 10, 20));
        EXPECT_EQ(drawing.At(20 * ratio - 1, 15 * ratio - 1), QColor(200, 10, 20));
        EXPECT_EQ(drawing.At(20 * ratio, 14 * ratio), QColor(Qt::white));
        EXPECT_EQ(drawing.At(10 * ratio - 1, 5 * ratio), QColor(Qt::white));
    }
}

TEST(QtCanvas, LinesExcludeTheirEnd) {
    Drawing drawing;
    drawing.canvas().Line({5, 3}, {9, 3}, Rgb(0, 0, 0));
    drawing.canvas().Line({30, 2}, {30, 6}, Rgb(0, 0, 0));
    EXPECT_EQ(drawing.At(8, 3), QColor(Qt::black));
    EXPECT_EQ(drawing.At(9, 3), QColor(Qt::white));
    EXPECT_EQ(drawing.At(30, 5), QColor(Qt::black));
    EXPECT_EQ(drawing.At(30, 6), QColor(Qt::white));
}

TEST(QtCanvas, TextStaysInItsAreaAndInTheMiddle) {
    Drawing drawing;
    TextStyle style;
    style.TextFont = FromQFont(QApplication::font());
    drawing.canvas().Text({10, 10, 30, 30}, "Übermäßig langer Text\nzweite Zeile", style);
    EXPECT_TRUE(drawing.HasInk({10, 13, 20, 14}));
    EXPECT_FALSE(drawing.HasInk({30, 0, 30, 40}));
    EXPECT_FALSE(drawing.HasInk({0, 0, 10, 40}));
    EXPECT_FALSE(drawing.HasInk({0, 0, 60, 10}));
}

TEST(QtCanvas, ClippingNarrowsTheDirtyRegionAndGivesItBack) {
    Drawing outer;
    outer.painter().setClipRect(0, 0, 20, 40);
    QtCanvas canvas(outer.painter(), QApplication::palette(), QApplication::font());
    canvas.SetClip({10, 0, 60, 40});
    canvas.Fill({0, 0, 60, 10}, Rgb(0, 0, 0));
    canvas.ClearClip();
    canvas.Fill({0, 20, 60, 30}, Rgb(0, 0, 0));
    EXPECT_EQ(outer.At(5, 5), QColor(Qt::white));
    EXPECT_EQ(outer.At(15, 5), QColor(Qt::black));
    EXPECT_EQ(outer.At(25, 5), QColor(Qt::white));
    EXPECT_EQ(outer.At(5, 25), QColor(Qt::black));
    EXPECT_EQ(outer.At(25, 25), QColor(Qt::white));
}

TEST(QtCanvas, EdgesAreShadesOfTheWindowInDarkPalettes) {
    Drawing drawing(1.0, DarkPalette());
    drawing.canvas().Edge({0, 0, 40, 30}, EdgeKind::Raised);
    drawing.canvas().Edge({5, 5, 35, 25}, EdgeKind::Sunken);
    for (const QPoint point : {QPoint(0, 0), QPoint(39, 29), QPoint(5, 5), QPoint(33, 23)})
        EXPECT_LT(drawing.At(point.x(), point.y()).lightness(), 110);
}

TEST(QtCanvas, NothingIsDrawnForSidesInTheWrongOrder) {
    Drawing drawing;
    const Rect area{30, 30, 10, 10};
    drawing.canvas().Fill(area, 0);
    drawing.canvas().Edge(area, EdgeKind::Sunken);
    drawing.canvas().PushButton(area, ButtonLook::Pressed);
    drawing.canvas().Text(area, "x", {});
    EXPECT_FALSE(drawing.HasInk({0, 0, 60, 40}));
}

TEST(QtTheme, SystemColoursAreReadableOnTheirGrounds) {
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        const auto contrast = [&](std::uint32_t ink, std::uint32_t paper) {
            return std::abs(ToQColor(SystemColour(ink), palette).lightness() -
                            ToQColor(SystemColour(paper), palette).lightness());
        };
        EXPECT_GT(contrast(8, 5), 150);  // text on window
        EXPECT_GT(contrast(8, 15), 150); // text on face
        EXPECT_GT(contrast(18, 15), 150);
        EXPECT_GT(contrast(17, 5), 60); // grey text, and not as black as text
        EXPECT_LT(contrast(17, 5), contrast(8, 5));
    }
    EXPECT_EQ(ToQColor(Rgb(1, 2, 3), QApplication::palette()), QColor(1, 2, 3));
    EXPECT_TRUE(ToQColor(SystemColour(200), QApplication::palette()).isValid());
}

TEST(QtTheme, FontsAreNamedOnceAndWithoutFoundry) {
    const QWidget widget;
    const std::vector<std::string> fonts = QtTheme(widget).ScreenFonts();
    ASSERT_FALSE(fonts.empty());
    EXPECT_EQ(std::adjacent_find(fonts.begin(), fonts.end(), std::greater_equal<>()), fonts.end());
    for (const std::string& name : fonts)
        EXPECT_EQ(name.find('['), std::string::npos) << name;
    EXPECT_GE(QtTheme(widget).ScrollBarWidth(), 14);
}

TEST(QtTextMetrics, FollowsTheFontDescription) {
    QWidget widget;
    const QtTextMetrics metrics(widget);
    const Font plain = FromQFont(widget.font());
    Font large = plain;
    large.Size = plain.Size * 2;
    EXPECT_EQ(metrics.TextWidth(plain, ""), 0);
    EXPECT_GT(metrics.TextWidth(plain, "Größe"), metrics.TextWidth(plain, "Größ"));
    EXPECT_GT(metrics.TextWidth(large, "Größe"), metrics.TextWidth(plain, "Größe") * 3 / 2);
    EXPECT_GT(metrics.LineHeight(large), metrics.LineHeight(plain));
    Font broken = plain;
    broken.Size = std::numeric_limits<double>::quiet_NaN();
    EXPECT_GT(metrics.LineHeight(broken), 0);
    EXPECT_EQ(ToQFont(plain, widget.font()), widget.font()); // size in pixels and hinting stay
}

TEST(QtEditBox, CountsCharactersNotUnits) {
    QWidget owner;
    GridLineEdit edit(&owner);
    QtEditBox box(edit, owner);
    box.SetText("a😀ä😀b");
    box.Select(1, 2);
    EXPECT_EQ(edit.selectedText(), QString::fromUtf8("😀ä"));
    EXPECT_EQ(box.SelectionStart(), 1U);
    EXPECT_EQ(box.SelectionLength(), 2U);
    box.Select(4, 0);
    edit.insert(QStringLiteral("x"));
    EXPECT_EQ(box.Text(), "a😀ä😀xb");
    EXPECT_EQ(box.SelectionStart(), 5U);
    box.Select(100, std::numeric_limits<std::size_t>::max());
    EXPECT_EQ(box.SelectionStart(), 6U);
    box.Select(0, std::numeric_limits<std::size_t>::max());
    EXPECT_EQ(box.SelectionLength(), 6U);
}

TEST(QtEditBox, WearsMaskColoursAndAlignment) {
    QWidget owner;
    GridLineEdit edit(&owner);
    QtEditBox box(edit, owner);
    EditBox::Look look;
    look.TextFont = FromQFont(owner.font());
    look.Ink = Rgb(255, 0, 0);
    look.Alignment = qgalRightJustify;
    look.Mask = "#";
    box.SetLook(look);
    box.SetText("geheim");
    EXPECT_EQ(edit.displayText(), QStringLiteral("######"));
    EXPECT_EQ(edit.palette().color(QPalette::Text), QColor(Qt::red));
    EXPECT_TRUE(edit.alignment().testFlag(Qt::AlignRight));
    look.Mask.clear();
    box.SetLook(look);
    EXPECT_EQ(edit.displayText(), QStringLiteral("geheim"));
}

TEST(QtImageSource, FindsItsImagesAndOverlaysThem) {
    const QtImageSource images;
    ASSERT_TRUE(images.Find("CHECKED"));
    EXPECT_EQ(images.Find("CHECKED"), images.At(1));
    EXPECT_FALSE(images.Find("no such image"));
    EXPECT_FALSE(images.At(0));
    EXPECT_FALSE(images.At(images.Count() + 1));
    EXPECT_TRUE(images.Overlay(1.0, "lock"));
    EXPECT_FALSE(images.Overlay(std::numeric_limits<double>::quiet_NaN(), "lock"));
    for (std::size_t position = 1; position <= images.Count(); ++position) {
        Drawing drawing;
        drawing.canvas().Image({20, 10, 36, 26}, *images.At(position)->Content);
        EXPECT_TRUE(drawing.HasInk({20, 10, 16, 16})) << images.At(position)->Key;
        EXPECT_FALSE(drawing.HasInk({0, 0, 18, 40})) << images.At(position)->Key;
        EXPECT_FALSE(drawing.HasInk({37, 0, 23, 40})) << images.At(position)->Key;
    }
}

TEST(WheelSteps, AddUpToWholeRows) {
    WheelSteps wheel;
    EXPECT_EQ(wheel.Rows(-120, 3), 3);
    EXPECT_EQ(wheel.Rows(120, 3), -3);
    int rows = 0;
    for (int i = 0; i < 8; ++i)
        rows += wheel.Rows(-15, 3);
    EXPECT_EQ(rows, 3);
    EXPECT_EQ(wheel.Rows(-30, 1), 0);
    EXPECT_EQ(wheel.Rows(90, 1), 0); // the turn back does not add to what was left
    EXPECT_EQ(wheel.Rows(30, 1), -1);
}

TEST(VariantConversion, KeepsTheMeaningOfQtValues) {
    EXPECT_TRUE(VariantFromQt({}).IsNull());
    EXPECT_EQ(VariantFromQt(true), Variant(true));
    EXPECT_EQ(VariantFromQt(qint64{-5}), Variant(-5));
    EXPECT_EQ(VariantFromQt(qint64{3'000'000'000}), Variant(3e9));
    EXPECT_EQ(VariantFromQt(std::numeric_limits<qint64>::min()), Variant("-9223372036854775808"));
    EXPECT_EQ(VariantFromQt(std::numeric_limits<quint64>::max()), Variant("18446744073709551615"));
    EXPECT_EQ(VariantFromQt(QStringLiteral("ä😀")), Variant("ä😀"));
    EXPECT_EQ(VariantFromQt(QDate(1899, 12, 31)), Variant(DateTime{1, 0}));
    EXPECT_EQ(VariantFromQt(QTime(1, 0, 1, 999)), Variant(DateTime{0, 3601}));
    EXPECT_EQ(VariantFromQt(QDateTime(QDate(2026, 5, 3), QTime(12, 0))), Variant(DateTime{46145, 43200}));
    EXPECT_TRUE(VariantFromQt(QDate(20000, 1, 1)).IsText());
    EXPECT_TRUE(VariantFromQt(QDate()).IsNull());
}

TEST(VariantConversion, ComesBackAsItWent) {
    for (const Variant& value :
         {Variant(7), Variant(2.5), Variant(false), Variant("x"), Variant(DateTime{46145, 0}),
          Variant(DateTime{0, 60}), Variant(DateTime{46145, 60})})
        EXPECT_EQ(VariantFromQt(ToQVariant(value)), value);
    EXPECT_FALSE(ToQVariant(Variant::Null()).isValid());
    EXPECT_EQ(ToQVariant(Currency::FromScaled(125000)).toDouble(), 12.5);
    EXPECT_EQ(ToQVariant(Currency::FromScaled(std::numeric_limits<std::int64_t>::max())).toString(),
              QStringLiteral("922337203685477.5807"));
}

} // namespace
} // namespace quillgrid::qt
