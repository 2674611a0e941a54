#include "tests/monkey/QtMonkeyForm.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillgrid::monkey {
namespace {

std::uint32_t FromEnvironment(const char* name, std::uint32_t fallback) {
    const char* text = std::getenv(name);
    return text ? static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10)) : fallback;
}

TEST(QtMonkey, AWidgetSurvivesWhateverUserAndHandlersDo) {
    const std::string failure = PlayLives(QtMonkey(), {.FirstSeed = FromEnvironment("MONKEY_SEED", 1),
                                                       .Count = FromEnvironment("MONKEY_LIVES", 20),
                                                       .PerProcess = 1});
    EXPECT_TRUE(failure.empty()) << failure;
}

} // namespace
} // namespace quillgrid::monkey
