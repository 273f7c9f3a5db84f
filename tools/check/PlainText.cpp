#include "check/PlainText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "definition/FileCipher.h"

namespace tavrin::tool {

namespace {

/// UTF-16 text says what it is.
bool HasUtf16Mark(const Bytes& bytes) {
  return bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE;
}

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

}  // namespace

Bytes PlainTextOf(const Bytes& definition) {
  Bytes deciphered = definition;
  if (HasUtf16Mark(definition) ||
      !DecryptBuffer(deciphered.data(), static_cast<std::uint32_t>(deciphered.size()))) {
    return definition;
  }
  const bool isEnciphered =
      HasUtf16Mark(deciphered) || DoubtsAbout(deciphered) < DoubtsAbout(definition);
  return isEnciphered ? deciphered : definition;
}

}  // namespace tavrin::tool
