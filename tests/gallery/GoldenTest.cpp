#include "examples/gallery/PictureFile.h"
#include "examples/gallery/ScenePicture.h"
#include "tests/gallery/PictureComparison.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace quillgrid::example {

/// For the messages of failed tests.
static void PrintTo(const Scene& scene, std::ostream* out) {
    *out << scene.Name.toStdString();
}

namespace {

const QString Goldens = QStringLiteral(GOLDEN_FOLDER);
const QString Out = QStringLiteral(OUT_FOLDER);

std::vector<Scene> GuardedScenes() {
    std::vector<Scene> scenes;
    for (const Scene& scene : AllScenes()) {
        if (scene.Golden) scenes.push_back(scene);
    }
    return scenes;
}

/// A line for each density.
QStringList SystemsOfGoldens() {
    QFile file(Goldens + QStringLiteral("/drawn-with.txt"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

class Golden : public testing::TestWithParam<Scene> {};

TEST_P(Golden, PictureIsAsBefore) {
    const Scene& scene = GetParam();
    if (scene.Scale != static_cast<int>(qApp->devicePixelRatio())) GTEST_SKIP() << "of the other density";
    const QStringList systems = SystemsOfGoldens();
    ASSERT_FALSE(systems.isEmpty());
    if (!systems.contains(DrawingSystem()))
        GTEST_SKIP() << "drawn with " << qPrintable(systems.join(QStringLiteral("; "))) << "; this is "
                     << qPrintable(DrawingSystem());

    const QImage golden(Goldens + QLatin1Char('/') + scene.Name + QLatin1String(".png"));
    ASSERT_FALSE(golden.isNull()) << "no such picture yet: tools/make_gallery draws it";
    const QImage actual = TakePicture(scene);
    const PictureDifference difference = Compare(golden, actual);
    if (!difference.SizesDiffer && difference.Pixels == 0) return;
    QDir().mkpath(Out);
    WritePicture(actual, Out + QLatin1Char('/') + scene.Name + QLatin1String(".png"));
    if (!difference.Marked.isNull())
        WritePicture(difference.Marked, Out + QLatin1Char('/') + scene.Name + QLatin1String(".differs.png"));
    ADD_FAILURE() << (difference.SizesDiffer ? "another size: " : "") << difference.Pixels
                  << " pixels differ, the first at " << difference.First.x() << ", " << difference.First.y()
                  << "; see " << qPrintable(Out) << ". If the new look is right: tools/make_gallery";
}

std::string NameOf(const testing::TestParamInfo<Scene>& info) {
    QString name = info.param.Name;
    return name.replace(QLatin1Char('-'), QLatin1Char('_')).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Gallery, Golden, testing::ValuesIn(GuardedScenes()), NameOf);

TEST(Gallery, NamesAreUniqueAndEveryPictureIsThere) {
    std::set<QString> names;
    for (const Scene& scene : AllScenes()) {
        EXPECT_TRUE(names.insert(scene.Name).second) << qPrintable(scene.Name);
        const QImage picture(Goldens + QLatin1Char('/') + scene.Name + QLatin1String(".png"));
        EXPECT_FALSE(picture.isNull()) << qPrintable(scene.Name);
    }
    const auto files = QDir(Goldens).entryList({QStringLiteral("*.png")}, QDir::Files);
    EXPECT_EQ(static_cast<std::size_t>(files.size()), names.size()) << "pictures that no scene draws";
}

TEST(Comparison, FindsOnePixelAndAnotherSizeButNoRounding) {
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(qRgb(100, 100, 100));
    EXPECT_EQ(Compare(picture, picture).Pixels, 0);
    QImage other = picture;
    other.setPixel(7, 3, qRgb(100, 100 + ColourTolerance, 100));
    EXPECT_EQ(Compare(picture, other).Pixels, 0);
    other.setPixel(7, 3, qRgb(100, 100 + ColourTolerance + 1, 100));
    EXPECT_EQ(Compare(picture, other).Pixels, 1);
    EXPECT_EQ(Compare(picture, other).First, QPoint(7, 3));
    EXPECT_EQ(Compare(picture, other).Marked.pixel(7, 3), qRgb(255, 0, 0));
    EXPECT_TRUE(Compare(picture, picture.copy(0, 0, 19, 10)).SizesDiffer);
}

} // namespace
} // namespace quillgrid::example
