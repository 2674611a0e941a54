#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillgrid::monkey {

/// One thing that the monkey does: the place of an act in its repertoire, and numbers that the act reads as
/// it likes. Steps know nothing of the steps before them, so that any of them can be left out of a replay.
struct Step {
    std::uint16_t Act = 0;
    std::uint32_t A = 0;
    std::uint32_t B = 0;
    std::uint32_t C = 0;

    friend bool operator==(const Step&, const Step&) = default;
};
using Steps = std::vector<Step>;

/// The name of an act in replays, and how often it is chosen.
struct ActName {
    const char* Name;
    std::uint32_t Weight;
};
using Repertoire = std::vector<ActName>;

/// A random number generator that is the same everywhere.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : state_(seed) {}
    std::uint32_t Next();

private:
    std::uint64_t state_;
};

/// One act, by weight.
std::uint16_t ChooseAct(const Repertoire& repertoire, std::uint32_t random);
Steps MakeSteps(const Repertoire& repertoire, std::uint64_t seed, std::size_t count);

/// One line a step: name and three numbers.
std::string Print(const Repertoire& repertoire, const Steps& steps);
/// The reverse; lines that are no steps are left out.
Steps Parse(const Repertoire& repertoire, std::string_view text);

} // namespace quillgrid::monkey
