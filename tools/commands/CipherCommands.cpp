#include "commands/CipherCommands.h"

#include <cstdint>
#include <filesystem>
#include <system_error>

#include "Failure.h"
#include "definition/FileCipher.h"
#include "files/FilePath.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

namespace {

using std::filesystem::perms;

constexpr perms kOwnerOnly = perms::owner_read | perms::owner_write;

/// The permissions of an enciphered file. Its owner can always change it again, because a file
/// that is read-only cannot be replaced on every platform.
perms DefinitionPermissions(const std::string& ini, const std::string& definition) {
  std::error_code error;
  std::filesystem::file_status model = std::filesystem::status(ToPath(definition), error);
  if (!std::filesystem::exists(model)) model = std::filesystem::status(ToPath(ini), error);
  return (model.permissions() & (perms::owner_all | perms::group_all | perms::others_all)) |
         kOwnerOnly;
}

Bytes Transform(const std::string& file, bool (*cipher)(unsigned char*, std::uint32_t)) {
  Bytes bytes = ReadFile(file);
  if (!cipher(bytes.data(), static_cast<std::uint32_t>(bytes.size()))) {
    throw Failure(file, "the system's cipher refused it",
                  "check that the system offers SHA-1 and RC4");
  }
  return bytes;
}

}  // namespace

void Encipher(const std::string& ini, const std::string& definition) {
  CheckInput(ini);
  CheckOutput(ini, definition);
  WriteFile(definition, Transform(ini, EncryptBuffer), DefinitionPermissions(ini, definition));
}

void Decipher(const std::string& definition, const std::optional<std::string>& ini) {
  CheckInput(definition);
  if (!ini) {
    WriteStandardOutput(Transform(definition, DecryptBuffer));
    return;
  }
  CheckOutput(definition, *ini);
  WriteFile(*ini, Transform(definition, DecryptBuffer), kOwnerOnly);
}

}  // namespace tavrin::tool
