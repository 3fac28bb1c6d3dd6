#include "store/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>
#include <utility>

#include "store/process.h"
#include "store/store_error.h"

namespace tqcim::store {

namespace fs = std::filesystem;

namespace {

std::string LastError() {
  return std::generic_category().message(errno == 0 ? EIO : errno);
}

/// A file in a folder. Removed at the end unless it has been moved away.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& folder)
      : path_(folder / (".tqcim-" + std::to_string(std::random_device()()))) {}
  ~TemporaryFile() {
    std::error_code ignored;
    fs::remove(path_, ignored);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

/// The error of a file of that name.
StoreError Unwritten(const fs::path& path, const std::string& reason) {
  return {TextOf(path), "cannot be written: " + reason};
}

/// `path` is the name for errors.
void Write(const fs::path& target, std::string_view contents, const fs::path& path) {
  errno = 0;
  File file = OpenToWrite(target);
  const bool written =
      file && std::fwrite(contents.data(), 1, contents.size(), file.get()) == contents.size();
  if (!written || std::fclose(file.release()) != 0) throw Unwritten(path, LastError());
}

/// Puts a new file where `path` leads to, with the permissions of the one there.
void Replace(const fs::path& path, const fs::file_status& status, std::string_view contents) {
  std::error_code error;
  const fs::path target = fs::weakly_canonical(path, error);
  if (error) throw Unwritten(path, error.message());
  const TemporaryFile temporary(target.parent_path());
  Write(temporary.Path(), contents, path);
  if (fs::exists(status)) fs::permissions(temporary.Path(), status.permissions(), error);
  if (!error) fs::rename(temporary.Path(), target, error);
  if (error) throw Unwritten(path, error.message());
}

}  // namespace

std::string TextOf(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

fs::path PathOf(std::string_view utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string ReadFile(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) {
    const bool missing = !error || status.type() == fs::file_type::not_found;
    throw StoreError(TextOf(path), missing ? "no such file" : error.message());
  }
  if (!fs::is_regular_file(status)) throw StoreError(TextOf(path), "not a regular file");
  errno = 0;
  const File file = OpenToRead(path);
  if (!file) throw StoreError(TextOf(path), LastError());
  // The size that a file claims is no use: files of the system's own folders claim any.
  std::string contents;
  for (bool more = true; more;) {
    const size_t start = contents.size();
    const size_t piece = std::max(start, size_t{8} << 10);
    contents.resize(start + piece);
    const size_t read = std::fread(contents.data() + start, 1, piece, file.get());
    contents.resize(start + read);
    more = read == piece;
    if (contents.size() > kLargestFile) {
      throw StoreError(TextOf(path), "larger than " + std::to_string(kLargestFile >> 20) + " MiB");
    }
  }
  if (std::ferror(file.get())) throw StoreError(TextOf(path), LastError());
  return contents;
}

void WriteFile(const fs::path& path, std::string_view contents) {
  std::error_code unknown;
  const fs::file_status status = fs::status(path, unknown);
  if (fs::exists(status) && !fs::is_regular_file(status)) return Write(path, contents, path);
  Replace(path, status, contents);
}

}  // namespace tqcim::store
