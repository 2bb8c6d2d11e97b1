#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <tl/expected.hpp>

#include <cstddef>
#include <string>

namespace corvane::tests {

/// What the skill libraries of these tests offer to the program: the things that have to cross from
/// one library into another. Reached through the skill's instance with dynamic_cast, which itself
/// needs the two sides to agree on types.
class BoundaryProbe : public workbench::skill::Skill {
public:
    /// Throws a std::runtime_error "from the skill".
    virtual void throwStandard() const = 0;
    /// Throws the decoder's located exception for the member "speed" in line 3, column 5.
    virtual void throwLocated() const = 0;
    /// Calls the function and says what came out of it: the kind of exception and its text.
    virtual std::string nameWhatComesOut(utils::core::function_ref<void()> function) const = 0;
    /// A long text as value, or a long text as error.
    virtual tl::expected<std::wstring, std::wstring> longText(bool asError) const = 0;
    /// Takes over a string and gives back another, so that memory is freed on the other side.
    virtual std::string doubled(std::string&& text) const = 0;
};

} // namespace corvane::tests
