#include <cstdio>
#include <string>

#include "check/FileReport.h"
#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

/// The runner takes percent signs, line ends and, in properties, what separates them for its own.
std::string Escaped(const std::string& text, const std::string& taken) {
  std::string escaped;
  for (const char c : EscapedUtf8(text)) {
    char escape[4];
    std::snprintf(escape, sizeof escape, "%%%02X", static_cast<unsigned>(c));
    escaped += taken.find(c) == std::string::npos ? std::string(1, c) : escape;
  }
  return escaped;
}

std::string Property(const std::string& text) {
  return Escaped(text, "%\r\n:,");
}

std::string Message(const std::string& text) {
  return Escaped(text, "%\r\n");
}

}  // namespace

std::string ReportsAsGithub(const FileReports& reports) {
  std::string text;
  for (const FileReport& report : reports) {
    const std::string file = " file=" + Property(report.path);
    if (!report.failure.empty()) text += "::error" + file + "::" + Message(report.failure) + '\n';
    for (const Finding& finding : report.findings) {
      const std::string column =
          finding.column == 0 ? "" : ",col=" + std::to_string(finding.column);
      text += (finding.severity == Severity::Note ? "::notice"
                                                  : "::" + std::string(NameOf(finding.severity))) +
              file + ",line=" + std::to_string(finding.line) + column + ",title=" + finding.rule +
              "::" + Message(Sentence(finding)) + '\n';
    }
  }
  return text;
}

}  // namespace tavrin::tool
