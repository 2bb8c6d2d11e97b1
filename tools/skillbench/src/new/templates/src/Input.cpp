#include "Input.hpp"

#include <corvane/workbench/kit/translate.hpp>

namespace @NAMESPACE@ {

void Input::describe(kit::Form& form) {
    form.reference("source", "Source", source_);
    form.number("share", "Share", share).unit("%").initially(10).rule(
        [](double value) { return value > 0; }, "The share must be greater than 0 %.");
    form.displayName([this] {
            return source_ ? kit::text("{} % of {}", share, source_.primaryKey())
                           : kit::text("no source");
        }).follows(share, source_);
}

} // namespace @NAMESPACE@
