// Pixels at several densities: lines, glyphs, texts and colours.
#include "quillgrid/hosts/qt/ButtonColours.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/PreparedTexts.h"
#include "quillgrid/hosts/qt/QtCanvas.h"
#include "quillgrid/hosts/qt/QtTextMetrics.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/resources/Glyphs.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>

namespace quillgrid::qt {
namespace {

const QColor Paper(250, 250, 240);
const Colour Ink = Rgb(10, 20, 30);

QImage Drawn(double density, const std::function<void(QtCanvas&)>& draw, QSize size = {120, 60},
             const QPalette& palette = QApplication::palette()) {
    QImage image((QSizeF(size) * density).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    image.fill(Paper);
    QPainter painter(&image);
    QtCanvas canvas(painter, palette, QApplication::font());
    draw(canvas);
    return image;
}

/// Lengths of the runs of one colour down a column of pixels.
std::vector<int> RunsDown(const QImage& image, int x, const QColor& colour) {
    std::vector<int> runs;
    int run = 0;
    for (int y = 0; y <= image.height(); ++y) {
        if (y < image.height() && image.pixelColor(x, y) == colour) {
            ++run;
        } else if (run > 0) {
            runs.push_back(std::exchange(run, 0));
        }
    }
    return runs;
}

std::set<QRgb> ColoursIn(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return colours;
}

/// As screen readers' rules count: 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto part = [](double share) {
            return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double lighter = std::max(luminance(one), luminance(other));
    return (lighter + 0.05) / (std::min(luminance(one), luminance(other)) + 0.05);
}

QPalette OneColoured(const QColor& ground, const QColor& ink) {
    QPalette palette(ink, ground, ink, ink, ink, ink, ink, ground, ground);
    palette.setColor(QPalette::Highlight, QColor(55, 0, 110));
    return palette;
}

QPalette DarkPalette() {
    QPalette palette(QColor(53, 53, 53));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    return palette;
}

TEST(Look, LinesAreEquallyThickAndWhatFollowsThemLeavesNoGap) {
    for (const auto& [density, thickness] :
         {std::pair{1.0, 1}, {1.25, 1}, {1.5, 1}, {1.75, 2}, {2.0, 2}, {3.0, 3}}) {
        const QImage image = Drawn(density, [](QtCanvas& canvas) {
            for (int y = 0; y < 60; y += 7)
                canvas.Line({0, y}, {120, y}, Ink);
            for (int y = 0; y < 60; y += 7)
                canvas.Fill({0, y + 1, 120, y + 7}, Rgb(255, 255, 255));
        });
        const std::vector<int> runs = RunsDown(image, 10, ToQColor(Ink, {}));
        EXPECT_EQ(runs, std::vector<int>(9, thickness)) << density;
        EXPECT_EQ(ColoursIn(image).size(), 2U) << density; // line and filling, no paper and no mixture
    }
}

TEST(Look, EdgesAreEquallyThickOnAllSidesWhereverTheyStand) {
    for (const double density : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        for (int shift = 0; shift < 4; ++shift) {
            const QImage image = Drawn(density, [shift](QtCanvas& canvas) {
                canvas.Edge({10 + shift, 10 + shift, 51 + shift, 40 + shift}, EdgeKind::Flat);
            });
            const QColor edge = ToQColor(SystemColour(6), QApplication::palette());
            const auto middle = [density](int logical) { return static_cast<int>(logical * density); };
            const std::vector<int> down = RunsDown(image, middle(30), edge);
            const std::vector<int> across =
                RunsDown(image.transformed(QTransform(0, 1, 1, 0, 0, 0)), middle(25), edge);
            ASSERT_EQ(down.size(), 2U) << density;
            EXPECT_EQ(down[0], down[1]) << density;
            EXPECT_EQ(across, down) << density;
            EXPECT_EQ(ColoursIn(image).size(), 2U) << density;
        }
    }
}

TEST(Look, ButtonsRiseAndSinkByTheirShades) {
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        const ButtonColours normal = ColoursOfButton(palette, ButtonLook::Normal);
        const ButtonColours hot = ColoursOfButton(palette, ButtonLook::Hot);
        const ButtonColours pressed = ColoursOfButton(palette, ButtonLook::Pressed);
        EXPECT_GT(normal.TopLeft.lightness(), normal.Face.lightness());
        EXPECT_GT(normal.Face.lightness(), normal.BottomRight.lightness());
        EXPECT_LT(pressed.TopLeft.lightness(), pressed.BottomRight.lightness());
        EXPECT_LT(pressed.Face.lightness(), normal.Face.lightness());
        EXPECT_NE(hot.Face, normal.Face);
        EXPECT_GT(pressed.Ink.green(), std::max(pressed.Ink.red(), pressed.Ink.blue()));
        EXPECT_GT(Contrast(pressed.Ink, pressed.Face), 3.0);
        EXPECT_GT(Contrast(normal.Outline, palette.color(QPalette::Base)), 2.0);
    }
}

TEST(Look, WhereAllGroundsAreOneColourLinesAreStrong) {
    for (const auto& [ground, ink] :
         {std::pair{Qt::white, Qt::black}, {Qt::black, Qt::white}, {Qt::black, Qt::yellow}}) {
        const QPalette palette = OneColoured(ground, ink);
        ASSERT_TRUE(IsHighContrast(palette));
        for (const std::uint32_t line : {6U, 16U, 20U, 21U})
            EXPECT_GT(Contrast(ToQColor(SystemColour(line), palette), ground), 3.0) << line;
        for (const ButtonLook look : {ButtonLook::Normal, ButtonLook::Pressed})
            EXPECT_GT(Contrast(ColoursOfButton(palette, look).Outline, ground), 4.5);
    }
    EXPECT_FALSE(IsHighContrast(QApplication::palette()));
    EXPECT_FALSE(IsHighContrast(DarkPalette()));
}

TEST(Look, UprightGlyphsAreSharpAtEveryDensity) {
    for (const double density : {1.25, 1.5, 1.75, 2.0, 3.0}) {
        for (const Glyph glyph :
             {Glyph::Collapse, Glyph::Expand, Glyph::Ellipsis, Glyph::Calculator, Glyph::Info}) {
            const QImage image = Drawn(density, [&](QtCanvas& canvas) {
                canvas.DrawGlyph({21, 11, 38, 30}, glyph, ButtonLook::Normal);
            });
            EXPECT_EQ(ColoursIn(image).size(), 2U) << density << " " << static_cast<int>(glyph);
        }
    }
}

TEST(Look, GlyphsCoverWhatTheirPixelsCover) {
    for (const int density : {1, 2, 3}) {
        for (std::size_t number = 0; number < GlyphCount; ++number) {
            const auto glyph = static_cast<Glyph>(number);
            const QImage image = Drawn(density,
                                       [&](QtCanvas& canvas) {
                                           canvas.DrawGlyph({0, 0, 11, 11}, glyph, ButtonLook::Normal);
                                       },
                                       {11, 11});
            int wrong = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const bool ink = RowsOf(glyph)[static_cast<std::size_t>(y / density)]
                                                  [static_cast<std::size_t>(x / density)] == '#';
                    if (ink != (image.pixelColor(x, y).lightness() < 128)) ++wrong;
                }
            }
            // Slants are smoother than steps.
            EXPECT_LE(wrong, density == 1 ? 0 : image.width() * image.height() / 8) << number;
        }
    }
}

class LookOfTexts : public testing::TestWithParam<const char*> {
protected:
    /// Drawn in an area that is as wide as the text was measured and, like rows, a little higher.
    static QImage Fitted(const Font& font, const char* text, int moreRoom) {
        const QWidget widget;
        const QtTextMetrics metrics(widget);
        const std::int32_t width = metrics.TextWidth(font, text);
        const std::int32_t height = metrics.LineHeight(font);
        return Drawn(1.0,
                     [&](QtCanvas& canvas) {
                         canvas.Text(
                             {50 - moreRoom, 30 - moreRoom, 50 + width + moreRoom, 30 + height + moreRoom},
                             text, {font, Ink, qgalCenter});
                     },
                     {500, 100});
    }
};

TEST_P(LookOfTexts, NothingIsCutOffWhereATextWasMeasured) {
    for (const char* family : {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono"}) {
        for (const int style : {0, 1, 2, 3}) {
            for (const double size : {7.0, 9.75, 12.0, 18.0}) {
                const Font font{family, size, (style & 1) != 0, (style & 2) != 0};
                EXPECT_EQ(Fitted(font, GetParam(), 0), Fitted(font, GetParam(), 20))
                    << family << " " << style << " " << size;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Look, LookOfTexts,
                         testing::Values("Wolf", "fgjpqy", "Ägypten: Öl", "12.345,67 €", "e\xCC\x81\xCC\xA7t",
                                         "f", "\u0627\u0644\u0639\u0646\u0648\u0627\u0646"));

TEST(Look, WhatDoesNotFitEndsInDots) {
    const Font font = FromQFont(QApplication::font());
    const QString number = QStringLiteral("12345678901234567890");
    for (const bool prepared : {true, false}) {
        for (const AlignmentConstants alignment : {qgalLeftJustify, qgalRightJustify, qgalCenter}) {
            const auto shown = [&](const QString& text) {
                PreparedTexts texts;
                QImage image(120, 60, QImage::Format_RGB32);
                image.fill(Paper);
                QPainter painter(&image);
                QtCanvas canvas(painter, QApplication::palette(), QApplication::font(),
                                prepared ? &texts : nullptr);
                canvas.Text({20, 10, 90, 40}, FromQString(text), {font, Ink, alignment});
                return image;
            };
            const QString shortened =
                QFontMetricsF(QApplication::font()).elidedText(number, Qt::ElideRight, 70);
            ASSERT_TRUE(shortened.endsWith(QChar(0x2026)) && shortened.startsWith(u"1234"));
            EXPECT_EQ(shown(number), shown(shortened));
        }
    }
}

} // namespace
} // namespace quillgrid::qt
