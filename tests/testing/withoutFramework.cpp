// The bench without GoogleTest: plain values, and exceptions for what a test does not expect.
#include "MixerSkill.hpp"
#include <corvane/workbench/testing/Bench.hpp>

#include <cstdio>
#include <exception>

namespace {

int failures = 0;

void check(bool condition, const char* sentence) {
    if (!condition) {
        std::fprintf(stderr, "not so: %s\n", sentence);
        ++failures;
    }
}

void testMixer() {
    namespace testing = corvane::workbench::testing;
    testing::Bench bench{corvane::tests::kMixer};
    const testing::BenchElement mixer = bench.add("Test.Mixer", "main");
    mixer.at("drive").set("variable");
    mixer.at("topSpeed").set("3001");
    check(mixer.at("topSpeed").error() == "The top speed must lie between 1 and 3000.",
          "the top speed has a limit");
    check(mixer.at("topSpeed").trySet("fast") == "“fast” is not a whole number.",
          "the top speed is a number");
    check(bench.errorCount() == 1, "the error counts");
    check(bench.announced().empty(), "what is refused is not announced");
}

} // namespace

int main() {
    try {
        testMixer();
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "%s\n", exception.what());
        return 1;
    }
    return failures == 0 ? 0 : 1;
}
