#include "check/Ignores.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "Spelling.h"
#include "check/RuleList.h"
#include "check/Rules.h"

namespace tavrin::tool {

namespace {

constexpr char kIdLetters[] = "abcdefghijklmnopqrstuvwxyz0123456789-";

void SkipBlanks(std::string_view* text) {
  text->remove_prefix(std::min(text->find_first_not_of(" \t"), text->size()));
}

/// Takes the text off the front, with the blanks behind it.
bool Take(std::string_view* text, std::string_view front) {
  if (text->substr(0, front.size()) != front) return false;
  text->remove_prefix(front.size());
  SkipBlanks(text);
  return true;
}

std::string TakeWord(std::string_view* text) {
  const std::size_t length = std::min(text->find_first_not_of(kIdLetters), text->size());
  const std::string word(text->substr(0, length));
  Take(text, word);
  return word;
}

struct Request {
  bool isForCheck = false;
  std::string verb = {};
  std::vector<std::string> ids = {};
};

Request RequestIn(const CommentLine& comment) {
  std::string_view rest = comment.text;
  SkipBlanks(&rest);
  if (!Take(&rest, "tavrin-check:")) return {};
  Request request = {true, TakeWord(&rest)};
  do {
    request.ids.push_back(TakeWord(&rest));
  } while (Take(&rest, ","));
  return request;
}

}  // namespace

std::set<std::string> IgnoredBy(const LineIndex& lines) {
  std::set<std::string> ignored;
  for (const CommentLine& comment : lines.Comments()) {
    const Request request = RequestIn(comment);
    if (request.verb == "ignore") ignored.insert(request.ids.begin(), request.ids.end());
  }
  return ignored;
}

void DropIgnored(const std::set<std::string>& rules, Findings* findings) {
  findings->erase(
      std::remove_if(findings->begin(), findings->end(),
                     [&](const Finding& finding) { return rules.count(finding.rule) != 0; }),
      findings->end());
}

void CheckIgnores(const Check& check) {
  const auto warn = [&](std::size_t line, const std::string& what, const std::string& remedy) {
    check.Add("unknown-ignore", line, Severity::Warning, "tavrin-check", what,
              "the comment has no effect", remedy);
  };
  for (const CommentLine& comment : check.reading.lines.Comments()) {
    const Request request = RequestIn(comment);
    if (!request.isForCheck) continue;
    if (request.verb != "ignore") warn(comment.number, "no ignore follows", "write ignore and ids");
    for (const std::string& id : request.ids) {
      if (FindRule(id) != nullptr || request.verb != "ignore") continue;
      const std::string nearest = NearestName(id, RuleIds());
      warn(comment.number, "no finding has the id " + Quoted(id),
           nearest.empty() ? "write the id that a finding ends with" : "write " + nearest);
    }
  }
}

}  // namespace tavrin::tool
