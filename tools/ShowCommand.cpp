#include "ShowCommand.h"

#include <algorithm>

#include "FactsJson.h"
#include "FactsText.h"
#include "Failure.h"
#include "FileTransfer.h"
#include "TavrinLib.h"

namespace tavrin::tool {

namespace {

/// The definition stays loaded for this object's life.
class LoadedDefinition {
 public:
  explicit LoadedDefinition(const std::string& file) : loaded_(TavrinInitialize(file.c_str())) {}
  ~LoadedDefinition() { TavrinFinalize(); }
  LoadedDefinition(const LoadedDefinition&) = delete;
  LoadedDefinition& operator=(const LoadedDefinition&) = delete;

  explicit operator bool() const { return loaded_; }

 private:
  bool loaded_;
};

bool LooksLikePlainIni(const Bytes& bytes) {
  const std::string section = "[printer]";
  return bytes.front() == '[' || bytes.front() == ';' ||
         std::search(bytes.begin(), bytes.end(), section.begin(), section.end()) != bytes.end();
}

/// Looks into a file that the library gave up on.
Failure Diagnose(const std::string& file) {
  if (LooksLikePlainIni(ReadFile(file))) {
    return {file, "looks like a plain INI file, not a printer definition",
            "make a definition of it with tavrin encipher"};
  }
  return {file, "cannot be loaded as a printer definition",
          "tavrin decipher shows whether its section [printer] has a Version; the temporary "
          "directory must be writable"};
}

}  // namespace

void Show(const std::string& definition, ShowFormat format) {
  const LoadedDefinition loaded(definition);
  if (!loaded) throw Diagnose(definition);
  const PrinterFacts facts = AskPrinterFacts();
  PrintText(format == ShowFormat::Json ? FactsAsJson(facts) : FactsAsText(facts));
  if (!facts.HasIdentity()) {
    throw Failure(definition, PrinterFacts::kNoIdentity, "shorten it in the INI file");
  }
}

}  // namespace tavrin::tool
