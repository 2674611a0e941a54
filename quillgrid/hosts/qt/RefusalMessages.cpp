#include "quillgrid/hosts/qt/RefusalMessages.h"

#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/ErrorBubble.h"

#include <QTimer>

#include <algorithm>

namespace quillgrid::qt {

namespace {

/// The messages exist in German and, this much further on, in English.
constexpr std::int32_t EnglishMessages = 1000;

bool SpeaksGerman(LanguageConstants language) {
    return language == qglgDefault || language == qglgGerman;
}

std::string MessageOf(ValidationErrConstants code, LanguageConstants language) {
    if (SpeaksGerman(language)) return ErrorText(code);
    if (code == qgerrMask) return "Invalid input format"; // the one message that is stored in German alone
    return ErrorText(code + EnglishMessages);
}

} // namespace

QString RefusalMessages::TextFor(const Cell& cell, ValidationErrConstants code) const {
    const QString own = Source ? Source(cell, code) : QString();
    if (!own.isEmpty()) return own;
    return ToQString(MessageOf(code, grid_.Language()));
}

void RefusalMessages::Refused(const Cell& cell, ValidationErrConstants code) {
    Say(&cell, TextFor(cell, code));
}

void RefusalMessages::Say(const Cell* cell, const QString& text) {
    cell_ = cell;
    const Cell* shown = VisibleCell(cell);
    if (!shown) return Dismiss();
    bubble_.Say(text, PlaceOf(*shown), Duration);
    fresh_ = true;
    QTimer::singleShot(0, &bubble_, [this] { fresh_ = false; });
}

void RefusalMessages::Dismiss() {
    cell_ = nullptr;
    bubble_.Dismiss();
}

QString RefusalMessages::ShownText() const {
    return bubble_.Text();
}

void RefusalMessages::CurrentCellChanged() {
    if (!fresh_) Dismiss();
}

void RefusalMessages::Follow() {
    if (bubble_.isHidden()) return;
    const Cell* cell = VisibleCell(cell_);
    const QRect area = cell ? PlaceOf(*cell) : QRect();
    if (area.isEmpty()) return Dismiss();
    bubble_.PointAt(area);
}

QRect RefusalMessages::PlaceOf(const Cell& cell) const {
    return ToQRect(OnWidget(grid_.ValueArea(cell), owner_));
}

const Cell* RefusalMessages::VisibleCell(const void* wanted) const {
    if (!wanted) return nullptr;
    const std::int32_t first = std::max(1, grid_.FirstVisibleRow());
    const std::int32_t last = std::min(grid_.RowCount(), first + grid_.VisibleRows());
    for (std::int32_t row = first; row <= last; ++row) {
        const Cell* cell = grid_.RowCell(row);
        if (cell == wanted) return cell;
    }
    return nullptr;
}

} // namespace quillgrid::qt
