#include "output/ModelingConditionsWriter.h"

#include <vector>

#include "definition/FileBytes.h"
#include "definition/FileCipher.h"

namespace tavrin {

bool ModelingConditionsWriter::Write(const PrinterConfig* config) const {
  if (config == nullptr || config->Definition == nullptr || config->Definition->IsEmpty()) {
    return false;
  }
  const FileLoader& definition = *config->Definition;
  // A copy: the configuration keeps its definition deciphered.
  std::vector<unsigned char> block(definition.Data(), definition.Data() + definition.Size());
  // A refused enciphering does not stop the write; the file then holds what the attempt left.
  EncryptBuffer(block.data(), definition.Size());
  return WriteFileBytes(path, block.data(), definition.Size());
}

std::unique_ptr<ModelingConditionsWriter> CreateModelingConditionsWriter(const std::string& path) {
  return std::make_unique<ModelingConditionsWriter>(path);
}

}  // namespace tavrin
