// kestrane_storm: episodes of the storm, one seed each, until the cycle
// budget is spent. A failure prints its seed; `--seed S --episodes 1 --mode M`
// repeats it.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "tests/storm/storm.h"

using namespace kestrane;

int main(int argc, char** argv) {
    std::uint64_t seed = 1;
    long budget = 200000, episode = 20000, episodes = -1;
    const char* mode = "both";
    bool keep_going = false;  // report every failing seed, not only the first
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string a = argv[i];
        if (a == "--seed")
            seed = std::strtoull(argv[i + 1], nullptr, 10);
        else if (a == "--cycles")
            budget = std::strtol(argv[i + 1], nullptr, 10);
        else if (a == "--episode")
            episode = std::strtol(argv[i + 1], nullptr, 10);
        else if (a == "--episodes")
            episodes = std::strtol(argv[i + 1], nullptr, 10);
        else if (a == "--mode")
            mode = argv[i + 1];
        else if (a == "--keep-going")
            keep_going = std::strcmp(argv[i + 1], "1") == 0;
        else {
            std::fprintf(stderr,
                         "usage: kestrane_storm [--seed S] [--cycles N] [--episode N] [--episodes N] "
                         "[--mode finite|hostile|both] [--keep-going 0|1]\n");
            return 2;
        }
    }
    host::Host host;
    if (!host.ok()) {
        std::fprintf(stderr, "kestrane_storm: %s\n", host.error().c_str());
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    storm::Result total, r;
    long runs = 0, failed = 0;
    for (std::uint64_t s = seed; episodes < 0 ? total.cycles < budget : runs < episodes; ++s) {
        storm::Options o;
        o.seed = s;
        o.cycles = episode;
        o.mode = std::strcmp(mode, "hostile") == 0  ? storm::Mode::Hostile
                 : std::strcmp(mode, "finite") == 0 ? storm::Mode::Finite
                 : (s & 1)                          ? storm::Mode::Hostile
                                                    : storm::Mode::Finite;
        ++runs;
        if (!storm::run_episode(host, o, r)) {
            ++failed;
            std::printf("storm: FAILED %s\n", r.failure);
            std::printf("storm: repeat with --seed %llu --episodes 1 --mode %s --episode %ld\n",
                        static_cast<unsigned long long>(s), storm::mode_name(o.mode), episode);
        }
        total.cycles += r.cycles;
        total.steps += r.steps;
        total.mouse += r.mouse;
        total.values += r.values;
        total.reinstalls += r.reinstalls;
        if (failed > 0 && !keep_going)
            break;
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf(
        "storm: seeds %llu..%llu, %ld cycles, %ld steps, %ld mouse actions, %ld host values, "
        "%ld reinstalls, last episode saw %d tokens, %d named variables, %d expressions, %.1f s\n",
        static_cast<unsigned long long>(seed), static_cast<unsigned long long>(seed + runs - 1), total.cycles,
        total.steps, total.mouse, total.values, total.reinstalls, r.tokens, r.named, r.expressions, seconds);
    std::printf("storm: %ld passed, %ld failed\n", runs - failed, failed);
    return failed == 0 ? 0 : 1;
}
