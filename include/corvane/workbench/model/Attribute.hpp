#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/workbench/data/DataType.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/io/Direction.hpp>
#include <corvane/workbench/process/Event.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::workbench::model {

/// Describes an attribute of an element: a named value that the element has at run time.
///
/// A plain value. It begins with its change event, the event that fires when the attribute's value
/// changes, so that it can be handed out as that event without a copy. The predefined attributes
/// are constants of the library and ready before the code of any skill runs.
class CORVANE_WORKBENCH_EXPORT Attribute {
public:
    /// How the attribute can be accessed. Belongs to the runtime: stored and copied only.
    enum class Access : std::int32_t {
        Undefined = 0,
        ReadOnly = 1,
        ReadWrite = 2,
        WriteOnly = 3,
    };

    /// @name Predefined attributes
    /// Their names stand in reference keys and files: "key", not "primaryKey", and "UUID" in upper
    /// case.
    /// @{
    static const Attribute kName;        ///< "name"
    static const Attribute kUuid;        ///< "UUID"
    static const Attribute kType;        ///< "type"
    static const Attribute kCategory;    ///< "category"
    static const Attribute kPrimaryKey;  ///< "key"
    static const Attribute kDeviceState; ///< "deviceState"
    static const Attribute kQuality;     ///< "quality"
    static const Attribute kSourceTime;  ///< "sourceTime"
    static const Attribute kUpdateTime;  ///< "updateTime"
    static const Attribute kChangeTime;  ///< "changeTime"
    static const Attribute kWriteTime;   ///< "writeTime"

    /// @}
    /// @name Names of attributes that data points of devices commonly have
    /// @{
    static const std::string kAddress;  ///< "address"
    static const std::string kChannel;  ///< "channel"
    static const std::string kDataType; ///< "dataType"
    static const std::string kLength;   ///< "length"
    static const std::string kOffset;   ///< "offset"
    /// @}

    /// `name` is UTF-8; it and `ioDirections` are also those of the change event.
    Attribute(std::string&& name, Access access, data::DataType dataType,
              utils::core::Flags<io::Direction> ioDirections) noexcept;

    /// Copied and moved as a plain value.
    /// @{
    Attribute(const Attribute& other);
    Attribute(Attribute&& other) noexcept;
    Attribute& operator=(const Attribute& other);
    Attribute& operator=(Attribute&& other) noexcept;
    /// @}

    ~Attribute();

    /// As given to the constructor or set since. The name is valid as long as the attribute.
    /// @{
    [[nodiscard]] std::string_view name() const noexcept;
    [[nodiscard]] utils::core::Flags<io::Direction> ioDirections() const noexcept;
    [[nodiscard]] Access access() const noexcept;
    [[nodiscard]] const data::DataType& dataType() const noexcept;
    /// @}

    /// The event that fires when the attribute's value changes: a view of this attribute, valid
    /// as long as the attribute is.
    /// @{
    [[nodiscard]] const process::Event& changeEvent() const& noexcept;
    [[nodiscard]] process::Event&& changeEvent() && noexcept;
    /// @}

    /// Returns whether the access has changed.
    bool setAccess(Access access) noexcept;

    /// Returns whether the data type has changed.
    bool setDataType(const data::DataType& dataType) noexcept;

    /// Compares field by field.
    friend bool operator==(const Attribute&, const Attribute&) = default;

private:
    process::Event changeEvent_;
    Access access_;
    data::DataType dataType_;
};

} // namespace corvane::workbench::model
