/// The page of a class in the class reference.
#pragma once

#include <string>

#include "host/schema.h"
#include "tests/reference/class_notes.h"

namespace tqcim::testing {

/// Markdown. `example` is an instance as the program prints it in JSON.
std::string ClassPage(const host::ClassDefinition& definition, const ClassNotes& notes,
                      const std::string& example);

/// One line for the list of all classes: a link to the page and the first sentence of it.
std::string IndexLine(const host::ClassDefinition& definition);

}  // namespace tqcim::testing
