#include <nlohmann/json.hpp>

#include "check/FileReport.h"
#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kSchemaVersion = 1;

const char* NameOf(ExitStatus status) {
  constexpr const char* kNames[] = {"clean", "warnings", "errors", "failed"};
  return kNames[static_cast<std::size_t>(status)];
}

Json ToJson(const Finding& finding) {
  return {{"line", finding.line},
          {"column", finding.column == 0 ? Json() : Json(finding.column)},
          {"rule", finding.rule},
          {"severity", NameOf(finding.severity)},
          {"certainty", NameOf(finding.certainty)},
          {"key", ToUtf8(finding.key)},
          {"what", ToUtf8(finding.what)},
          {"effect", ToUtf8(finding.effect)},
          {"remedy", ToUtf8(finding.remedy)}};
}

}  // namespace

std::string ReportsAsJson(const FileReports& reports) {
  Json files = Json::array();
  for (const FileReport& report : reports) {
    Json findings = Json::array();
    for (const Finding& finding : report.findings)
      findings.push_back(ToJson(finding));
    files.push_back({{"path", ToUtf8(report.path)},
                     {"container", report.container ? Json(NameOf(*report.container)) : Json()},
                     {"status", NameOf(report.Status())},
                     {"failure", report.failure.empty() ? Json() : Json(ToUtf8(report.failure))},
                     {"findings", findings}});
  }
  const Json object = {{"schemaVersion", kSchemaVersion}, {"files", files}};
  return object.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace tavrin::tool
