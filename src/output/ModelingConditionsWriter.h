#pragma once

#include <memory>
#include <string>

#include "definition/PrinterConfig.h"

namespace tavrin {

/// Writes one modeling conditions file: the definition that a configuration was loaded from,
/// enciphered as it was, byte for byte.
class ModelingConditionsWriter {
 public:
  explicit ModelingConditionsWriter(const std::string& destination) : path(destination) {}
  virtual ~ModelingConditionsWriter() = default;
  ModelingConditionsWriter(const ModelingConditionsWriter&) = delete;
  ModelingConditionsWriter& operator=(const ModelingConditionsWriter&) = delete;

  /// Writes the file, replacing one that is there.
  ///
  /// @return false when config is null or holds no definition, or the file cannot be opened. Errors
  ///         after the opening are not reported.
  virtual bool Write(const PrinterConfig* config) const;

 private:
  std::string path;
};

/// A writer for the file at path.
std::unique_ptr<ModelingConditionsWriter> CreateModelingConditionsWriter(const std::string& path);

}  // namespace tavrin
