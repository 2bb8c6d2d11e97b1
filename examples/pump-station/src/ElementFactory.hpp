#pragma once

#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <memory>

namespace pump_station {

/// Makes elements of one C++ class. Copying relies on the copy constructor of that class: it copies
/// the settings, while its base starts afresh, without a place in the tree.
template <class T>
class ElementFactory final : public corvane::workbench::skill::AbstractElementFactory {
public:
    [[nodiscard]] std::unique_ptr<corvane::workbench::skill::Element>
    createElement() const override {
        return std::make_unique<T>();
    }

    [[nodiscard]] std::unique_ptr<corvane::workbench::skill::Element>
    copyElement(const corvane::workbench::skill::Element& other) const override {
        return std::make_unique<T>(dynamic_cast<const T&>(other));
    }
};

} // namespace pump_station
