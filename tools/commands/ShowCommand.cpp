#include "commands/ShowCommand.h"

#include <chrono>

#include "Failure.h"
#include "TavrinSession.h"
#include "commands/LoadFailure.h"
#include "facts/FactsJson.h"
#include "facts/FactsText.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

namespace {

tavrinlib::Session Load(const std::string& definition) {
  const auto start = std::chrono::steady_clock::now();
  try {
    return tavrinlib::Session(definition);
  } catch (const tavrinlib::Error&) {
    throw ExplainLoadFailure(definition, std::chrono::duration_cast<std::chrono::milliseconds>(
                                             std::chrono::steady_clock::now() - start));
  }
}

}  // namespace

void Show(const std::string& definition, ShowFormat format) {
  const PrinterFacts facts = AskPrinterFacts(Load(definition));
  PrintText(format == ShowFormat::Json ? FactsAsJson(facts) : FactsAsText(facts));
  if (!facts.HasIdentity()) {
    throw Failure(definition, PrinterFacts::kNoIdentity, "shorten it in the INI file");
  }
}

}  // namespace tavrin::tool
