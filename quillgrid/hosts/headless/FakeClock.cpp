#include "quillgrid/hosts/headless/FakeClock.h"

namespace quillgrid::headless {

Connection FakeClock::After(std::int32_t milliseconds, std::function<void()> call) {
    const auto wait = static_cast<std::uint64_t>(std::max(milliseconds, 0));
    auto timer = std::make_shared<Timer>(Timer{Ticks + wait, std::move(call)});
    timers_->push_back(timer);
    ++started_;
    return Connection([timers = std::weak_ptr<Timers>(timers_), timer = std::weak_ptr<Timer>(timer)] {
        if (const auto list = timers.lock()) std::erase(*list, timer.lock());
    });
}

void FakeClock::Advance(std::int32_t milliseconds) {
    const std::uint64_t end = Ticks + static_cast<std::uint64_t>(std::max(milliseconds, 0));
    for (;;) {
        const auto next =
            std::min_element(timers_->begin(), timers_->end(),
                             [](const auto& left, const auto& right) { return left->Due < right->Due; });
        if (next == timers_->end() || (*next)->Due > end) break;
        const auto timer = *next;
        timers_->erase(next);
        Ticks = std::max(Ticks, timer->Due);
        timer->Call();
    }
    Ticks = end;
}

} // namespace quillgrid::headless
