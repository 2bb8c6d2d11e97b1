#pragma once

namespace corvane::workbench::json {

/// What the JSON document model tolerates while it is read.
struct DecodingOptions {
    /// Whether a member may come twice: the last value wins and stands where the first one stood.
    /// Concerns the members of the outermost object only; nested objects never tolerate it.
    bool allowDuplicateMembers = false;

    /// Compares field by field.
    friend bool operator==(const DecodingOptions&, const DecodingOptions&) = default;
};

static_assert(sizeof(DecodingOptions) == 1);

} // namespace corvane::workbench::json
