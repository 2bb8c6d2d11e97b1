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
    Configure,   ///< rules, visibility and dependencies for the property controller
    Load,        ///< initial values, then those of a file
    Save,        ///< those values that are to be saved
    List,        ///< the editors
    MakeDefault, ///< initial values
    Change,      ///< what has to be done after a change of one setting
    Name,        ///< the display name of a row
    Propose,     ///< what a list proposes for a new row
    Recheck,     ///< which properties there are
    Attributes,  ///< the attributes that there are at the moment
    Events,
    Tasks,
    Check ///< whether the description is right
};

/// When a setting is written to files.
enum class Saved : std::uint8_t { Always, WhenVisible, WhenNotInitial };

/// A setting, a member or a display name while it is being described: what has been said so far, as
/// far as the purpose of the form asks for it.
struct Description {
    enum class Subject : std::uint8_t { Setting, Derived, DisplayName, Attribute, Event, Task };

    Subject subject = Subject::Setting;
    Text name{};
    Text displayName{};
    Text unit{};
    Text toolTip{};
    bindings::PropertyId property{};
    Field field{};
    /// The rows that the setting consists of, or null.
    RowList* rows = nullptr;
    bindings::PropertyController::ClassifiedProperty classified{};
    bool isReadOnly = false;

    /// A predefined attribute, event or task, or null for one that is described here.
    const void* member = nullptr;
    model::Attribute::Access access = model::Attribute::Access::Undefined;
    data::DataType dataType{};
    utils::core::Flags<io::Direction> directions{};

    std::vector<std::function<State()>> rules{};
    std::function<bool()> visibility{};
    std::function<std::wstring()> derivedText{};
    std::vector<bindings::PropertyId> valueDependencies{};
    std::vector<bindings::PropertyId> stateDependencies{};
    std::vector<bindings::PropertyId> visibilityDependencies{};
    std::vector<bindings::PropertyId> memberDependencies{};
    std::vector<bindings::PropertyId> raisedProperties{};
    std::vector<std::function<void()>> actions{};
    std::function<void(Row&, std::size_t)> proposal{};

    Saved saved = Saved::Always;
    /// How things are at the moment.
    bool isVisible = true;
    bool isInitial = false;
    bool hasInitialValue = false;
    /// Whether the first rule is that there is a value; and whether a reference may be empty.
    bool isRequired = false;
    bool isOptional = false;
    /// Whether the condition of a member holds.
    bool applies = true;

    /// Begins anew; the lists keep their memory.
    void clear();
};

} // namespace corvane::workbench::kit::internal
