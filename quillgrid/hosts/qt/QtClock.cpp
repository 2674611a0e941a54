#include "quillgrid/hosts/qt/QtClock.h"

#include "quillgrid/hosts/qt/VariantConversion.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <memory>

namespace quillgrid::qt {

DateTime QtClock::Now() const {
    return DateTimeFromQt(QDateTime::currentDateTime()).value_or(DateTime{});
}

std::uint64_t QtClock::TickCount() const {
    using namespace std::chrono;
    return static_cast<std::uint64_t>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

Connection QtClock::After(std::int32_t milliseconds, std::function<void()> call) {
    // The call may end the connection, and with it the timer that is calling.
    const auto timer = std::shared_ptr<QTimer>(new QTimer, [](QTimer* done) { done->deleteLater(); });
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), std::move(call));
    timer->start(std::max(milliseconds, 0));
    return Connection([timer] { timer->stop(); });
}

MouseButtons QtClock::ButtonsDown() const {
    const Qt::MouseButtons down = QGuiApplication::mouseButtons();
    return {down.testFlag(Qt::LeftButton), down.testFlag(Qt::RightButton)};
}

} // namespace quillgrid::qt
