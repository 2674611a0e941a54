#pragma once

#include "tests/monkey/Step.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quillgrid::monkey {

/// What a monkey can do and how it does it: Play runs the steps on a fresh form and says what no longer held,
/// nothing when all was well.
struct Monkey {
    Repertoire Acts;
    std::function<std::string(const Steps&)> Play;
};

struct Lives {
    std::uint64_t FirstSeed = 1;
    std::uint32_t Count = 1;        ///< as many seeds, one after the other
    std::uint32_t Length = 1000;    ///< steps of each
    std::uint32_t PerProcess = 20;  ///< lives in one child process
    std::uint32_t SecondsEach = 30; ///< a life that takes longer hangs
};

/// Runs the lives in child processes, so that a crash is a result. What the first one that fails needs is
/// returned as a replay with a line about the failure on top; empty when all went well.
std::string PlayLives(const Monkey& monkey, const Lives& lives);

/// Plays the steps in a child process: what failed, or nothing.
std::string PlayApart(const Monkey& monkey, const Steps& steps, std::uint32_t seconds);

} // namespace quillgrid::monkey
