#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "TavrinVersion.h"
#include "check/FileReport.h"
#include "check/RuleList.h"
#include "files/FilePath.h"
#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

using Json = nlohmann::ordered_json;

/// A message, in which brackets would be links and braces would be arguments.
Json Message(const std::string& text) {
  std::string escaped;
  for (const char c : EscapedUtf8(text)) {
    if (c == '\\' || c == '[' || c == ']') escaped += '\\';
    if (c == '{' || c == '}') escaped += c;
    escaped += c;
  }
  return {{"text", escaped}};
}

/// Whether the path begins with the letter of a drive.
bool HasDrive(const std::string& path) {
  return path.size() > 2 && path[1] == ':' && path[2] == '/';
}

/// The path with a slash wherever the platform has a separator.
std::string Slashed(const std::string& file) {
  using std::filesystem::path;
  return ToArgument(path(ToPath(file).generic_string<path::value_type>()));
}

/// A reference that is relative as the path is.
std::string UriOf(const std::string& file) {
  const std::string path = ToUtf8(Slashed(file));
  constexpr char kHexadecimal[] = "0123456789ABCDEF";
  constexpr char kUnreserved[] =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  std::string uri = HasDrive(path) ? "file:///" : !path.empty() && path[0] == '/' ? "file://" : "";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (std::string_view(kUnreserved).find(c) != std::string_view::npos) {
      uri += c;
    } else {
      uri += {'%', kHexadecimal[byte >> 4], kHexadecimal[byte & 0xFu]};
    }
  }
  return uri;
}

Json LocationOf(const std::string& path, const Finding* finding) {
  Json location = {{"artifactLocation", {{"uri", UriOf(path)}}}};
  if (finding != nullptr) {
    location["region"] = {{"startLine", finding->line}};
    if (finding->column != 0) location["region"]["startColumn"] = finding->column;
  }
  return Json::array({{{"physicalLocation", location}}});
}

Json Rules() {
  Json rules = Json::array();
  for (const Rule& rule : ListRules())
    rules.push_back({{"id", rule.id}, {"shortDescription", {{"text", rule.summary}}}});
  return rules;
}

Json ResultOf(const FileReport& report, const Finding& finding) {
  const auto& rules = ListRules();
  const auto rule = std::find_if(rules.begin(), rules.end(), [&](const Rule& candidate) {
    return candidate.id == finding.rule;
  });
  return {{"ruleId", finding.rule},
          {"ruleIndex", rule - rules.begin()},
          {"level", NameOf(finding.severity)},
          {"message", Message(Sentence(finding))},
          {"locations", LocationOf(report.path, &finding)}};
}

}  // namespace

std::string ReportsAsSarif(const FileReports& reports) {
  Json results = Json::array();
  Json notifications = Json::array();
  for (const FileReport& report : reports) {
    for (const Finding& finding : report.findings)
      results.push_back(ResultOf(report, finding));
    if (report.failure.empty()) continue;
    notifications.push_back({{"level", "error"},
                             {"message", Message(report.failure)},
                             {"locations", LocationOf(report.path, nullptr)}});
  }
  const Json driver = {
      {"name", "tavrin check"}, {"semanticVersion", TAVRIN_VERSION_STRING}, {"rules", Rules()}};
  const Json invocation = {{"executionSuccessful", notifications.empty()},
                           {"toolExecutionNotifications", notifications}};
  const Json run = {{"tool", {{"driver", driver}}},
                    {"columnKind", "unicodeCodePoints"},
                    {"invocations", Json::array({invocation})},
                    {"results", results}};
  const Json log = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                    {"version", "2.1.0"},
                    {"runs", Json::array({run})}};
  return log.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace tavrin::tool
