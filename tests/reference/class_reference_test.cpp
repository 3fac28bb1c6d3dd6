// docs/classes/: one page for each class, made of the schema, the notes and the embedded sample.
#include <gtest/gtest.h>

#include <set>

#include "tests/reference/class_page.h"
#include "tests/reference/reference_file.h"
#include "tests/reference/sample_server.h"
#include "tests/support/time_zone.h"
#include "tools/formats.h"

namespace tqcim::testing {
namespace {

const host::Schema& Shipped() {
  static const host::Schema schema = host::Schema::Embedded();
  return schema;
}

class ClassReference : public ::testing::TestWithParam<std::string> {
 protected:
  const host::ClassDefinition& Definition() const { return *Shipped().Find(GetParam()); }

  const TimeZone utc_{"UTC0"};
  SampleServer server_;
};

TEST_P(ClassReference, HasAPageThatIsUpToDate) {
  std::vector<host::Instance> instances = server_.InstancesOf(GetParam());
  ASSERT_FALSE(instances.empty());
  instances.resize(1);
  ExpectReferenceFile("docs/classes/" + GetParam() + ".md",
                      ClassPage(Definition(), AllClassNotes().at(GetParam()),
                                server_.WithoutComputerName(tools::JsonText(instances))));
}

/// Whatever the sample shows is told on the page, and nothing that isn't declared.
TEST_P(ClassReference, TellsWhereEachValueComesFrom) {
  std::set<std::string_view> told;
  for (const auto& [property, source] : AllClassNotes().at(GetParam()).values) {
    EXPECT_NE(nullptr, Definition().Find(property)) << property;
    EXPECT_FALSE(source.empty()) << property;
    EXPECT_TRUE(told.insert(property).second) << property << " is told twice";
  }
  for (const host::Instance& instance : server_.InstancesOf(GetParam())) {
    for (const host::Property& property : instance.properties) {
      EXPECT_TRUE(!property.put || told.contains(property.name)) << property.name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Schema, ClassReference, ::testing::ValuesIn(SampleServer::ClassNames()),
                         [](const auto& parameter) { return parameter.param; });

TEST(ClassReferenceIndex, ListsEveryClass) {
  std::string text =
      "# Class reference\n\nEvery class of `root\\cimv2\\vorn`, in the order of the schema. The "
      "pages are generated: `scripts/update-references` makes them of `schema/`, of "
      "`docs/class_notes/` and of what the embedded sample shows.\n\n";
  for (const std::string& name : SampleServer::ClassNames()) {
    text += IndexLine(*Shipped().Find(name));
  }
  ExpectReferenceFile("docs/classes/README.md", text);
}

}  // namespace
}  // namespace tqcim::testing
