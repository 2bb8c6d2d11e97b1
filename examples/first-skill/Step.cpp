#include "Step.hpp"

namespace first_skill {

void Step::describe(kit::Form& form) {
    form.text("ingredient", "Ingredient", ingredient_).required("Name the ingredient.");
    form.integer("speed", "Speed", speed)
        .initially(100)
        .rule([](std::int64_t value) { return value > 0; }, "The speed must be greater than 0.");
    form.reference("waitsFor", "Waits for", waitsFor_).optional().savedWhenNotInitial();
}

} // namespace first_skill
