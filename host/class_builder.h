/// Holds parsed declarations against each other by the platform's rules.
#pragma once

#include <vector>

#include "host/mof_parser.h"
#include "host/schema.h"

namespace tqcim::host {

struct BuiltClasses {
  std::vector<ClassDefinition> classes;
  ClassIndex by_name;
};

/// The classes in the order given, each with what it inherits. Throws MofError for a class that
/// stands twice, a superclass that is missing or goes in a circle, a property declared anew with
/// another type, a key added below a class that has keys, a key in a singleton, a key that is an
/// array or a real number. A property that is declared anew has its qualifiers in `lists`.
BuiltClasses BuildClasses(std::vector<ParsedClass> parsed, QualifierLists& lists);

/// Instances of the platform's own classes ("__...") are taken as they are; those of the schema's
/// classes have to fit them. Throws MofError.
std::vector<DeclaredInstance> BuildInstances(const std::vector<ParsedInstance>& parsed,
                                             const Schema& schema);

}  // namespace tqcim::host
