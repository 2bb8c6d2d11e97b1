#pragma once

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/host/ElementClassRegistry.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/LoadOptions.hpp>
#include <corvane/workbench/host/LoadResult.hpp>
#include <corvane/workbench/host/LoadedSkill.hpp>
#include <corvane/workbench/host/Observer.hpp>
#include <corvane/workbench/host/Problem.hpp>
#include <corvane/workbench/host/PropertyProblem.hpp>
#include <corvane/workbench/host/ReferenceUse.hpp>
#include <corvane/workbench/host/SaveOptions.hpp>
#include <corvane/workbench/model/internal/ElementReferenceData.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::utils::io {
template <class Char>
class InputStream;
template <class Char>
class OutputStream;
} // namespace corvane::utils::io

namespace corvane::workbench::skill {
struct EditableProperty;
}

namespace corvane::workbench::host {

/// A headless workbench: it loads skills and configurations, owns the tree of elements, edits it
/// and saves it, and keeps every reference between the elements pointing where it should. For tests
/// of skills, for command-line tools, and for trying out a skill without the real workbench.
///
/// Elements are named by their keys: the names on the way down to them, joined by "."; the empty
/// key is the invisible root. Keys and names are UTF-8. What can fail for a reason outside the
/// program fails with a Problem; exceptions come from skills and observers only. Every edit is
/// checked before anything changes: one that fails changes nothing.
///
/// A workbench is used on one thread. It must outlive everything that it handed out.
class Workbench {
public:
    /// No skills, and the root as the only element.
    Workbench();
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;
    ~Workbench();

    /// @name Skills
    /// @{

    /// Opens a skill library and adds its skills. Fails with a sentence that names the library and
    /// leaves everything as it was.
    Result<void> loadSkills(const std::filesystem::path& library);
    /// Adds a skill that is linked into the program. A skill that is there already is not added
    /// twice. The class must outlive the workbench.
    Result<void> addSkill(const skill::Skill::Class& skillClass);
    /// In the order in which they were added.
    [[nodiscard]] std::span<const std::unique_ptr<LoadedSkill>> skills() const noexcept;
    /// The element classes of all skills.
    [[nodiscard]] const ElementClassRegistry& elementClasses() const noexcept;

    /// @}
    /// @name Configurations
    /// @{

    /// Replaces all elements but the root with those of a configuration file. All or nothing.
    LoadResult loadConfiguration(const std::filesystem::path& file,
                                 const LoadOptions& options = {});
    /// The same from a stream; `file` is what the problems name.
    LoadResult loadConfiguration(utils::io::InputStream<char>& stream,
                                 const std::filesystem::path& file,
                                 const LoadOptions& options = {});
    /// Writes the configuration as indented JSON. The file is replaced when all is written, and
    /// unchanged when that fails, or when what the skills write could not be loaded again: a member
    /// that is reserved or comes twice, or settings that are nested too deeply.
    Result<void> saveConfiguration(const std::filesystem::path& file,
                                   const SaveOptions& options = {}) const;
    /// The same to a stream, which is flushed but not closed.
    Result<void> saveConfiguration(utils::io::OutputStream<char>& stream,
                                   const SaveOptions& options = {}) const;

    /// @}
    /// @name The tree
    /// @{

    /// The invisible root, which stays the same for the life of the workbench.
    [[nodiscard]] ElementNode& root() noexcept;
    /// The same for reading.
    [[nodiscard]] const ElementNode& root() const noexcept;
    /// The element of that primary key, or null.
    [[nodiscard]] ElementNode* findElement(std::string_view key) const;
    /// The element of that UUID, or null.
    [[nodiscard]] ElementNode* findElement(const utils::core::Uuid& uuid) const;
    /// How many elements there are, without the root.
    [[nodiscard]] std::size_t elementCount() const noexcept;
    /// Calls the callback with each invalid visible property at or below the element, in the order
    /// of the tree. Configures the elements.
    void
    forEachPropertyProblem(const ElementNode& top,
                           utils::core::function_ref<void(const PropertyProblem&)> callback) const;

    /// @}
    /// @name Edits
    /// While one is being announced, a further one is refused.
    /// @{

    /// Adds an element with its class's initial settings behind the children of its parent. Without
    /// a name it gets its class's default name, made unique among its siblings by a number.
    Result<ElementNode*> add(std::string_view parentKey, std::string_view elementClassId,
                             std::string_view name = {});
    /// Gives an element another name; references to it and below follow.
    Result<void> rename(std::string_view key, std::string_view newName);
    /// Moves an element with everything below it behind the children of another parent; references
    /// to it and below follow.
    Result<void> move(std::string_view key, std::string_view newParentKey);
    /// Destroys an element and everything below it; references to it and below become dangling.
    Result<void> remove(std::string_view key);
    /// Points the reference that is this property (of the kind Editor::Reference) at what the key
    /// names, which need not exist; an empty key empties it. The key may have the ".import:"
    /// prefix. Publishes the property.
    Result<void> setReference(const skill::EditableProperty& property, std::string_view key);

    /// @}
    /// @name References
    /// @{

    /// A reference to the element that the key names or, if there is none, to the deepest one on
    /// the way that exists, with the rest as suffix. Empty for the empty key; an import reference
    /// for a key with the ".import:" prefix.
    [[nodiscard]] model::internal::ElementReferenceData
    elementReferenceData(std::string_view key) const;
    /// The same for a key whose last component is the name of an attribute, event or task.
    [[nodiscard]] model::internal::ElementReferenceData
    memberReferenceData(std::string_view key) const;
    /// The registered references to the element itself or its members, in no particular order.
    /// References that reach for something missing below the element are not among them.
    [[nodiscard]] std::vector<ReferenceUse> referencesTo(const ElementNode& element) const;
    /// The element in the tree that holds the reference, or null.
    [[nodiscard]] const ElementNode*
    ownerOf(const model::internal::BasicElementReference& reference) const;

    /// @}
    /// @name Observers
    /// They are called in the order in which they were added and must be removed before they end.
    /// @{

    /// The observer hears of every edit from now on, after those that were added before it.
    void addObserver(Observer& observer);
    /// The observer hears of nothing more.
    void removeObserver(Observer& observer) noexcept;

    /// @}

private:
    class State;
    std::unique_ptr<State> state_;
};

} // namespace corvane::workbench::host
