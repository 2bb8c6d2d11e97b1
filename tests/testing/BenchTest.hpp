#pragma once

// What the tests of the bench need: one with a mixer.

#include "MixerSkill.hpp"
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace corvane::tests {

using namespace corvane::workbench::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class BenchTest : public ::testing::Test {
protected:
    /// What the function throws says.
    template <class Exception>
    static std::string messageOf(const std::function<void()>& function) {
        try {
            function();
        } catch (const Exception& exception) {
            return exception.what();
        }
        return "nothing was thrown";
    }

    Bench bench{kMixer};
    BenchElement main = bench.add("Test.Mixer", "main");
};

} // namespace corvane::tests
