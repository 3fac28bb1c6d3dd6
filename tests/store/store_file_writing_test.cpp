#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>

#include "embedded/samples.h"
#include "platform/layouts/catalogue.h"
#include "store/snapshot_builder.h"
#include "store/store_error.h"
#include "store/store_file.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

namespace layouts = tqcim::layout;

bool Same(const Snapshot& a, const Snapshot& b) {
  return std::equal(a.Objects().begin(), a.Objects().end(), b.Objects().begin(), b.Objects().end());
}

SnapshotBuilder WithOddChassis() {
  SnapshotBuilder builder;
  builder.Add(1, layouts::system::kLayout, Status::kOk, {});
  builder.Add(2, layouts::chassis::kLayout, static_cast<Status>(9), {1});
  return builder;
}

TEST(StoreFileWriting, WritesWhatIsKnownAndLeavesTheRestOut) {
  SnapshotBuilder builder = WithOddChassis();
  builder.Add(4, layouts::processor_device::kLayout, Status::kUnknown, {2})
      .Set(layouts::processor_device::kName, "CPU \"1\"\t\xC3\xA4");
  builder.Add(5, layouts::processor::kLayout, Status::kNonRecoverable, {4, 2})
      .Set(layouts::processor::kCoreCount, 4294967295)
      .Set(layouts::processor::kBrand, "")
      .Set(layouts::processor::kModel, "");
  builder.Add(6, layouts::probe::kTemperatureLayout, Status::kOk, {2})
      .Set(layouts::probe::kLowerCritical, -2147483648LL);
  EXPECT_EQ(FormatStoreFile(*builder.Build()), R"({
  "format": "tqcim-store",
  "version": 1,
  "objects": [
    {
      "oid": 1, "type": "system", "status": "ok"
    },
    {
      "oid": 2, "type": "chassis", "status": 9, "parents": [1]
    },
    {
      "oid": 4, "type": "processorDevice", "status": "unknown", "parents": [2],
      "fields": {
        "name": "CPU \"1\"\tä"
      }
    },
    {
      "oid": 5, "type": "processor", "status": "nonRecoverable", "parents": [4,2],
      "fields": {
        "coreCount": 4294967295,
        "brand": ""
      }
    },
    {
      "oid": 6, "type": "temperatureProbe", "status": "ok", "parents": [2],
      "fields": {
        "lowerCritical": -2147483648
      }
    }
  ]
}
)");
}

TEST(StoreFileWriting, ReadingBackGivesTheSameBytes) {
  // Every field of every type, at values that have all their bytes different.
  SnapshotBuilder builder = WithOddChassis();
  uint32_t oid = 10;
  for (const layout::ObjectLayout& layout : layouts::kCatalogue) {
    if (layout.type == layouts::system::kType) continue;
    ObjectDraft& all = builder.Add(oid++, layout, Status::kOk, {2});
    ObjectDraft& some = builder.Add(oid++, layout, Status::kOk, {2, 1});
    for (size_t i = 0; i < layout.fields.size(); ++i) {
      const layout::FieldInfo& field = layout.fields[i];
      for (ObjectDraft* draft : {&all, &some}) {
        if (draft == &some && i % 2 == 0) continue;
        if (field.kind == layout::FieldKind::kText) {
          draft->SetText(field, std::string("text \xF0\x9F\x98\x80 of ") + field.name);
        } else {
          draft->SetInteger(field, 0xF1E2D3C4B5A69788 + i);
        }
      }
    }
  }
  const auto snapshot = builder.Build();
  const std::string contents = FormatStoreFile(*snapshot);
  const auto again = ParseStoreFile(contents, "again");
  EXPECT_TRUE(Same(*snapshot, *again));
  EXPECT_EQ(FormatStoreFile(*again), contents);
}

TEST(StoreFileWriting, AFieldInsideAWiderOneIsToldByThatOne) {
  SnapshotBuilder builder = WithOddChassis();
  builder.Add(3, layouts::probe::kVoltageLayout, Status::kOk, {2})
      .Set(layouts::probe::kDiscreteState, 1);
  const auto snapshot = builder.Build();
  const std::string contents = FormatStoreFile(*snapshot);
  EXPECT_NE(contents.find("\"currentReading\": 1\n"), std::string::npos) << contents;
  EXPECT_EQ(contents.find("discreteState"), std::string::npos) << contents;
  EXPECT_TRUE(Same(*snapshot, *ParseStoreFile(contents, "again")));
}

TEST(StoreFileWriting, TheSamplesComeBackAsTheyStand) {
  for (const auto& sample : embedded::samples::kFiles) {
    const auto snapshot = ParseStoreFile(sample.contents, std::string(sample.name));
    EXPECT_EQ(FormatStoreFile(*snapshot), sample.contents) << sample.name;
  }
}

TEST(StoreFileWriting, TheSampleServerHasAnObjectOfEveryType) {
  const auto snapshot = ParseStoreFile(embedded::samples::kFiles[0].contents, "server.json");
  for (const layout::ObjectLayout& layout : layouts::kCatalogue) {
    EXPECT_TRUE(std::any_of(snapshot->Objects().begin(), snapshot->Objects().end(),
                            [&](const StoredObject& object) { return object.type == layout.type; }))
        << layout.name;
  }
}

TEST(StoreFileWriting, TheFileIsReplacedAsAWhole) {
  const testing::TemporaryFolder folder;
  const auto path = folder.Write("store.json", "what stood here before");
  const auto snapshot = WithOddChassis().Build();
  WriteStoreFile(*snapshot, path);
  EXPECT_EQ(testing::ContentsOf(path), FormatStoreFile(*snapshot));
  EXPECT_TRUE(Same(*snapshot, *LoadStoreFile(path)));
  const auto count = std::distance(std::filesystem::directory_iterator(folder.Path()), {});
  EXPECT_EQ(count, 1) << "nothing temporary stays";
}

TEST(StoreFileWriting, AFolderThatIsMissingIsToldAndNothingIsLeft) {
  const testing::TemporaryFolder folder;
  const auto path = folder.Path() / "missing" / "store.json";
  try {
    WriteStoreFile(*WithOddChassis().Build(), path);
    FAIL() << "written into a folder that is not there";
  } catch (const StoreError& error) {
    EXPECT_EQ(std::string(error.what()).rfind(path.string() + ": cannot be written: ", 0), 0U)
        << error.what();
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(StoreFileWriting, AFolderInTheFilesPlaceIsToldAndNothingIsLeft) {
  const testing::TemporaryFolder folder;
  const auto path = folder.Path() / "store.json";
  std::filesystem::create_directory(path);
  EXPECT_THROW(WriteStoreFile(*WithOddChassis().Build(), path), StoreError);
  const auto count = std::distance(std::filesystem::directory_iterator(folder.Path()), {});
  EXPECT_EQ(count, 1);
  EXPECT_TRUE(std::filesystem::is_directory(path));
}

}  // namespace
}  // namespace tqcim::store
