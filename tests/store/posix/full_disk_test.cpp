#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <string>

#include "store/files.h"
#include "store/store_error.h"
#include "tests/support/temporary_folder.h"

namespace tqcim::store {
namespace {

/// Files of this process grow no further than this, as on a disk that is full.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &previous_);
    const rlimit limit{bytes, previous_.rlim_max};
    previousAction_ = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &previous_);
    signal(SIGXFSZ, previousAction_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit previous_{};
  void (*previousAction_)(int);
};

TEST(FullDisk, AFileThatDoesNotFitLeavesWhatStoodThere) {
  const testing::TemporaryFolder folder;
  const auto path = folder.Write("store.json", "what stood here before");
  std::string sentence;
  {
    const FileSizeLimit limit(4096);
    try {
      WriteFile(path, std::string(100000, 'x'));
    } catch (const StoreError& error) {
      sentence = error.what();
    }
  }
  EXPECT_EQ(sentence, path.string() + ": cannot be written: File too large");
  EXPECT_EQ(testing::ContentsOf(path), "what stood here before");
  const auto count = std::distance(std::filesystem::directory_iterator(folder.Path()), {});
  EXPECT_EQ(count, 1) << "nothing temporary stays";
}

TEST(HugeFile, AFileWithoutEndIsRefused) {
  const testing::TemporaryFolder folder;
  const auto path = folder.Write("huge.json", "");
  std::filesystem::resize_file(path, (uint64_t{64} << 20) + 1);
  try {
    ReadFile(path);
    FAIL() << "read";
  } catch (const StoreError& error) {
    EXPECT_EQ(error.what(), path.string() + ": larger than 64 MiB");
  }
}

}  // namespace
}  // namespace tqcim::store
