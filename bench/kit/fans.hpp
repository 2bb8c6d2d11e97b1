#pragma once

#include <corvane/workbench/skill/Element.hpp>

#include <memory>

namespace corvane::bench {

// The same element class twice: the settings, rules, files and dependencies of both are alike.

/// Written with the skill kit.
[[nodiscard]] std::unique_ptr<workbench::skill::Element> makeDescribedFan();
/// Written by hand, over the interfaces of the plug-in library alone.
[[nodiscard]] std::unique_ptr<workbench::skill::Element> makeHandwrittenFan();

} // namespace corvane::bench
