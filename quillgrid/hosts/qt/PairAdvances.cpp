#include "quillgrid/hosts/qt/PairAdvances.h"

#include <QFontMetricsF>
#include <QLatin1Char>
#include <QString>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillgrid::qt {

namespace {

constexpr std::size_t AskedBeforeLearning = 100;
constexpr std::size_t LongestText = 1'000;
constexpr char First = ' ';
constexpr char Last = '~';
constexpr std::size_t Characters = Last - First + 1;
constexpr std::size_t AtEnd = Characters;

std::size_t IndexOf(char character) {
    return static_cast<std::size_t>(character - First);
}

std::size_t PlaceOf(char character, std::size_t column) {
    return IndexOf(character) * (Characters + 1) + column;
}

/// Other characters join, stack or turn around; three letters become one only after "ff".
bool IsPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= First && c <= Last; }) &&
           text.find("ff") == std::string_view::npos;
}

} // namespace

std::optional<double> PairAdvances::WidthOf(std::string_view text, const QFontMetricsF& metrics) {
    if (asked_ < AskedBeforeLearning) {
        ++asked_;
        return std::nullopt;
    }
    if (text.empty() || text.size() > LongestText || !IsPlain(text)) return std::nullopt;
    const double width = KnownWidth(text);
    if (!std::isnan(width)) return width;
    Learn(text, metrics);
    return KnownWidth(text);
}

/// Not a number when a pair is new: what is unknown spreads through the sum.
double PairAdvances::KnownWidth(std::string_view text) const {
    if (known_.empty()) return std::numeric_limits<double>::quiet_NaN();
    const float* const known = known_.data();
    double width = known[PlaceOf(text.back(), AtEnd)];
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
        width += known[PlaceOf(text[i], IndexOf(text[i + 1]))];
    return width;
}

void PairAdvances::Learn(std::string_view text, const QFontMetricsF& metrics) {
    if (known_.empty()) known_.assign(Characters * (Characters + 1), std::numeric_limits<float>::quiet_NaN());
    LearnEnd(text.back(), metrics);
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
        LearnPair(text[i], text[i + 1], metrics);
}

void PairAdvances::LearnPair(char character, char next, const QFontMetricsF& metrics) {
    float& known = known_[PlaceOf(character, IndexOf(next))];
    if (!std::isnan(known)) return;
    const QString pair = QString(QLatin1Char(character)) + QLatin1Char(next);
    const double both = metrics.horizontalAdvance(pair);
    known = static_cast<float>(both - LearnEnd(next, metrics));
}

double PairAdvances::LearnEnd(char character, const QFontMetricsF& metrics) {
    float& known = known_[PlaceOf(character, AtEnd)];
    if (std::isnan(known))
        known = static_cast<float>(metrics.horizontalAdvance(QString(QLatin1Char(character))));
    return known;
}

} // namespace quillgrid::qt
