#include "Input.hpp"

#include <corvane/workbench/kit/translate.hpp>

namespace @NAMESPACE@ {

void Input::describe(kit::Form& form) {
    form.reference("source", "Source", source_);
    form.number("share", "Share", share)
        .unit("%")
        .initially(10)
        .rule([](double value) { return value > 0; }, "The share must be greater than 0 %.");
    form.displayName([this] { return displayText(); }).follows(share, source_);
}

std::wstring Input::displayText() const {
    if (!source_) {
        return kit::text("no source");
    }
    return kit::text("{} % of {}", share, source_.primaryKey());
}

} // namespace @NAMESPACE@
