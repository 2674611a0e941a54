#pragma once

#include "quillgrid/hosts/qt/PairAdvances.h"
#include "quillgrid/platform/TextMetrics.h"

#include <QFontMetricsF>

#include <vector>

class QWidget;

namespace quillgrid::qt {

/// Measures in the fonts of a widget. The few fonts of a form are remembered.
class QtTextMetrics : public TextMetrics {
public:
    /// The widget must outlive the metrics.
    explicit QtTextMetrics(const QWidget& widget) : widget_(widget) {}

    std::int32_t TextWidth(const Font& font, std::string_view text) const override;
    std::int32_t LineHeight(const Font& font) const override;

    /// The widget has another font or screen.
    void Forget() { known_.clear(); }

private:
    struct Entry {
        Font Description;
        QFontMetricsF Metrics;
        PairAdvances Pairs;
    };

    Entry& EntryOf(const Font& font) const;

    const QWidget& widget_;
    mutable std::vector<Entry> known_;
};

} // namespace quillgrid::qt
