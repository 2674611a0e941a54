// What the monkey once broke, as short as it could be made.
#include "tests/monkey/MonkeyForm.h"
#include "tests/monkey/Shrink.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <unistd.h>

namespace quillgrid::monkey {
namespace {

struct Replay {
    const char* Fault;
    const char* Steps;
};

const Replay Replays[] = {
    {"a timer waited for a spin cell that was removed",
     "create 3217846962 4170405846 0\nremove 0 3403011531 0\nadd-group 0 0 0\npress 3328497467 0 0\n"
     "arm 1952455525 1198575743 0\ntype 0 0 0\n"},
    {"another style scrolled away under the edit box of a cell that held the user",
     "create 2298198251 3717421282 0\ncell-call 170805312 1140303819 0\ntype-text 4130240466 0 0\n"
     "arm 1433057833 1498860211 0\nstyle 0 0 0\n"},
    {"a row without a cell was current when the container threw at a new style",
     "terminate 0 0 0\nkey 0 0 0\nrules 0 0 0\narm 0 0 0\narm 0 0 0\ntype 0 0 0\npress 0 0 0\n"
     "cell-call 0 0 0\nscroll 0 0 0\ndrop 0 0 0\nrules 0 0 0\nkey 0 0 0\narm 0 0 0\n"
     "rules 4263014487 0 0\narm 3139788955 256689338 0\narm 2172960138 1928189979 0\n"
     "set-property 4200404872 0 0\n"},
    {"a drop-down waited for a cell that had been left and then removed",
     "arm 212792914 3024617408 0\ncell-call 0 778311983 0\ntype 0 15998206 0\nlist 0 0 0\nadd 0 0 0\n"
     "settle 0 0 0\nlook 0 1153931498 2464403470\narm 2451084495 2926729178 0\n"
     "define 1955139983 0 183182766\ncell-call 3000590369 2949320139 0\nadd 0 0 0\n"
     "drop-down 2287922817 3494290406 0\ndrop-down 0 437213114 0\nremove 1029837722 701949963 0\n"},
};

TEST(Monkey, WhatItOnceBrokeStaysMended) {
    const Monkey monkey = HeadlessMonkey();
    for (const Replay& replay : Replays) {
        SCOPED_TRACE(replay.Fault);
        const Steps steps = Parse(monkey.Acts, replay.Steps);
        EXPECT_EQ(Print(monkey.Acts, steps), replay.Steps);
        EXPECT_EQ(PlayApart(monkey, steps, 30), "");
    }
}

TEST(Monkey, AReplayIsShrunkToWhatTheFailureNeeds) {
    const Repertoire acts = {{"harmless", 8}, {"load", 1}, {"fire", 1}};
    const auto fails = [](const Steps& steps) {
        bool loaded = false;
        for (const Step& step : steps) {
            if (step.Act == 2 && loaded) return true;
            loaded = loaded || (step.Act == 1 && step.B > 1000);
        }
        return false;
    };
    const Steps steps = MakeSteps(acts, 1, 500);
    ASSERT_TRUE(fails(steps));
    const Steps fewer = Shrink(steps, fails);
    ASSERT_EQ(fewer.size(), 2U);
    EXPECT_TRUE(fails(fewer));
    EXPECT_EQ(fewer[0].A, 0U);
    EXPECT_EQ(fewer[1].B, 0U);
}

TEST(Monkey, ALifeThatCrashesOrHangsIsAResult) {
    const Monkey crashes{{{"fine", 500}, {"abort", 1}}, [](const Steps& steps) {
                             for (const Step& step : steps) {
                                 if (step.Act == 1) std::abort();
                             }
                             return std::string();
                         }};
    const std::string report = PlayLives(crashes, {.Count = 50, .Length = 100});
    EXPECT_NE(report.find("signal"), std::string::npos) << report;
    EXPECT_NE(report.find("\nabort 0 0 0\n"), std::string::npos) << report;
    const Monkey hangs{{{"wait", 1}}, [](const Steps&) -> std::string {
                           for (;;)
                               pause();
                       }};
    EXPECT_EQ(PlayApart(hangs, {}, 1), "it hangs");
}

} // namespace
} // namespace quillgrid::monkey
