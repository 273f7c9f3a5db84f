#include "facts/DefinitionFacts.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <system_error>
#include <utility>

#include "Failure.h"
#include "definition/FileCipher.h"
#include "definition/TemporaryPath.h"
#include "facts/LoadFailure.h"
#include "files/FilePath.h"
#include "files/TemporaryFile.h"

namespace tavrin::tool {

namespace {

PrinterFacts AskAbout(const std::string& definition) {
  const auto start = std::chrono::steady_clock::now();
  try {
    return AskPrinterFacts(tavrinlib::Session(definition));
  } catch (const tavrinlib::Error&) {
    throw ExplainLoadFailure(definition, std::chrono::duration_cast<std::chrono::milliseconds>(
                                             std::chrono::steady_clock::now() - start));
  }
}

/// What the library answers about a definition that lies in no file that it could load.
PrinterFacts AskAboutCopyOf(Bytes plain) {
  const std::filesystem::path directory = ToPath(MakeTemporaryPath("")).parent_path();
  TemporaryFile copy(directory / "definition.dat");
  if (!EncryptBuffer(plain.data(), static_cast<std::uint32_t>(plain.size())) ||
      copy.Stream() == nullptr ||
      std::fwrite(plain.data(), 1, plain.size(), copy.Stream()) != plain.size() || !copy.Close()) {
    throw Failure("temporary directory " + ToArgument(directory),
                  "takes no file: " + std::generic_category().message(errno),
                  "check its permissions and free space, or name another one in TMPDIR, on Windows "
                  "in TMP");
  }
  return AskAbout(ToArgument(copy.Path()));
}

}  // namespace

DefinitionFacts LoadFacts(const std::string& file) {
  return LoadFacts(file, ReadInput(file));
}

DefinitionFacts LoadFacts(const std::string& file, const Bytes& bytes) {
  DefinitionReading definition = ReadDefinition(bytes);
  if (!definition.reading.loads) throw ExplainRefusal(NameOfInput(file), definition.container);
  const bool isLoadable = file != kStandardStream && definition.container == Container::Enciphered;
  PrinterFacts printer = isLoadable ? AskAbout(file) : AskAboutCopyOf(definition.reading.plain);
  HiddenFacts hidden = TakeHiddenFacts(definition.reading);
  return {file, std::move(definition), std::move(printer), std::move(hidden)};
}

}  // namespace tavrin::tool
