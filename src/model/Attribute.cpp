#include <corvane/workbench/model/Attribute.hpp>

#include <utility>

namespace corvane::workbench::model {

namespace {

using Directions = utils::core::Flags<io::Direction>;

constexpr auto kUndefined = Attribute::Access::Undefined;

} // namespace

const Attribute Attribute::kName("name", kUndefined, data::DataType::kText, {});
const Attribute Attribute::kUuid("UUID", kUndefined, data::DataType::kUuid, {});
const Attribute Attribute::kType("type", kUndefined, data::DataType::kText, {});
const Attribute Attribute::kCategory("category", kUndefined, data::DataType::kElementCategory, {});
const Attribute Attribute::kPrimaryKey("key", kUndefined, data::DataType::kText, {});
const Attribute Attribute::kDeviceState("deviceState", kUndefined, data::DataType::kDeviceState,
                                        io::Direction::Read);
const Attribute Attribute::kQuality("quality", kUndefined, data::DataType::kQuality,
                                    io::Direction::Read);
const Attribute Attribute::kSourceTime("sourceTime", kUndefined, data::DataType::kTimeStamp,
                                       io::Direction::Read);
const Attribute Attribute::kUpdateTime("updateTime", kUndefined, data::DataType::kTimeStamp,
                                       io::Direction::Read);
const Attribute Attribute::kChangeTime("changeTime", kUndefined, data::DataType::kTimeStamp,
                                       io::Direction::Read);
const Attribute Attribute::kWriteTime("writeTime", kUndefined, data::DataType::kTimeStamp,
                                      io::Direction::Write);

const std::string Attribute::kAddress = "address";
const std::string Attribute::kChannel = "channel";
const std::string Attribute::kDataType = "dataType";
const std::string Attribute::kLength = "length";
const std::string Attribute::kOffset = "offset";

Attribute::Attribute(std::string&& name, Access access, data::DataType dataType,
                     Directions ioDirections) noexcept
    : changeEvent_(std::move(name), ioDirections), access_(access), dataType_(dataType) {}

Attribute::Attribute(const Attribute& other) = default;
Attribute::Attribute(Attribute&& other) noexcept = default;
Attribute& Attribute::operator=(const Attribute& other) = default;
Attribute& Attribute::operator=(Attribute&& other) noexcept = default;
Attribute::~Attribute() = default;

std::string_view Attribute::name() const noexcept {
    return changeEvent_.name();
}

Directions Attribute::ioDirections() const noexcept {
    return changeEvent_.ioDirections();
}

Attribute::Access Attribute::access() const noexcept {
    return access_;
}

const data::DataType& Attribute::dataType() const noexcept {
    return dataType_;
}

const process::Event& Attribute::changeEvent() const& noexcept {
    return changeEvent_;
}

process::Event&& Attribute::changeEvent() && noexcept {
    return std::move(changeEvent_);
}

bool Attribute::setAccess(Access access) noexcept {
    return std::exchange(access_, access) != access;
}

bool Attribute::setDataType(const data::DataType& dataType) noexcept {
    if (dataType_ == dataType) {
        return false;
    }
    dataType_ = dataType;
    return true;
}

} // namespace corvane::workbench::model
