#include <corvane/workbench/bindings/PropertyChangedCallback.hpp>

namespace corvane::workbench::bindings {

namespace {

template <class... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};

} // namespace

PropertyChangedCallback::operator bool() const {
    return std::visit(Overloaded{[](std::nullptr_t) { return false; },
                                 [](const auto& function) { return static_cast<bool>(function); }},
                      callback_);
}

void PropertyChangedCallback::operator()(Action action, std::size_t index) const {
    std::visit(Overloaded{[](std::nullptr_t) { throw std::bad_function_call(); },
                          [](const Plain& function) { function(); },
                          [&](const Detailed& function) { function(action, index); }},
               callback_);
}

void PropertyChangedCallback::operator()() const {
    (*this)(Action::Update, 0);
}

} // namespace corvane::workbench::bindings
