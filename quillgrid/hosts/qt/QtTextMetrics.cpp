#include "quillgrid/hosts/qt/QtTextMetrics.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QWidget>

#include <algorithm>
#include <cmath>

namespace quillgrid::qt {

namespace {

constexpr std::size_t FontsKept = 16;
constexpr double WidestText = 1'000'000.0;

} // namespace

std::int32_t QtTextMetrics::TextWidth(const Font& font, std::string_view text) const {
    if (text.empty()) return 0;
    Entry& entry = EntryOf(font);
    const auto known = entry.Pairs.WidthOf(text, entry.Metrics);
    const double width = known ? *known : entry.Metrics.horizontalAdvance(ToQString(text));
    return static_cast<std::int32_t>(std::ceil(std::min(width, WidestText)));
}

std::int32_t QtTextMetrics::LineHeight(const Font& font) const {
    const QFontMetricsF& metrics = EntryOf(font).Metrics;
    return static_cast<std::int32_t>(std::ceil(metrics.ascent() + metrics.descent()));
}

QtTextMetrics::Entry& QtTextMetrics::EntryOf(const Font& font) const {
    const auto found = std::find_if(known_.begin(), known_.end(),
                                    [&](const Entry& entry) { return entry.Description == font; });
    if (found != known_.end()) return *found;
    if (known_.size() >= FontsKept) known_.clear();
    return known_.emplace_back(Entry{font, QFontMetricsF(ToQFont(font, widget_.font()), &widget_), {}});
}

} // namespace quillgrid::qt
