#include "check/PlainText.h"

#include <algorithm>
#include <cstdint>

#include "definition/FileCipher.h"

namespace tavrin::tool {

namespace {

/// Definitions are mostly ASCII, which in UTF-16 has a NUL to each character; enciphered text is
/// any bytes at all.
bool IsUnlikely(unsigned char byte) {
  const bool isAscii = byte >= ' ' && byte < 0x7F;
  return !isAscii && byte != '\0' && byte != '\t' && byte != '\n' && byte != '\r';
}

}  // namespace

Bytes PlainTextOf(const Bytes& definition) {
  Bytes deciphered = definition;
  if (!DecryptBuffer(deciphered.data(), static_cast<std::uint32_t>(deciphered.size())))
    return definition;
  const auto unlikely = [](const Bytes& bytes) {
    return std::count_if(bytes.begin(), bytes.end(), IsUnlikely);
  };
  return unlikely(deciphered) < unlikely(definition) ? deciphered : definition;
}

}  // namespace tavrin::tool
