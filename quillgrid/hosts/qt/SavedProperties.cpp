#include "quillgrid/hosts/qt/SavedProperties.h"

#include "quillgrid/base/ControlError.h"
#include "quillgrid/base/Text.h"
#include "quillgrid/hosts/qt/BagValues.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtTheme.h"

#include <QMetaProperty>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillgrid::qt {

namespace {

const QDate DayZero(1899, 12, 30);

/// Controls say what their defaults are when they save.
class DefaultFinder : public PropertyBag {
public:
    explicit DefaultFinder(std::string_view name) : name_(name) {}

    Variant Read(std::string_view, const Variant& fallback) const override { return fallback; }
    void Write(std::string_view key, const Variant&, const Variant& fallback) override {
        if (EqualIgnoreCase(key, name_)) Found = fallback;
    }

    Variant Found;

private:
    std::string_view name_;
};

} // namespace

SavedProperties::SavedProperties(const QMetaObject& own, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), own_(own) {}

QString SavedProperties::FromControl(const std::string& text) const {
    return ToQString(text);
}
QColor SavedProperties::FromControl(Colour colour) const {
    return ToQColor(colour, palette());
}
QFont SavedProperties::FromControl(const quillgrid::Font& font) const {
    return ToQFont(font, this->font());
}
QDate SavedProperties::FromControl(DateTime date) const {
    return DayZero.addDays(date.Day);
}

std::string SavedProperties::ToControl(const QString& text) {
    return FromQString(text);
}
Colour SavedProperties::ToControl(const QColor& colour) {
    return FromQColor(colour);
}
quillgrid::Font SavedProperties::ToControl(const QFont& font) {
    return FromQFont(font);
}
DateTime SavedProperties::ToControl(QDate date) {
    const qint64 day = date.isValid() ? DayZero.daysTo(date) : 0;
    return {static_cast<std::int32_t>(std::clamp<qint64>(day, FirstDay, LastDay))};
}

void SavedProperties::Attempt(void (*set)(const void* made), const void* made) {
    const QPointer<SavedProperties> alive(this);
    try {
        set(made);
    } catch (const ControlError& refusal) {
        qWarning("%s: %s", refusal.Source().c_str(), refusal.what());
    }
    if (!alive) return;
    ShowSoon();
    TellChanges();
}

/// Several properties are mostly set one after the other: one layout is enough for all.
void SavedProperties::ShowSoon() {
    if (std::exchange(showsSoon_, true)) return;
    const auto show = [this] {
        showsSoon_ = false;
        ShowControl();
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

void SavedProperties::TellChanges() {
    const QPointer<SavedProperties> alive(this);
    const bool first = seen_.empty();
    seen_.resize(static_cast<std::size_t>(own_.propertyCount() - own_.propertyOffset()));
    for (std::size_t i = 0; alive && i < alive->seen_.size(); ++i) {
        const QMetaProperty property = own_.property(own_.propertyOffset() + static_cast<int>(i));
        QVariant now = property.read(this);
        if (now == seen_[i]) continue;
        seen_[i] = std::move(now);
        if (!first) property.notifySignal().invoke(this, Qt::DirectConnection);
    }
}

Variant SavedProperties::DefaultUnder(std::string_view name) const {
    DefaultFinder finder(name);
    WriteControl(finder);
    return finder.Found;
}

void SavedProperties::TakeDefault(const Variant& kept, std::string& text) {
    text = kept.ToPlainText();
}
void SavedProperties::TakeDefault(const Variant& kept, quillgrid::Font& font) {
    if (const auto* found = FontIn(kept)) font = *found;
}
void SavedProperties::TakeDefault(const Variant& kept, DateTime& date) {
    if (const auto* day = kept.Get<DateTime>()) date = *day;
}

std::int32_t SavedProperties::NumberIn(const Variant& kept) {
    if (const auto* flag = kept.Get<bool>()) return *flag ? 1 : 0;
    if (const auto* number = kept.Get<std::int16_t>()) return *number;
    const auto* number = kept.Get<std::int32_t>();
    return number ? *number : 0;
}

} // namespace quillgrid::qt
