#pragma once

// An element class to test, linked into the program: a mixer with a number, a setting that another
// one shows and hides, a list whose rows can be moved, and references.

#include <corvane/workbench/kit/ElementClass.hpp>

namespace corvane::tests {

class Mixer;

extern const workbench::kit::ElementClass<Mixer> kMixer;

} // namespace corvane::tests
