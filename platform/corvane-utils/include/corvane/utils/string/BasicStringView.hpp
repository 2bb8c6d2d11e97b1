// The borrowed text of the utility library.
#pragma once

#include <string_view>

namespace corvane::utils::string {

template <class Char>
using BasicStringView = std::basic_string_view<Char>;

} // namespace corvane::utils::string
