#include "check/DefinitionReading.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "definition/FileCipher.h"

namespace tavrin::tool {

namespace {

/// How little bytes look like text: control characters, which no text has and every ninth byte of
/// an enciphered one is, then bytes beyond ASCII, which are rare in most definitions.
std::pair<std::ptrdiff_t, std::ptrdiff_t> DoubtsAbout(const Bytes& bytes) {
  const auto isControl = [](unsigned char byte) {
    return (byte < ' ' && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7F;
  };
  const auto isBeyondAscii = [](unsigned char byte) { return byte >= 0x80; };
  return {std::count_if(bytes.begin(), bytes.end(), isControl),
          std::count_if(bytes.begin(), bytes.end(), isBeyondAscii)};
}

bool HasKeys(const Reading& reading) {
  return !reading.listedKeys.empty();
}

bool HasHeader(const Reading& reading) {
  return reading.lines.HeaderLine() != 0 || reading.lines.HiddenHeaderLine() != 0;
}

}  // namespace

DefinitionReading ReadDefinition(const Bytes& definition) {
  DefinitionReading plain = {Reading(definition), Container::Plain};
  Bytes bytes = definition;
  if (!DecryptBuffer(bytes.data(), static_cast<std::uint32_t>(bytes.size()))) return plain;
  DefinitionReading deciphered = {Reading(bytes), Container::Enciphered};
  // What has keys when deciphered is what the library loads.
  for (const auto has : {HasKeys, HasHeader}) {
    if (has(deciphered.reading)) return deciphered;
    if (has(plain.reading)) return plain;
  }
  return DoubtsAbout(bytes) < DoubtsAbout(definition) ? std::move(deciphered) : std::move(plain);
}

}  // namespace tavrin::tool
