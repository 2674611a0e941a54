// Run a second time at double density.
#include "quillgrid/hosts/qt/QtPicture.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include <limits>

namespace quillgrid::qt {
namespace {

const QColor Red(255, 0, 0);
const QColor Green(0, 255, 0);
const QColor Blue(0, 0, 255);
const QColor Yellow(255, 255, 0);

/// 16 by 16 with a colour for each quarter: red and green above, blue and yellow below.
QImage Quarters(int density) {
    QImage image(QSize(16, 16) * density, QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    const QColor colours[2][2] = {{Red, Green}, {Blue, Yellow}};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, colours[y / (8 * density)][x / (8 * density)]);
    }
    return image;
}

class HostDrawing : public testing::TestWithParam<int> {
protected:
    HostDrawing() {
        Prepare(widget, {200, 160});
        plain = Shown();
    }

    static void Prepare(QuillgridWidget& form, QSize size) {
        form.resize(size);
        form.grid().Add({.Key = "a", .Caption = "A", .Value = "1"});
        form.grid().Add({.Key = "b", .Caption = "B", .Value = "2"});
        form.grid().Refresh();
        Show(form);
    }
    /// Without the focus, which would open the edit box over a value.
    static void Show(QuillgridWidget& form) {
        form.show();
        QApplication::processEvents();
        if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();
    }

    QImage Shown() { return widget.grab().toImage(); }
    static QColor At(const QImage& image, int x, int y) {
        const double density = image.devicePixelRatio();
        return image.pixelColor(static_cast<int>((x + 0.5) * density), static_cast<int>((y + 0.5) * density));
    }
    QColor At(int x, int y) { return At(Shown(), x, y); }
    QColor Before(int x, int y) { return At(plain, x, y); }
    void Place(const PicturePlacement& placement, const QImage& image) {
        widget.grid().PaintPicture(*QtPicture::FromImage(image), placement);
    }

    QuillgridWidget widget;
    QImage plain;
};

TEST_P(HostDrawing, StaysUntilTheControlPaintsThatPart) {
    const Rect row = widget.grid().ValueArea(*widget.grid().RowCell(2));
    const Rect below{100, 120, 110, 130};
    widget.grid().hdc().Fill(below, Rgb(255, 0, 0));
    widget.grid().hdc().Fill(row, Rgb(255, 0, 0));
    widget.repaint();
    widget.hide();
    Show(widget);
    EXPECT_EQ(At(105, 125), Red);
    EXPECT_EQ(At(row.Right - 5, row.Top + 5), Red);
    EXPECT_EQ(At(99, 125), Before(99, 125));
    widget.grid().Cells().Item("b")->Refresh();
    EXPECT_EQ(At(105, 125), Red);
    EXPECT_EQ(At(row.Right - 5, row.Top + 5), Before(row.Right - 5, row.Top + 5));
    widget.grid().Refresh();
    EXPECT_EQ(Shown(), plain);
}

TEST_P(HostDrawing, ANewSizeIsPaintedAnewAtItsOwnSize) {
    widget.grid().hdc().Fill({100, 120, 110, 130}, Rgb(255, 0, 0));
    widget.resize(260, 220);
    QApplication::processEvents();
    QuillgridWidget fresh; // never drawn on
    Prepare(fresh, {260, 220});
    EXPECT_EQ(Shown(), fresh.grab().toImage());
    widget.grid().hdc().Fill({240, 200, 250, 210}, Rgb(255, 0, 0));
    EXPECT_EQ(At(245, 205), Red);
}

TEST_P(HostDrawing, PicturesHaveTheirNaturalSizeWhateverTheirDensity) {
    Place({.Position = {100, 100}}, Quarters(GetParam()));
    EXPECT_EQ(At(100, 100), Red);
    EXPECT_EQ(At(107, 107), Red);
    EXPECT_EQ(At(108, 107), Green);
    EXPECT_EQ(At(107, 108), Blue);
    EXPECT_EQ(At(115, 115), Yellow);
    EXPECT_EQ(At(116, 115), Before(116, 115));
    EXPECT_EQ(At(99, 99), Before(99, 99));
}

TEST_P(HostDrawing, APartIsDrawnAloneAndStretched) {
    const QImage image = Quarters(GetParam());
    Place({.Position = {20, 100}, .SourceLeft = 8, .SourceTop = 0, .SourceWidth = 8, .SourceHeight = 8},
          image);
    EXPECT_EQ(At(20, 100), Green);
    EXPECT_EQ(At(27, 107), Green);
    EXPECT_EQ(At(28, 107), Before(28, 107));
    EXPECT_EQ(At(19, 107), Before(19, 107));
    EXPECT_EQ(At(27, 108), Before(27, 108));

    Place({.Position = {60, 100}, .Width = 32, .Height = 32}, image);
    EXPECT_EQ(At(62, 102), Red);
    EXPECT_EQ(At(89, 102), Green);
    EXPECT_EQ(At(89, 129), Yellow);
    EXPECT_EQ(At(92, 129), Before(92, 129));

    Place({.Position = {120, 100}, .SourceLeft = 8, .SourceWidth = 16},
          image); // half of it beyond the picture
    EXPECT_EQ(At(122, 102), Green);
    EXPECT_EQ(At(130, 102), Before(130, 102));
}

TEST_P(HostDrawing, RasterOperationsCombineColours) {
    const std::uint32_t under = 0xF0F0AA;
    const std::uint32_t over = 0xCC33F0;
    QImage image(QSize(8, 8) * GetParam(), QImage::Format_RGB32);
    image.setDevicePixelRatio(GetParam());
    image.fill(QColor::fromRgb(over));
    const struct {
        std::int32_t Operation;
        std::uint32_t Result;
    } cases[] = {{0x00CC0020, over},         {0x008800C6, over & under},      {0x00EE0086, over | under},
                 {0x00660046, over ^ under}, {0x00330008, ~over & 0xFFFFFFU}, {0x7FFFFFFF, over}};
    for (const auto& one : cases) {
        widget.grid().hdc().Fill({100, 100, 120, 120}, Rgb(0xF0, 0xF0, 0xAA));
        Place({.Position = {104, 104}, .Operation = one.Operation}, image);
        EXPECT_EQ(At(107, 107), QColor::fromRgb(one.Result)) << std::hex << one.Operation;
        EXPECT_EQ(At(112, 107), QColor::fromRgb(under)) << std::hex << one.Operation;
    }
}

TEST_P(HostDrawing, NothingIsDrawnForEmptySizes) {
    const QImage image = Quarters(GetParam());
    Place({.Position = {100, 100}, .Width = 0}, image);
    Place({.Position = {100, 100}, .Width = -5, .Height = -5}, image);
    Place({.Position = {100, 100}, .SourceWidth = 0}, image);
    Place({.Position = {100, 100}, .SourceHeight = -1}, image);
    Place({.Position = {100, 100}, .Width = 20, .Height = 20}, QImage());
    widget.grid().PaintPicture(*QtPicture::FromPixmap(QPixmap()), {.Width = 9, .Height = 9});
    widget.grid().PaintPicture(QtPicture(nullptr), {.Position = {100, 100}});
    widget.grid().PaintPicture(Picture(), {.Position = {100, 100}});
    EXPECT_EQ(Shown(), plain);
}

TEST_P(HostDrawing, ExtremePlacesAndSizesAreHarmless) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int32_t extremes[] = {Limits::min(), -1, 0, 1, Limits::max()};
    const QImage image = Quarters(GetParam());
    QElapsedTimer clock;
    clock.start();
    for (int combination = 0; combination < 5 * 5 * 5 * 5; ++combination) {
        const auto one = [&, rest = combination]() mutable {
            return extremes[std::exchange(rest, rest / 5) % 5];
        };
        auto next = one;
        const std::int32_t place = next();
        const std::int32_t size = next();
        const std::int32_t from = next();
        const std::int32_t part = next();
        Place({.Position = {place, place},
               .Width = size,
               .Height = size,
               .SourceLeft = from,
               .SourceTop = from,
               .SourceWidth = part,
               .SourceHeight = part},
              image);
    }
    EXPECT_LT(clock.elapsed(), 20'000);
    widget.grid().Refresh();
    EXPECT_EQ(Shown(), plain);
}

TEST_P(HostDrawing, TheControlsOwnBackgroundShowsWhereNothingIsPainted) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, Red);
    QWidget window; // its colour must not shine through
    window.setPalette(palette);
    auto* inner = new QuillgridWidget(&window);
    inner->setPalette(widget.palette());
    inner->grid().SetUseSystemColors(false);
    inner->grid().SetBackColor(Rgb(0, 255, 0));
    inner->grid().SetBorderWidth(20);
    inner->grid().Refresh();
    inner->resize(200, 160);
    EXPECT_EQ(At(inner->grab().toImage(), 5, 5), Green);
    inner->grid().Terminate(); // paints nothing any more
    EXPECT_EQ(At(inner->grab().toImage(), 100, 80), Green);
}

INSTANTIATE_TEST_SUITE_P(PictureDensity, HostDrawing, testing::Values(1, 2));

} // namespace
} // namespace quillgrid::qt
