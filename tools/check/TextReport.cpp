#include "check/FileReport.h"
#include "check/Rules.h"
#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

std::string Colored(Severity severity, bool inColor) {
  constexpr const char* kColors[] = {"\x1B[36m", "\x1B[33m", "\x1B[31m"};
  const std::string name = NameOf(severity);
  return inColor ? kColors[static_cast<std::size_t>(severity)] + name + "\x1B[0m" : name;
}

std::string PlaceOf(const Finding& finding) {
  const std::string line = std::to_string(finding.line);
  return finding.column == 0 ? line : line + ':' + std::to_string(finding.column);
}

}  // namespace

std::string ReportsAsText(const FileReports& reports, bool inColor) {
  std::string text;
  for (const FileReport& report : reports) {
    for (const Finding& finding : report.findings) {
      text += Printable(report.path) + ':' + PlaceOf(finding) + ": " +
              Colored(finding.severity, inColor) + ": " + Printable(Sentence(finding)) + " [" +
              finding.rule + "]\n";
    }
  }
  return text;
}

std::string SummaryOf(const FileReports& reports) {
  std::size_t severities[3] = {};
  std::size_t containers[2] = {};
  std::size_t unread = 0;
  for (const FileReport& report : reports) {
    if (report.container) ++containers[static_cast<std::size_t>(*report.container)];
    if (!report.failure.empty()) ++unread;
    for (const Finding& finding : report.findings)
      ++severities[static_cast<std::size_t>(finding.severity)];
  }
  std::string kinds;
  const auto add = [&kinds](std::size_t count, const char* kind) {
    if (count > 0) kinds += (kinds.empty() ? "" : ", ") + std::to_string(count) + ' ' + kind;
  };
  add(containers[0], NameOf(Container::Plain));
  add(containers[1], NameOf(Container::Enciphered));
  add(unread, "not read");
  return Counted(reports.size(), "file") + " (" + kinds + "): " + Counted(severities[2], "error") +
         ", " + Counted(severities[1], "warning") + '\n';
}

}  // namespace tavrin::tool
