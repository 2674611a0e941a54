#include "quillgrid/hosts/qt/QtClock.h"

#include "quillgrid/hosts/qt/VariantConversion.h"

#include <QDateTime>

#include <chrono>

namespace quillgrid::qt {

DateTime QtClock::Now() const {
    return DateTimeFromQt(QDateTime::currentDateTime()).value_or(DateTime{});
}

std::uint64_t QtClock::TickCount() const {
    using namespace std::chrono;
    return static_cast<std::uint64_t>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

} // namespace quillgrid::qt
