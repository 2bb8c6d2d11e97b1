#include "TestBench.hpp"

#include <string>
#include <vector>

namespace corvane::tests {
namespace {

class Counted final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.number("first", "First", first)
            .then([this] { log.emplace_back("then 1"); })
            .then([this] { log.emplace_back("then 2"); });
        form.number("second", "Second", second).then([this] { log.emplace_back("second"); });
    }
    using kit::Element::changed;

    double first = 0;
    double second = 0;
    std::vector<std::string> log;
};

class Then : public ::testing::Test {
protected:
    TestBench<Counted> bench;
    Counted& object = bench.object();
    bindings::PropertyController::Subscription subscription =
        object.property(object.first).subscribe({.value = [this] {
            object.log.push_back("heard");
        }});
};

TEST_F(Then, IsDoneInOrderWhenEverybodyHasHeardOfTheUsersChange) {
    EXPECT_TRUE(bench.setting("first").property().setText(L"1"));
    EXPECT_THAT(object.log, ElementsAre("heard", "then 1", "then 2"));
}

TEST_F(Then, IsDoneAfterAChangeByTheSkill) {
    object.changed(object.first);
    EXPECT_THAT(object.log, ElementsAre("heard", "then 1", "then 2"));
}

TEST_F(Then, IsNotDoneForARefusedTextNorForOtherSettings) {
    EXPECT_FALSE(bench.setting("first").property().setText(L"x"));
    EXPECT_THAT(object.log, IsEmpty());
    EXPECT_TRUE(bench.setting("second").property().setText(L"1"));
    EXPECT_THAT(object.log, ElementsAre("second"));
}

} // namespace
} // namespace corvane::tests
