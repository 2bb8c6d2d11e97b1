#include "fans.hpp"
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/kit/Row.hpp>
#include <corvane/workbench/model/ElementReference.hpp>

#include <cstdint>
#include <string>

namespace corvane::bench {

namespace {

using namespace workbench;

class Limit final : public kit::Row {
    void describe(kit::Form& form) override {
        form.number("threshold", "Threshold", threshold_)
            .rule([](double threshold) { return threshold >= 0; },
                  "The threshold must not be negative.");
        form.text("message", "Message", message_).required("Enter the message.");
    }

    double threshold_ = 0;
    std::string message_;
};

class Fan final : public kit::Element {
    enum class Drive : std::uint8_t { FixedSpeed, VariableSpeed };

    void describe(kit::Form& form) override;
    [[nodiscard]] bool isVariable() const { return drive_ == Drive::VariableSpeed; }
    [[nodiscard]] kit::State limitsState() const {
        return kit::require(limits_.size() <= 8, "There must be no more than eight limits.");
    }

    std::string location_;
    double power_ = 0;
    std::int64_t blades_ = 0;
    Drive drive_ = Drive::FixedSpeed;
    bool reversible_ = false;
    chrono::Duration runUp_;
    double lowest_ = 0;
    double highest_ = 0;
    model::ElementReference source_;
    kit::Rows<Limit> limits_;
};

void Fan::describe(kit::Form& form) {
    form.text("location", "Location", location_).required("Say where the fan is.");
    form.number("power", "Power", power_)
        .initially(1.5)
        .rule([](double power) { return power > 0; }, "The power must be greater than 0.");
    form.integer("blades", "Blades", blades_).initially(6).range(2, 24);
    form.choice("drive", "Drive", drive_, {"fixed speed", "variable speed"});
    form.flag("reversible", "Reversible", reversible_);
    form.duration("runUp", "Run-up time", runUp_).initially({3, chrono::Duration::Units::Seconds});
    form.number("lowest", "Lowest speed", lowest_)
        .initially(200)
        .visibleIf([this] { return isVariable(); }, drive_)
        .savedWhenVisible();
    form.number("highest", "Highest speed", highest_)
        .initially(900)
        .rule([this] { return highest_ > lowest_; }, "The highest speed must lie above the lowest.",
              lowest_)
        .visibleIf([this] { return isVariable(); }, drive_)
        .savedWhenVisible();
    form.reference("source", "Source", source_).optional();
    form.rows("limits", "Limits", limits_).rule([this] { return limitsState(); });
}

} // namespace

std::unique_ptr<skill::Element> makeDescribedFan() {
    return std::make_unique<Fan>();
}

} // namespace corvane::bench
