// MOF texts: of what is valid every class is found and has what its superclass has; what isn't is
// refused in one sentence with line and column.

#include "fuzz/check.h"
#include "host/schema.h"

using namespace tqcim;

namespace {

void CheckClass(const host::Schema& schema, const host::ClassDefinition& definition) {
  fuzz::Check(schema.Find(definition.name) == &definition, "a class is found by its name");
  for (const host::PropertyDefinition* property : definition.properties) {
    fuzz::Check(definition.Find(property->name) == property, "a property is found by its name");
    fuzz::Check(schema.Find(property->origin) != nullptr, "a property comes from a class");
  }
  if (definition.superclass.empty()) return;
  const host::ClassDefinition* superclass = schema.Find(definition.superclass);
  fuzz::Check(superclass != nullptr, "a superclass is there");
  for (const host::PropertyDefinition* property : superclass->properties) {
    const host::PropertyDefinition* inherited = definition.Find(property->name);
    fuzz::Check(inherited != nullptr && inherited->type == property->type &&
                    inherited->array == property->array && inherited->origin == property->origin,
                "a property is inherited as it is");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const host::MofSource source{"f.mof", fuzz::TextOf(data, size)};
  try {
    const host::Schema schema = host::Schema::FromSources({&source, 1});
    for (const host::ClassDefinition& definition : schema.Classes()) {
      CheckClass(schema, definition);
    }
  } catch (const host::MofError& error) {
    fuzz::CheckSentence(error.what(), "f.mof:");
  }
  return 0;
}
