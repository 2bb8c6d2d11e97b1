#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/data/DataType.hpp>
#include <corvane/workbench/io/Direction.hpp>
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>
#include <corvane/workbench/kit/Rows.hpp>
#include <corvane/workbench/kit/Setting.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/kit/internal/Description.hpp>
#include <corvane/workbench/kit/internal/Subject.hpp>
#include <corvane/workbench/kit/internal/kinds.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/Task.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory_resource>
#include <span>
#include <string>
#include <type_traits>

namespace corvane::workbench::kit {

/// What an element or a row says about itself, once. It is given to `describe`, which names each
/// setting with the field that holds its value, and each attribute, event and task.
///
/// A form is filled in whenever something has to be known: to load, to save, to list what a user
/// may edit, and so on. So `describe` says the same each time, whatever the values are at the
/// moment (a setting that is not always there is described always, and made visible on a
/// condition), calls nobody, and changes nothing. Texts are literals. Fields are members of the
/// object that is described, or of something that it owns for as long as it lives. What is passed
/// as a function is kept and called later: capture `this`, no local variables.
///
/// Each setting has a name, unique in the object (its member in files and its name on command
/// lines), and a display name. The user sees the settings, and files have them, in the order in
/// which they are described.
class Form {
public:
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    /// @name Settings of one value
    /// @{

    /// Any text, UTF-8.
    Setting<std::string> text(Text name, Text displayName, std::string& field);
    /// A number with or without a fraction.
    Setting<double> number(Text name, Text displayName, double& field);
    /// A whole number; what does not fit the field's type is refused.
    template <std::integral Integer>
        requires(!std::same_as<Integer, bool>)
    Setting<Integer> integer(Text name, Text displayName, Integer& field) {
        return begin(name, displayName, field, internal::IntegerKind<Integer>::kInstance);
    }
    /// True or false in files.
    Setting<bool> flag(Text name, Text displayName, bool& field);
    /// One of the values 0, 1, ... of an enumeration. Their texts stand in files as they are and
    /// are translated for the user.
    template <class Enumeration>
        requires std::is_enum_v<Enumeration>
    Setting<Enumeration> choice(Text name, Text displayName, Enumeration& field,
                                std::initializer_list<Text> texts) {
        return choice(name, displayName, field, std::span(texts.begin(), texts.size()));
    }
    /// The same with the texts in an array, which is not needed after the call.
    template <class Enumeration>
        requires std::is_enum_v<Enumeration>
    Setting<Enumeration> choice(Text name, Text displayName, Enumeration& field,
                                std::span<const Text> texts) {
        Setting<Enumeration> setting =
            begin(name, displayName, field, internal::ChoiceKind<Enumeration>::kInstance);
        keepChoices(texts);
        return setting;
    }
    /// A time span, with its unit.
    Setting<chrono::Duration> duration(Text name, Text displayName, chrono::Duration& field);
    /// A time stamp such as "2024-05-06 07:08:09Z", kept as text so that fraction and offset stay
    /// as they were written; completed while it is typed. It may be empty. A file may hold
    /// anything: what is no time stamp is an error of the property.
    Setting<std::string> timeStamp(Text name, Text displayName, std::string& field);
    /// Completed while it is typed.
    Setting<utils::core::Uuid> uuid(Text name, Text displayName, utils::core::Uuid& field);

    /// @}
    /// @name References
    /// The state of the property is whether they resolve, in the library's words; an empty one is
    /// an error unless it is optional().
    /// @{

    /// To an element.
    Setting<model::ElementReference> reference(Text name, Text displayName,
                                               model::ElementReference& field);
    /// To an attribute of an element.
    Setting<model::AttributeReference> reference(Text name, Text displayName,
                                                 model::AttributeReference& field);
    /// To an event of an element.
    Setting<process::EventReference> reference(Text name, Text displayName,
                                               process::EventReference& field);
    /// To a task of an element.
    Setting<process::TaskReference> reference(Text name, Text displayName,
                                              process::TaskReference& field);

    /// @}
    /// @name Settings of other shapes
    /// @{

    /// Settings of any shape, kept without knowing their meaning, shown as a line of JSON. Empty
    /// ones are not saved.
    Setting<json::Object> json(Text name, Text displayName, json::Object& field);
    /// The same for JSON of any kind.
    Setting<json::Value> json(Text name, Text displayName, json::Value& field);

    /// A list of rows, each described by itself.
    template <class RowType>
    Setting<Rows<RowType>> rows(Text name, Text displayName, Rows<RowType>& field) {
        return begin(name, displayName, field, internal::rowsKind());
    }

    /// A text that follows from settings and cannot be edited: it is neither loaded nor saved.
    template <class Function>
        requires std::is_invocable_r_v<std::wstring, Function&>
    Derived derived(Text name, Text displayName, Function function) {
        Derived derived = beginDerived(name, displayName);
        if (current_.purpose == internal::Purpose::List) {
            current_.behaviour->derivedText = std::move(function);
        }
        return derived;
    }

    /// @}
    /// @name Rows only
    /// @{

    /// The name under which the user sees the row, and the settings it is made from. Without one, a
    /// row is named by the text of its first setting.
    template <class Function>
        requires std::is_invocable_r_v<std::wstring, Function&>
    Derived displayName(Function function) {
        Derived derived = beginDisplayName();
        if (current_.purpose == internal::Purpose::Name) {
            current_.behaviour->derivedText = std::move(function);
        }
        return derived;
    }
    /// The row stands in files as the value of its only setting, not as an object with one member.
    void writtenAsValue();

    /// @}
    /// @name Elements only
    /// @{

    /// An attribute that is kept elsewhere, such as a predefined one.
    Member attribute(const model::Attribute& attribute);
    /// The attribute can be read, written, or both, as its access says.
    Member attribute(Text name, model::Attribute::Access access, const data::DataType& type);
    /// An event that is kept elsewhere, such as a predefined one.
    Member event(const process::Event& event);
    /// The event is relevant in the given directions.
    Member event(Text name, utils::core::Flags<io::Direction> directions = io::Direction::Read);
    /// A task that is kept elsewhere, such as a predefined one.
    Member task(const process::Task& task);
    /// A task of that name.
    Member task(Text name);

    /// @}

protected:
    /// Nothing is described before fillIn().
    Form(const internal::Subject& subject, internal::Purpose purpose)
        : subject_(subject), current_(*subject.controller, purpose, memory_) {}

    /// What describes itself.
    [[nodiscard]] const internal::Subject& subject() const noexcept { return subject_; }
    /// The controller of the properties that are described.
    [[nodiscard]] bindings::PropertyController& owner() const noexcept {
        return *subject_.controller;
    }

    /// Has the subject describe itself.
    void fillIn();

private:
    template <class T>
    friend class Setting;

    /// Takes a complete description, which the next one overwrites.
    virtual void take(internal::Description& description) = 0;
    /// The row is written as a value.
    virtual void takeWrittenAsValue() {}

    template <class T>
    Setting<T> begin(Text name, Text displayName, T& field, const internal::SettingKind& kind) {
        if constexpr (std::is_base_of_v<internal::RowList, T>) {
            internal::RowList& rows = field;
            beginSetting(name, displayName, {.address = &rows, .kind = &kind});
            current_.rows = &rows;
            current_.property = internal::fieldId(owner(), &field);
            rows.place(subject_, current_.property);
        } else {
            beginSetting(name, displayName, {.address = &field, .kind = &kind});
            if (current_.identifiesProperties()) {
                current_.property = internal::fieldId(owner(), &field);
            }
        }
        if constexpr (std::is_base_of_v<bindings::CrossReferenceController, T>) {
            if (current_.behaviour) {
                current_.behaviour->classified.crossReferenceController = &field;
            }
        }
        return Setting<T>(current_, field);
    }
    void begin(internal::Description::Subject subject, Text name, Text displayName);
    void beginSetting(Text name, Text displayName, const internal::Field& field);
    /// Has the derived form take what was described last.
    void handOver();
    Derived beginDerived(Text name, Text displayName);
    Derived beginDisplayName();
    void keepChoices(std::span<const Text> texts);

    Member beginMember(internal::Description::Subject subject, Text name, const void* member);

    internal::Subject subject_;
    /// For the lists of the description and the texts of choices: most need no more than this.
    std::array<std::byte, 512> buffer_;
    std::pmr::monotonic_buffer_resource memory_{buffer_.data(), buffer_.size()};
    internal::Description current_;
    std::uint32_t count_ = 0;
};

} // namespace corvane::workbench::kit
