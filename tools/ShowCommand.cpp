#include "ShowCommand.h"

#include <chrono>

#include "FactsJson.h"
#include "FactsText.h"
#include "Failure.h"
#include "FileTransfer.h"
#include "LoadFailure.h"
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

}  // namespace

void Show(const std::string& definition, ShowFormat format) {
  const auto start = std::chrono::steady_clock::now();
  const LoadedDefinition loaded(definition);
  if (!loaded) {
    throw ExplainLoadFailure(definition, std::chrono::duration_cast<std::chrono::milliseconds>(
                                             std::chrono::steady_clock::now() - start));
  }
  const PrinterFacts facts = AskPrinterFacts();
  PrintText(format == ShowFormat::Json ? FactsAsJson(facts) : FactsAsText(facts));
  if (!facts.HasIdentity()) {
    throw Failure(definition, PrinterFacts::kNoIdentity, "shorten it in the INI file");
  }
}

}  // namespace tavrin::tool
