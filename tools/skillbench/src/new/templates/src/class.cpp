#include "@CLASS@.hpp"

namespace @NAMESPACE@ {

void @CLASS@::describe(kit::Form& form) {
    form.text("location", "Location", location_)
        .initially("Hall 1")
        .required("Enter the location.");
    form.choice("mode", "Mode", mode_, {"manual", "automatic"}).initially(Mode::Automatic);
    form.number("limit", "Limit", limit_)
        .unit("%")
        .initially(80)
        .rule([](double limit) { return limit > 0 && limit <= 100; },
              "The limit must be greater than 0 and at most 100 %.")
        .visibleIf([this] { return mode_ == Mode::Automatic; }, mode_)
        .savedWhenVisible();
    form.rows("inputs", "Inputs", inputs_)
        .rule([this] { return inputsState(); }, limit_)
        .proposes(&Input::share, 10)
        .savedWhenNotInitial();

    form.attribute("level", model::Attribute::Access::ReadOnly, data::DataType::kAny);
    form.event("limitExceeded");
    form.task("reset");
}

// A rule over all rows.
kit::State @CLASS@::inputsState() const {
    double sum = 0;
    for (const Input& input : inputs_) {
        sum += input.share;
    }
    return kit::require(sum <= limit_, "The shares of the inputs must not exceed the limit.");
}

} // namespace @NAMESPACE@
