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
    const double width = MetricsOf(font).horizontalAdvance(ToQString(text));
    return static_cast<std::int32_t>(std::ceil(std::min(width, WidestText)));
}

std::int32_t QtTextMetrics::LineHeight(const Font& font) const {
    const QFontMetricsF& metrics = MetricsOf(font);
    return static_cast<std::int32_t>(std::ceil(metrics.ascent() + metrics.descent()));
}

const QFontMetricsF& QtTextMetrics::MetricsOf(const Font& font) const {
    const auto found = std::find_if(known_.begin(), known_.end(),
                                    [&](const Entry& entry) { return entry.Description == font; });
    if (found != known_.end()) return found->Metrics;
    if (known_.size() >= FontsKept) known_.clear();
    known_.push_back({font, QFontMetricsF(ToQFont(font, widget_.font()), &widget_)});
    return known_.back().Metrics;
}

} // namespace quillgrid::qt
