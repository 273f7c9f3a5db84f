#pragma once

#include <string>

namespace tavrin::bench {

/// An enciphered definition on disk, gone with the object.
class BenchDefinition {
 public:
  explicit BenchDefinition(const std::string& plain);
  ~BenchDefinition();
  BenchDefinition(const BenchDefinition&) = delete;
  BenchDefinition& operator=(const BenchDefinition&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

/// A path in the temporary directory.
std::string InTemporaryFolder(const char* name);

std::string RichExample();
std::string CompactExample();
std::string MinimalExample();

/// The rich example with its section padded to ten times the lines.
std::string PaddedExample();

/// A definition of about this many keys, all of which are read: slots, each with a colour of its
/// own.
std::string Synthetic(int keys);

}  // namespace tavrin::bench
