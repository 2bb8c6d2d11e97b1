#include <corvane/workbench/testing/Bench.hpp>

#include <cstdio>
#include <exception>
#include <string>

namespace {

bool test() {
    corvane::workbench::testing::Bench bench(SKILL_LIBRARY);
    const auto volume = bench.add("Tank.Tank", "Reservoir").at("volume");
    const bool isValidAtFirst = volume.text() == "5" && volume.error().empty();
    volume.set("0");
    return isValidAtFirst && volume.error() == "The volume must be greater than 0 m³." &&
           bench.errorCount() == 1;
}

} // namespace

int main() {
    try {
        return test() ? 0 : 1;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "%s\n", exception.what());
        return 1;
    }
}
