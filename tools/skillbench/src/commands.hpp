#pragma once

// The commands of skillbench. Each takes the arguments behind its name, writes to the streams and
// returns the exit code; what cannot be done is thrown as a Failure.

#include "Streams.hpp"

#include <span>
#include <string>

namespace corvane::skillbench {

using Arguments = std::span<const std::string>;

/// Lists the skills of libraries and their element classes.
int skills(Arguments arguments, const Streams& streams);
/// Prints the tree of a configuration with all properties.
int show(Arguments arguments, const Streams& streams);
/// Prints what is wrong with a configuration.
int check(Arguments arguments, const Streams& streams);
/// Loads a configuration and writes it again.
int save(Arguments arguments, const Streams& streams);
/// Edits a configuration and prints what a user interface would be told.
int edit(Arguments arguments, const Streams& streams);
/// Lists who refers to an element.
int references(Arguments arguments, const Streams& streams);
/// Writes the project of a new skill.
int newProject(Arguments arguments, const Streams& streams);
/// Plays keystrokes in a text box that completes a time stamp or a UUID.
int type(Arguments arguments, const Streams& streams);

} // namespace corvane::skillbench
