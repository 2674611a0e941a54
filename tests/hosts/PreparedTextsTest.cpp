// What is remembered of texts is what shaping them anew would give.
#include "quillgrid/hosts/qt/PreparedTexts.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/PairAdvances.h"
#include "quillgrid/hosts/qt/QtCanvas.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <string>

namespace quillgrid::qt {

namespace {

struct Sample {
    const char* Text;
    TextStyle Style;
    Rect Area{4, 2, 190, 22};
};

const TextStyle Plain{{"", 10.0}, ColourWindowText, qgalLeftJustify};
const TextStyle Right{{"", 10.0, true}, ColourWindowText, qgalRightJustify};
const TextStyle Centred{{"", 13.5, false, true}, Rgb(200, 0, 0), qgalCenter};

const Sample Samples[] = {
    {"Customer 12345", Plain},
    {"AVAVA Waffle To. fi ffi", Right},
    {"Größe: Übermaß, œuvre", Centred},
    {"e\xCC\x81\xCC\x82 combined, 中文 mixed", Plain},
    {"שלום from the right", Plain},
    {"two\nlines\tand a tab", Plain},
    {"wider than its place in the form by far, so that it must be cut", Plain, {4, 2, 60, 18}},
    {"wider at both ends than its place", Centred, {4, 2, 60, 10}},
    {"odd height", Right, {4, 2, 190, 25}},
    {"broken into lines at words", {{"", 9.0}, ColourWindowText, qgalLeftJustify, true}, {4, 2, 60, 60}},
    {"\xFF\xFE bytes that are no text", Plain},
};

class PreparedPainting : public testing::TestWithParam<double> {
protected:
    QImage Painted(const Sample& sample, PreparedTexts* texts) const {
        QImage image((QSizeF(200, 70) * GetParam()).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(GetParam());
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setLayoutDirection(Qt::LeftToRight);
        QtCanvas canvas(painter, QApplication::palette(), QApplication::font(), texts);
        canvas.Text(sample.Area, sample.Text, sample.Style);
        return image;
    }
};

TEST_P(PreparedPainting, IsTheSameAsPaintingForOnce) {
    PreparedTexts texts;
    for (const Sample& sample : Samples) {
        const QImage expected = Painted(sample, nullptr);
        EXPECT_EQ(Painted(sample, &texts), expected) << sample.Text;
        EXPECT_EQ(Painted(sample, &texts), expected) << "again: " << sample.Text;
    }
}

TEST_P(PreparedPainting, MoreTextsThanAreKeptStillLookRight) {
    PreparedTexts texts;
    for (int round = 0; round < 2; ++round) {
        for (int number = 0; number < 1'000; ++number)
            Painted({std::to_string(number).c_str(), Plain}, &texts);
        EXPECT_EQ(Painted(Samples[0], &texts), Painted(Samples[0], nullptr));
    }
}

INSTANTIATE_TEST_SUITE_P(PictureDensity, PreparedPainting, testing::Values(1.0, 1.5, 2.0));

TEST(PreparedTexts, AnotherFontOfTheHostShapesAnew) {
    const QImage device(10, 10, QImage::Format_RGB32);
    QFont small = QApplication::font();
    small.setPointSizeF(8);
    QFont large = small;
    large.setPointSizeF(20);
    const Font description = FromQFont(small);
    PreparedTexts texts;
    texts.Use(small, device);
    const double width = texts.Find("text", description)->Width;
    Font bold = description;
    bold.Bold = true;
    EXPECT_GT(texts.Find("text", bold)->Width, width);
    texts.Use(large, device);
    EXPECT_DOUBLE_EQ(texts.Find("text", description)->Width, width) << "the description gives the size";
    EXPECT_GT(texts.Find("text", FromQFont(large))->Width, width);
}

TEST(PairAdvances, SumsAreTheWidthsOfWholeTexts) {
    const char* const words[] = {
        "AVAVA Waffle To.", "Customer 12345", "fi fl offset", "\"W.\" ~ (f) {j}", "T", "", "Größe",
        "r.,;:- Ty LT 11"};
    for (const double size : {8.0, 9.5, 13.0, 31.0}) {
        QFont font = QApplication::font();
        font.setPointSizeF(size);
        const QFontMetricsF metrics(font);
        PairAdvances pairs;
        std::size_t summed = 0;
        for (int number = 0; number < 2'000; ++number) {
            const std::string text = words[number % 8] + std::to_string(number * 7919) + words[number % 7];
            const auto width = pairs.WidthOf(text, metrics);
            if (!width) continue;
            ++summed;
            EXPECT_NEAR(*width, metrics.horizontalAdvance(ToQString(text)), 0.01) << text;
        }
        EXPECT_GT(summed, 500U);
    }
}

} // namespace

} // namespace quillgrid::qt
