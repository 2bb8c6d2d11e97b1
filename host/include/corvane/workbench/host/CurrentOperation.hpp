#pragma once

#include <corvane/utils/core/function_ref.hpp>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::host {

class ElementNode;

/// What a skill is doing for the workbench, or for a program around it, while the object lives. So
/// whoever learns that a skill has gone wrong, be it by an exception, by the end of the process or
/// by a signal, can say which one and where. Objects live on the stack; each thread has its own.
///
/// Making one costs a few instructions and copies nothing: what it refers to must outlive it.
class CurrentOperation {
public:
    /// What is being done, and what the detail says.
    enum class Kind : std::uint8_t {
        /// Of a library; the detail is its path.
        OpenLibrary,
        /// Of a skill; the detail is its id.
        Describe,
        RegisterClasses,
        /// Of an element class; the detail is its id.
        Create,
        /// Of an element; when it has no name yet, the detail is the id of its class.
        Load,
        MakeDefault,
        ResolveReferences,
        Configure,
        ListMembers,
        ListProperties,
        Save,
        /// What has just been saved.
        LoadAgain,
        Destroy,
        /// Of a property of an element; the detail is its path.
        GiveState,
        GiveValue,
        SetValue,
        /// Of the element that holds a reference whose key or target is another now.
        FollowReference
    };

    /// Where a configuration file is being read, line and column are the place in it.
    explicit CurrentOperation(Kind kind, std::string_view detail, std::uint64_t line = 0,
                              std::uint64_t column = 0) noexcept;
    /// Of an element.
    CurrentOperation(Kind kind, const ElementNode& element, std::string_view detail = {}) noexcept;
    /// Of the element that holds a reference.
    CurrentOperation(Kind kind, const model::internal::BasicElementReference& reference) noexcept;
    CurrentOperation(const CurrentOperation&) = delete;
    CurrentOperation& operator=(const CurrentOperation&) = delete;
    ~CurrentOperation();

    /// The innermost one of this thread, or null. Like everything below, it may be called in the
    /// handler of a signal that this thread has caused: nothing allocates or throws.
    [[nodiscard]] static const CurrentOperation* innermost() noexcept;

    /// What is being done.
    [[nodiscard]] Kind kind() const noexcept { return kind_; }
    /// The place in the file that is being read or that the element was loaded from; 0 when
    /// unknown.
    /// @{
    [[nodiscard]] std::uint64_t line() const noexcept;
    [[nodiscard]] std::uint64_t column() const noexcept;
    /// @}

    /// Hands out, piece by piece, who does it: "the skill “pumps”".
    void writeSubject(utils::core::function_ref<void(std::string_view)> write) const noexcept;
    /// The same for what is done: "saving the element “PLC.Pump”".
    void writeAction(utils::core::function_ref<void(std::string_view)> write) const noexcept;

private:
    /// Null where there is none.
    [[nodiscard]] const ElementNode* element() const noexcept;

    const CurrentOperation* const outer_;
    const ElementNode* const element_ = nullptr;
    const model::internal::BasicElementReference* const reference_ = nullptr;
    const std::string_view detail_;
    const std::uint64_t line_ = 0;
    const std::uint64_t column_ = 0;
    const Kind kind_;
};

/// A skill has thrown during an operation; the text names the skill, the operation and the reason.
class SkillFailure final : public std::runtime_error {
public:
    /// Of the operation that is under way.
    SkillFailure(const CurrentOperation& operation, std::string_view reason);

    /// Those of the operation.
    /// @{
    [[nodiscard]] std::uint64_t line() const noexcept { return line_; }
    [[nodiscard]] std::uint64_t column() const noexcept { return column_; }
    /// @}

private:
    std::uint64_t line_;
    std::uint64_t column_;
};

namespace internal {

/// Throws the exception that is being handled on: as a SkillFailure when it is no std::exception,
/// and also when it is one that nobody would say where it comes from.
[[noreturn]] void throwOn(const CurrentOperation& operation);

} // namespace internal

/// Calls a function that calls a skill, as an operation. What it throws becomes a SkillFailure; but
/// a std::exception during the load of a configuration stays what it is, because its place in the
/// file is known.
template <class Call, class... Subject>
decltype(auto) callSkill(CurrentOperation::Kind kind, Call&& call, Subject&&... subject) {
    const CurrentOperation operation(kind, std::forward<Subject>(subject)...);
    try {
        return std::forward<Call>(call)();
    } catch (...) {
        internal::throwOn(operation);
    }
}

} // namespace corvane::workbench::host
