#pragma once

#include <corvane/workbench/host/LoadOptions.hpp>
#include <corvane/workbench/host/LoadResult.hpp>
#include <corvane/workbench/host/Notifications.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/testing/BenchElement.hpp>
#include <corvane/workbench/testing/Setting.hpp>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <iosfwd>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::testing {

/// Where a unit test puts elements of a skill, works on them as a user would, and looks at what
/// came of it. Needs no files and no test framework.
///
/// It records what every edit made through it, its elements and its settings announces to a user
/// interface that has everything open.
///
/// Keys, paths and texts are UTF-8. Used on one thread.
class Bench {
public:
    /// An element class as the constructor takes it: by reference.
    using ElementClass = std::reference_wrapper<const skill::Element::Class>;

    /// With the skills that are linked into the program. Throws std::runtime_error, as the others
    /// do, when a skill cannot be used.
    Bench();
    /// With the skills of a library.
    explicit Bench(const std::filesystem::path& skillLibrary);
    /// With element classes that are linked into the program and outlive the bench.
    Bench(std::initializer_list<ElementClass> elementClasses);
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;
    ~Bench();

    /// @name Elements and settings
    /// @{

    /// Adds an element below the root with its initial settings. Without a name it gets its class's
    /// default name. Throws Refused when the workbench refuses it.
    BenchElement add(std::string_view elementClass, std::string_view name = {});
    /// The element of that key. Throws std::out_of_range when there is none.
    [[nodiscard]] BenchElement element(std::string_view key);
    /// Whether there is an element of that key.
    [[nodiscard]] bool has(std::string_view key) const;
    /// The setting of that address: the key of an element, "." and the path of the setting, see
    /// BenchElement::at. Throws std::out_of_range when there is none.
    [[nodiscard]] Setting at(std::string_view address);
    /// The errors of all elements.
    [[nodiscard]] std::uint64_t errorCount() const;

    /// @}
    /// @name Configurations
    /// @{

    /// Replaces all elements by those of a configuration. Throws Refused, with all problems, when
    /// it cannot be loaded as a whole. References that do not resolve do not stop it.
    void load(std::string_view json);
    /// The same from a file.
    void loadFile(const std::filesystem::path& file);
    /// The same for a configuration that may be wrong. Problems of a text are located in
    /// "configuration.json".
    host::LoadResult tryLoad(std::string_view json, const host::LoadOptions& options = {});
    /// The same from a file, which is then what the problems name.
    host::LoadResult tryLoadFile(const std::filesystem::path& file,
                                 const host::LoadOptions& options = {});
    /// What is wrong with what was loaded last, in the lines that `skillbench check` prints,
    /// without the folder of the file.
    [[nodiscard]] std::vector<std::string> problems() const;
    /// The configuration as it is saved. Throws Refused when it could not be loaded again.
    [[nodiscard]] std::string saved() const;

    /// @}

    /// What the last edit announced and everything that has happened since, in this order. The
    /// lines are those of `skillbench edit`, without the spaces at their begin and end.
    [[nodiscard]] std::vector<std::string> announced() const;

    /// For what has no operation here. Its edits are announced too.
    /// @{
    [[nodiscard]] host::Workbench& workbench() noexcept { return workbench_; }
    [[nodiscard]] const host::Workbench& workbench() const noexcept { return workbench_; }
    /// @}

    /// All elements as `skillbench show` prints them.
    [[nodiscard]] std::string tree() const;

    /// Prints how many elements and errors there are.
    friend std::ostream& operator<<(std::ostream& to, const Bench& bench);

private:
    friend class BenchElement;
    friend class Setting;

    BenchElement add(std::string_view parentKey, std::string_view elementClass,
                     std::string_view name);
    /// Forgets what was announced, and listens to what there is now.
    void beginEdit();
    void requireLoaded() const;

    host::Workbench workbench_;
    host::LoadResult loaded_;
    std::filesystem::path file_;
    std::ostringstream log_;
    host::Notifications notifications_;
};

} // namespace corvane::workbench::testing
