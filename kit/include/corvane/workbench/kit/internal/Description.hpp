#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/data/DataType.hpp>
#include <corvane/workbench/io/Direction.hpp>
#include <corvane/workbench/kit/State.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/kit/internal/SettingKind.hpp>
#include <corvane/workbench/model/Attribute.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory_resource>
#include <optional>
#include <string>
#include <vector>

namespace corvane::workbench::kit {
class Row;
}

namespace corvane::workbench::kit::internal {

class RowList;

/// What a form is filled in for. Most of a description matters to few purposes; the others leave it
/// out.
enum class Purpose : std::uint8_t {
    Load,        ///< initial values, then those of a file
    Save,        ///< those values that are to be saved
    MakeDefault, ///< initial values
    Attributes,  ///< the attributes that there are at the moment
    Events,
    Tasks,
    // Those that follow need to know the behaviour as well.
    Configure, ///< rules, visibility and dependencies for the property controller
    List,      ///< the editors
    Change,    ///< what has to be done after a change of one setting
    Name,      ///< the display name of a row
    Propose,   ///< what a list proposes for a new row
    Recheck,   ///< which properties there are
    Check      ///< whether the description is right
};

/// When a setting is written to files.
enum class Saved : std::uint8_t { Always, WhenVisible, WhenNotInitial };

/// What a thing on a form does, and how it is shown: what only those purposes need that come
/// behind Tasks.
struct Behaviour {
    /// Lists of one type, in memory of the form.
    template <class T>
    using List = std::pmr::vector<T>;

    explicit Behaviour(std::pmr::memory_resource& memory)
        : rules(&memory), valueDependencies(&memory), stateDependencies(&memory),
          visibilityDependencies(&memory), memberDependencies(&memory), raisedProperties(&memory),
          actions(&memory) {}

    Text unit{};
    Text toolTip{};
    bindings::PropertyController::ClassifiedProperty classified{};
    List<std::function<State()>> rules;
    std::function<bool()> visibility{};
    std::function<std::wstring()> derivedText{};
    List<bindings::PropertyId> valueDependencies;
    List<bindings::PropertyId> stateDependencies;
    List<bindings::PropertyId> visibilityDependencies;
    List<bindings::PropertyId> memberDependencies;
    List<bindings::PropertyId> raisedProperties;
    List<std::function<void()>> actions;
    std::function<void(Row&, std::size_t)> proposal{};
    bool isReadOnly = false;
    /// Whether the first rule is that there is a value; and whether a reference may be empty.
    bool isRequired = false;
    bool isOptional = false;

    /// Begins anew; the lists keep their memory.
    void clear();
};

/// A setting, a member or a display name while it is being described: what has been said so far, as
/// far as the purpose of the form asks for it. There is one object per form, which is used again
/// for each thing; elements are many, and each has a form to itself when it is loaded and saved.
struct Description {
    enum class Subject : std::uint8_t { Setting, Derived, DisplayName, Attribute, Event, Task };

    Description(const bindings::PropertyController& describing, Purpose formPurpose,
                std::pmr::memory_resource& memory)
        : owner(&describing), purpose(formPurpose) {
        if (purpose >= Purpose::Configure) {
            behaviour.emplace(memory);
        }
    }

    const bindings::PropertyController* owner;
    Purpose purpose;
    Subject subject = Subject::Setting;
    Saved saved = Saved::Always;
    /// How things are at the moment.
    bool isVisible = true;
    bool isInitial = false;
    bool hasInitialValue = false;
    /// Whether the condition of a member holds.
    bool applies = true;
    /// Which thing of the form this is; 0 when none is being described.
    std::uint32_t serial = 0;

    Text name{};
    Text displayName{};
    bindings::PropertyId property{};
    Field field{};
    /// The rows that the setting consists of, or null.
    RowList* rows = nullptr;

    /// A predefined attribute, event or task, or null for one that is described here.
    const void* member = nullptr;
    data::DataType dataType{};
    model::Attribute::Access access = model::Attribute::Access::Undefined;
    utils::core::Flags<io::Direction> directions{};

    std::optional<Behaviour> behaviour{};

    /// Whether the purpose tells properties apart.
    [[nodiscard]] bool identifiesProperties() const noexcept {
        return behaviour && purpose != Purpose::Name && purpose != Purpose::Propose;
    }

    void begin(Subject newSubject, Text newName, Text newDisplayName);
};

} // namespace corvane::workbench::kit::internal
