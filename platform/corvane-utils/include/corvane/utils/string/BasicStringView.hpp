#pragma once

#include <string_view>

namespace corvane::utils::string {

/// The borrowed text of the utility library.
template <class Char>
using BasicStringView = std::basic_string_view<Char>;

} // namespace corvane::utils::string
