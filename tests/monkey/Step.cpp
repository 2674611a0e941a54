#include "tests/monkey/Step.h"

#include <sstream>

namespace quillgrid::monkey {

std::uint32_t Chance::Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return static_cast<std::uint32_t>((mixed ^ (mixed >> 31U)) >> 32U);
}

std::uint16_t ChooseAct(const Repertoire& repertoire, std::uint32_t random) {
    std::uint32_t sum = 0;
    for (const ActName& act : repertoire)
        sum += act.Weight;
    std::uint32_t left = random % sum;
    std::uint16_t place = 0;
    while (left >= repertoire[place].Weight)
        left -= repertoire[place++].Weight;
    return place;
}

Steps MakeSteps(const Repertoire& repertoire, std::uint64_t seed, std::size_t count) {
    Chance chance(seed);
    Steps steps(count);
    for (Step& step : steps) {
        step.Act = ChooseAct(repertoire, chance.Next());
        step.A = chance.Next();
        step.B = chance.Next();
        step.C = chance.Next();
    }
    return steps;
}

std::string Print(const Repertoire& repertoire, const Steps& steps) {
    std::ostringstream out;
    for (const Step& step : steps)
        out << repertoire[step.Act].Name << ' ' << step.A << ' ' << step.B << ' ' << step.C << '\n';
    return out.str();
}

Steps Parse(const Repertoire& repertoire, std::string_view text) {
    Steps steps;
    std::istringstream in{std::string(text)};
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        std::string name;
        Step step;
        if (!(words >> name >> step.A >> step.B >> step.C)) continue;
        for (; step.Act < repertoire.size(); ++step.Act) {
            if (name == repertoire[step.Act].Name) break;
        }
        if (step.Act < repertoire.size()) steps.push_back(step);
    }
    return steps;
}

} // namespace quillgrid::monkey
