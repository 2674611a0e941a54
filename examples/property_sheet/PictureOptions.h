#pragma once

#include <QString>

#include <optional>

namespace quillgrid::example {

/// What the program was asked to do.
struct PictureOptions {
    QString Picture;  ///< PNG to write instead of showing a window; "" to show one
    double Scale = 1; ///< of the picture
    bool Dark = false;

    /// Nothing when the arguments make no sense.
    static std::optional<PictureOptions> Parse(int argc, char** argv);
    static const char* Usage();

    /// Before the application exists: its platform and scale cannot be changed afterwards.
    void PrepareSurroundings() const;
    /// When it exists.
    void ChooseLook() const;
};

} // namespace quillgrid::example
