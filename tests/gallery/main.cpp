// --scale=N: of the pictures to compare. It must be known before the application exists.
#include "examples/gallery/ScenePicture.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <string_view>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const bool twice = argc > 1 && std::string_view(argv[1]) == "--scale=2";
    quillgrid::example::PrepareForPictures(twice ? 2 : 1);
    const QApplication application(argc, argv);
    quillgrid::example::UsePictureLook();
    return RUN_ALL_TESTS();
}
