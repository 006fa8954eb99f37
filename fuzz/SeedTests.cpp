// usage: larkspan_fuzz_tests FOLDER COUNT
// Checks each target with its seeds in FOLDER and with COUNT inputs that are made of them, always the same ones: what
// fuzzing has found once is found by every build, with every compiler.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "Target.h"

namespace {

using larkspan::fuzz::Target;
using Seeds = std::vector<std::string>;

constexpr std::size_t longestInput = 8'192;

Seeds seedsOf(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) paths.push_back(entry.path());
    std::ranges::sort(paths);
    Seeds seeds;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return seeds;
}

/// Makes inputs of seeds. Its numbers are the same with every standard library.
class Mutations {
public:
    explicit Mutations(const Seeds& seeds)
        : seeds_(seeds)
    {
    }

    std::string next()
    {
        auto input = oneOf(seeds_);
        for (auto count = 1 + below(4); count > 0; --count) mutate(input);
        input.resize(std::min(input.size(), longestInput));
        return input;
    }

private:
    std::size_t below(std::size_t count) { return random_() % count; }
    const std::string& oneOf(const Seeds& seeds) { return seeds[below(seeds.size())]; }

    std::string partOf(const std::string& text)
    {
        const auto begin = below(text.size() + 1);
        return text.substr(begin, below(32));
    }

    void mutate(std::string& input)
    {
        const auto at = below(input.size() + 1);
        switch (below(5)) {
        case 0: input.insert(at, 1, static_cast<char>(below(256))); break;
        case 1: input.erase(at, 1 + below(8)); break;
        case 2: input.insert(at, partOf(input)); break;
        case 3: input.insert(at, partOf(oneOf(seeds_))); break;
        default:
            if (at < input.size()) input[at] = static_cast<char>(input[at] ^ (1 << below(8)));
        }
    }

    const Seeds& seeds_;
    std::mt19937 random_{1};
};

bool passes(const Target& target, const std::string& input)
{
    try {
        target.check(input);
        return true;
    } catch (const std::exception& error) {
        const auto path = std::filesystem::path(target.name).concat(".failed");
        std::ofstream(path, std::ios::binary) << input;
        std::printf("%s: not so: %s; see %s\n", path.stem().c_str(), error.what(), absolute(path).c_str());
        return false;
    }
}

bool passes(const Target& target, const Seeds& seeds, int count)
{
    if (seeds.empty() || !std::ranges::all_of(seeds, [&](const auto& seed) { return passes(target, seed); }))
        return false;
    Mutations mutations(seeds);
    while (count-- > 0) {
        if (!passes(target, mutations.next())) return false;
    }
    return true;
}

}  // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) return 2;
    bool passed = true;
    for (const auto& target : larkspan::fuzz::targets()) {
        const auto seeds = seedsOf(std::filesystem::path(argv[1]) / target.name);
        std::printf("%s: %zu seeds\n", std::string(target.name).c_str(), seeds.size());
        std::fflush(stdout);
        passed = passes(target, seeds, std::atoi(argv[2])) && passed;
    }
    return passed ? 0 : 1;
}
