#pragma once

// The members of an element's object that belong to the workbench.

#include <string_view>

namespace corvane::workbench::host {

inline constexpr std::string_view kNameMember = "name";
inline constexpr std::string_view kUuidMember = "UUID";
inline constexpr std::string_view kAccessControlMember = "ACL";
inline constexpr std::string_view kChildrenMember = "children";

[[nodiscard]] constexpr bool isReservedMember(std::string_view name) noexcept {
    return name == kNameMember || name == kUuidMember || name == kAccessControlMember ||
           name == kChildrenMember;
}

} // namespace corvane::workbench::host
