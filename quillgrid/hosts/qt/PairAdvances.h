#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

class QFontMetricsF;

namespace quillgrid::qt {

/// Widths of plain Latin texts, summed up from pairs of characters: what two letters do to each other in a
/// font (kerning, ligatures) is known from the first time they meet. A long form has thousands of captions
/// but few pairs. The first texts are left to the font, so that short forms need not learn any.
class PairAdvances {
public:
    /// Nothing when the text must be measured as a whole.
    std::optional<double> WidthOf(std::string_view text, const QFontMetricsF& metrics);

private:
    double KnownWidth(std::string_view text) const;
    void Learn(std::string_view text, const QFontMetricsF& metrics);
    void LearnPair(char character, char next, const QFontMetricsF& metrics);
    double LearnEnd(char character, const QFontMetricsF& metrics);

    std::size_t asked_ = 0;
    std::vector<float> known_; ///< by character, then by the next one or the end; not a number: not yet
};

} // namespace quillgrid::qt
