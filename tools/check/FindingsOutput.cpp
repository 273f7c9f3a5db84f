#include "check/FindingsOutput.h"

#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

struct SeverityStyle {
  const char* name;
  const char* color;
};

constexpr SeverityStyle kSeverities[] = {
    {"note", "\x1B[36m"}, {"warning", "\x1B[33m"}, {"error", "\x1B[31m"}};

constexpr const char* kCertainties[] = {"none", "likely", "certain"};
constexpr const char* kCertaintyWords[] = {"", " (likely: look first)", " (certain)"};

}  // namespace

void PrintFinding(const std::string& file, const Finding& finding, bool inColor,
                  std::ostream& out) {
  const SeverityStyle& style = kSeverities[static_cast<std::size_t>(finding.severity)];
  const std::string text =
      finding.key + ": " + finding.what + ", " + finding.effect + ", " + finding.remedy +
      (finding.edits.empty() ? kCertaintyWords[static_cast<std::size_t>(finding.certainty)]
                             : " (certain: --fix does it)");
  out << Printable(file) << ':' << finding.line << ": " << (inColor ? style.color : "")
      << style.name << (inColor ? "\x1B[0m" : "") << ": " << Printable(text) << '\n';
}

nlohmann::ordered_json ToJson(const std::string& file, const Finding& finding) {
  return {{"file", ToUtf8(file)},
          {"line", finding.line},
          {"rule", finding.rule},
          {"severity", kSeverities[static_cast<std::size_t>(finding.severity)].name},
          {"key", ToUtf8(finding.key)},
          {"what", ToUtf8(finding.what)},
          {"effect", ToUtf8(finding.effect)},
          {"remedy", ToUtf8(finding.remedy)},
          {"certainty", kCertainties[static_cast<std::size_t>(finding.certainty)]}};
}

}  // namespace tavrin::tool
