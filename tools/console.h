/// What the program is given by the platform that starts it; one implementation per platform. All
/// text is UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tqcim::tools {

/// The arguments without the program's own name. On Windows they are taken from the process's wide
/// command line, since the narrow ones lose what the code page lacks.
std::vector<std::string> Arguments(int count, char** values);

/// Tells the provider module that its libraries need no search: they stand beside the program. To
/// be called before the module is loaded.
void UseOwnLibraries();

/// The width in columns of the terminal on standard output; nothing where that isn't a terminal.
std::optional<int> OutputTerminalWidth();

/// Whether standard output is a terminal that obeys colour sequences.
bool OutputTakesColour();

/// Writes everything, byte for byte. Called once, as the last use of standard output: a full disk
/// or a reader that went away is noticed. Throws Failure (kOutputFailed).
void WriteOutput(std::string_view text);

/// Writes what can be written; there is nobody to tell otherwise.
void WriteError(std::string_view text);

}  // namespace tqcim::tools
