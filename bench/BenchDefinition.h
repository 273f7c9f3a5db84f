#pragma once

#include <string>
#include <vector>

namespace tavrin::bench {

/// An enciphered definition on disk, gone with the object, and the keys that loading it asks for.
class BenchDefinition {
 public:
  explicit BenchDefinition(const std::string& plain);
  ~BenchDefinition();
  BenchDefinition(const BenchDefinition&) = delete;
  BenchDefinition& operator=(const BenchDefinition&) = delete;

  const std::string& Path() const { return path_; }
  const std::vector<std::string>& Keys() const { return keys_; }

 private:
  std::string path_;
  std::vector<std::string> keys_;
};

/// The full-colour example.
std::string RichExample();

/// The full-colour example with its section padded to ten times the lines.
std::string PaddedExample();

}  // namespace tavrin::bench
