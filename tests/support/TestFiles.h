#pragma once

#include <filesystem>
#include <string>

namespace tavrin::test {

/// A folder of the test's own that goes with the object.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  /// The narrow path of an entry of the folder.
  std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }

  /// Writes an entry, or the file at an absolute path, and gives its path.
  std::string Write(const std::string& name, const std::string& content) const;

  /// Writes an entry enciphered as a definition file and gives its path.
  std::string WriteEnciphered(const std::string& name, const std::string& content) const;

 private:
  std::filesystem::path folder_;
};

std::string ReadWhole(const std::string& path);

/// The number of entries of a directory.
long EntriesOf(const std::string& path);

/// Text in the section that definitions have their keys in, with the one key that they must have.
std::string Definition(const std::string& lines);

}  // namespace tavrin::test
