#include "check/Container.h"

#include <algorithm>
#include <cstdint>

#include "check/LineIndex.h"
#include "definition/FileCipher.h"

namespace tavrin::tool {

namespace {

bool IsControl(unsigned char byte) {
  return (byte < ' ' && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7F;
}

/// A definition without its section is one still, as long as it has the lines of one and all of it
/// is text. Enciphered bytes can look like a line, but every ninth is a control character.
bool ShowsDefinition(const Bytes& bytes) {
  const LineIndex lines(bytes, TextFormat::Of(bytes), true);
  if (lines.HeaderLine() != 0) return true;
  return std::none_of(bytes.begin(), bytes.end(), IsControl) &&
         std::any_of(lines.Keys().begin(), lines.Keys().end(),
                     [](const KeyLine& line) { return line.hasEquals; });
}

}  // namespace

const char* NameOf(Container container) {
  return container == Container::Plain ? "plain" : "enciphered";
}

std::optional<Container> ContainerOf(const Bytes& file) {
  const bool isPlain = ShowsDefinition(file);
  Bytes bytes = file;
  const bool isEnciphered = DecryptBuffer(bytes.data(), static_cast<std::uint32_t>(bytes.size())) &&
                            ShowsDefinition(bytes);
  if (isPlain == isEnciphered) return std::nullopt;
  return isPlain ? Container::Plain : Container::Enciphered;
}

}  // namespace tavrin::tool
