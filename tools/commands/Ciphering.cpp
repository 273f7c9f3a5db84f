#include "commands/Ciphering.h"

#include "Failure.h"

namespace tavrin::tool {

Bytes Ciphered(const std::string& file, Bytes bytes,
               bool (*cipher)(unsigned char*, std::uint32_t)) {
  if (!cipher(bytes.data(), static_cast<std::uint32_t>(bytes.size()))) {
    throw Failure(file, "the system's cipher refused it",
                  "check that the system offers SHA-1 and RC4");
  }
  return bytes;
}

}  // namespace tavrin::tool
