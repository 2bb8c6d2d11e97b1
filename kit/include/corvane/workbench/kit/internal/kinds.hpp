#pragma once

// The kinds of settings.

#include <corvane/workbench/kit/internal/SettingKind.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace corvane::workbench::kit::internal {

[[nodiscard]] const SettingKind& textKind() noexcept;
[[nodiscard]] const SettingKind& numberKind() noexcept;
[[nodiscard]] const SettingKind& flagKind() noexcept;
[[nodiscard]] const SettingKind& durationKind() noexcept;
[[nodiscard]] const SettingKind& timeStampKind() noexcept;
[[nodiscard]] const SettingKind& uuidKind() noexcept;
[[nodiscard]] const SettingKind& jsonObjectKind() noexcept;
[[nodiscard]] const SettingKind& jsonValueKind() noexcept;
[[nodiscard]] const SettingKind& elementReferenceKind() noexcept;
[[nodiscard]] const SettingKind& attributeReferenceKind() noexcept;
[[nodiscard]] const SettingKind& eventReferenceKind() noexcept;
[[nodiscard]] const SettingKind& taskReferenceKind() noexcept;
[[nodiscard]] const SettingKind& rowsKind() noexcept;

/// A whole number of any width; it is read and shown through the widest types.
class BasicIntegerKind : public SettingKind {
public:
    [[nodiscard]] skill::EditableProperty::Editor editor() const noexcept final;
    [[nodiscard]] bool isEmpty(const Field& field) const final;
    void read(const Field& field, utils::json::decoder::Value& value,
              config::Context& context) const final;
    void write(const Field& field, utils::json::encoder::Value& value) const final;
    [[nodiscard]] std::wstring text(const Field& field) const final;
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const final;

protected:
    /// The number's bits, sign-extended, and the bounds of its type.
    struct Type {
        bool isSigned;
        std::int64_t lowest;
        std::uint64_t highest;
    };

    [[nodiscard]] virtual Type type() const noexcept = 0;
    [[nodiscard]] virtual std::uint64_t bits(const Field& field) const noexcept = 0;
    virtual void store(const Field& field, std::uint64_t bits) const noexcept = 0;

    ~BasicIntegerKind() = default;
};

template <std::integral Integer>
class IntegerKind final : public BasicIntegerKind {
public:
    static const IntegerKind kInstance;

private:
    using Limits = std::numeric_limits<Integer>;

    [[nodiscard]] Type type() const noexcept override {
        return {.isSigned = Limits::is_signed,
                .lowest = static_cast<std::int64_t>(Limits::lowest()),
                .highest = static_cast<std::uint64_t>(Limits::max())};
    }
    [[nodiscard]] std::uint64_t bits(const Field& field) const noexcept override {
        return static_cast<std::uint64_t>(*static_cast<const Integer*>(field.address));
    }
    void store(const Field& field, std::uint64_t bits) const noexcept override {
        *static_cast<Integer*>(field.address) = static_cast<Integer>(bits);
    }
};

template <std::integral Integer>
const IntegerKind<Integer> IntegerKind<Integer>::kInstance{};

/// One of the values 0, 1, ... of an enumeration, each of which has a text.
class BasicChoiceKind : public SettingKind {
public:
    [[nodiscard]] skill::EditableProperty::Editor editor() const noexcept final;
    [[nodiscard]] bool isEmpty(const Field& field) const final;
    void read(const Field& field, utils::json::decoder::Value& value,
              config::Context& context) const final;
    void write(const Field& field, utils::json::encoder::Value& value) const final;
    [[nodiscard]] std::wstring text(const Field& field) const final;
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const final;

protected:
    [[nodiscard]] virtual std::size_t index(const Field& field) const noexcept = 0;
    virtual void store(const Field& field, std::size_t index) const noexcept = 0;

    ~BasicChoiceKind() = default;

private:
    /// The text of the value. Throws std::out_of_range for a value that has none.
    [[nodiscard]] static Text choiceText(const Field& field, std::size_t index);
};

template <class Enumeration>
class ChoiceKind final : public BasicChoiceKind {
public:
    static const ChoiceKind kInstance;

private:
    [[nodiscard]] std::size_t index(const Field& field) const noexcept override {
        return static_cast<std::size_t>(*static_cast<const Enumeration*>(field.address));
    }
    void store(const Field& field, std::size_t index) const noexcept override {
        *static_cast<Enumeration*>(field.address) = static_cast<Enumeration>(index);
    }
};

template <class Enumeration>
const ChoiceKind<Enumeration> ChoiceKind<Enumeration>::kInstance{};

} // namespace corvane::workbench::kit::internal
