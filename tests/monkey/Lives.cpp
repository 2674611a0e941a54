#include "tests/monkey/Lives.h"

#include "tests/monkey/Shrink.h"

#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace quillgrid::monkey {

namespace {

struct Outcome {
    std::string Said;
    int Status = 0;
};

void Say(int pipe, const std::string& text) {
    if (write(pipe, text.data(), text.size()) < 0) std::abort();
}

std::string ReadAll(int pipe) {
    std::string text;
    char buffer[4096];
    for (ssize_t got = 0; (got = read(pipe, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<std::size_t>(got));
    return text;
}

void Hush() {
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDERR_FILENO);
}

/// Runs the work in a child that may crash or hang; `quiet` keeps its crash reports to itself.
Outcome InChild(const std::function<void(int pipe)>& work, std::uint32_t seconds, bool quiet) {
    int ends[2];
    if (pipe(ends) != 0) std::abort();
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        if (quiet) Hush();
        alarm(seconds);
        work(ends[1]);
        _exit(0);
    }
    close(ends[1]);
    Outcome outcome{ReadAll(ends[0])};
    close(ends[0]);
    waitpid(child, &outcome.Status, 0);
    return outcome;
}

std::string Describe(const Outcome& outcome) {
    if (!outcome.Said.empty()) return outcome.Said;
    if (WIFSIGNALED(outcome.Status)) {
        const int signal = WTERMSIG(outcome.Status);
        return signal == SIGALRM ? "it hangs" : "it dies of signal " + std::to_string(signal);
    }
    return outcome.Status == 0 ? "" : "it ends with " + std::to_string(WEXITSTATUS(outcome.Status));
}

/// The seed of the first life of these that fails.
std::optional<std::uint64_t> FirstFailure(const Monkey& monkey, const Lives& lives, std::uint64_t first,
                                          std::uint32_t count) {
    const auto work = [&](int pipe) {
        for (std::uint64_t seed = first; seed < first + count; ++seed) {
            Say(pipe, std::to_string(seed) + "\n");
            if (!monkey.Play(MakeSteps(monkey.Acts, seed, lives.Length)).empty()) _exit(1);
        }
    };
    const Outcome outcome = InChild(work, lives.SecondsEach * count, false);
    if (outcome.Status == 0) return std::nullopt;
    const std::string& said = outcome.Said;
    const std::size_t end = said.rfind('\n', said.size() - 2);
    return std::strtoull(said.c_str() + (end == std::string::npos ? 0 : end + 1), nullptr, 10);
}

std::string Report(const Monkey& monkey, const Lives& lives, std::uint64_t seed) {
    const Steps steps = MakeSteps(monkey.Acts, seed, lives.Length);
    const auto fails = [&](const Steps& some) { return !PlayApart(monkey, some, lives.SecondsEach).empty(); };
    const std::string title = "seed " + std::to_string(seed) + ": ";
    if (!fails(steps)) return title + "it fails only after the lives before it";
    const Steps fewer = Shrink(steps, fails);
    return title + PlayApart(monkey, fewer, lives.SecondsEach) + "\n" + Print(monkey.Acts, fewer);
}

} // namespace

std::string PlayApart(const Monkey& monkey, const Steps& steps, std::uint32_t seconds) {
    return Describe(InChild([&](int pipe) { Say(pipe, monkey.Play(steps)); }, seconds, true));
}

std::string PlayLives(const Monkey& monkey, const Lives& lives) {
    for (std::uint32_t done = 0; done < lives.Count; done += lives.PerProcess) {
        const std::uint32_t count = std::min(lives.PerProcess, lives.Count - done);
        const auto seed = FirstFailure(monkey, lives, lives.FirstSeed + done, count);
        if (seed) return Report(monkey, lives, *seed);
    }
    return {};
}

} // namespace quillgrid::monkey
