#include "tests/monkey/Shrink.h"

#include <algorithm>

namespace quillgrid::monkey {

namespace {

using Fails = std::function<bool(const Steps&)>;

bool LeaveOut(Steps& steps, std::size_t piece, const Fails& fails) {
    bool less = false;
    for (std::size_t end = steps.size(); end > 0;) {
        const std::size_t start = end > piece ? end - piece : 0;
        Steps rest(steps);
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(start),
                   rest.begin() + static_cast<std::ptrdiff_t>(end));
        if (fails(rest)) {
            steps = std::move(rest);
            less = true;
        }
        end = start;
    }
    return less;
}

void ZeroNumbers(Steps& steps, const Fails& fails) {
    for (std::size_t place = 0; place < steps.size(); ++place) {
        for (std::uint32_t Step::*number : {&Step::A, &Step::B, &Step::C}) {
            if (steps[place].*number == 0) continue;
            Steps simpler(steps);
            simpler[place].*number = 0;
            if (fails(simpler)) steps = std::move(simpler);
        }
    }
}

} // namespace

Steps Shrink(Steps steps, const Fails& fails) {
    for (std::size_t piece = std::max<std::size_t>(steps.size() / 2, 1);;) {
        const bool less = LeaveOut(steps, std::min(piece, steps.size()), fails);
        if (piece == 1 && !less) break;
        if (piece > 1) piece /= 2;
    }
    ZeroNumbers(steps, fails);
    return steps;
}

} // namespace quillgrid::monkey
