/// The commands. Each returns all that it has to say, or throws Failure; none writes anything to
/// the standard streams.
#pragma once

#include "tools/failure.h"
#include "tools/options.h"
#include "tools/table.h"

namespace tqcim::tools {

CommandResult Run(const ClassesCommand& command, const Layout& layout);
CommandResult Run(const ListCommand& command, const Layout& layout);
CommandResult Run(const GetCommand& command, const Layout& layout);
/// Tells its failures itself.
CommandResult Run(const HealthCommand& command, const Layout& layout);
CommandResult Run(const ExportCommand& command);
CommandResult Run(const ConvertCommand& command);
CommandResult Run(const CheckCommand& command);

}  // namespace tqcim::tools
