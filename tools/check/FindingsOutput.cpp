#include "check/FindingsOutput.h"

#include <algorithm>

#include "FilePath.h"

namespace tavrin::tool {

namespace {

constexpr struct {
  const char* name;
  const char* color;
} kSeverities[] = {{"note", "\x1B[36m"}, {"warning", "\x1B[33m"}, {"error", "\x1B[31m"}};

/// Where paths are wide, their own conversion knows the way from the code page to UTF-8.
std::string ToUtf8(const std::string& text) {
  return ToPath(text).u8string();
}

}  // namespace

void PrintFinding(const std::string& file, const Finding& finding, bool inColor,
                  std::ostream& out) {
  const auto& [name, color] = kSeverities[static_cast<std::size_t>(finding.severity)];
  std::string text =
      finding.key + ": " + finding.what + ", " + finding.effect + ", " + finding.remedy;
  // Texts of the file must not steer a terminal.
  std::replace_if(
      text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
  out << file << ':' << finding.line << ": " << (inColor ? color : "") << name
      << (inColor ? "\x1B[0m" : "") << ": " << text << '\n';
}

nlohmann::ordered_json ToJson(const std::string& file, const Finding& finding) {
  return {{"file", ToUtf8(file)},
          {"line", finding.line},
          {"severity", kSeverities[static_cast<std::size_t>(finding.severity)].name},
          {"key", ToUtf8(finding.key)},
          {"what", ToUtf8(finding.what)},
          {"effect", ToUtf8(finding.effect)},
          {"remedy", ToUtf8(finding.remedy)}};
}

}  // namespace tavrin::tool
