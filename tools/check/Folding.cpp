#include "check/Folding.h"

#include "check/Rules.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

/// What consequences come to, each kind of them in one sentence.
class Sum {
 public:
  explicit Sum(const std::string& effect) : said_({effect}) {}

  void Add(const Finding& finding, const Folding::Subject& subject) {
    if (finding.rule == "uncalled-key") {
      lines_.insert(finding.line);
    } else if (finding.rule == "unknown-code") {
      slots_.insert(subject.number);
    } else if (finding.missingMode) {
      modes_.insert(*finding.missingMode);
    } else {
      const std::string& effect = finding.sum.empty() ? finding.effect : finding.sum;
      if (said_.insert(effect).second) Say(effect);
    }
  }

  std::string Text() {
    if (!modes_.empty())
      Say((modes_.size() == 1 ? "the printer has no mode " : "the printer has no modes ") +
          Listed(modes_));
    if (!slots_.empty()) Say("slots without a known ink: " + Listed(slots_));
    if (!lines_.empty()) Say(Idle(lines_));
    return text_;
  }

 private:
  void Say(const std::string& sentence) { text_ += (text_.empty() ? "" : "; ") + sentence; }

  std::set<std::string> said_;
  std::set<std::size_t> lines_;
  std::set<std::int32_t> slots_;
  std::set<std::int32_t> modes_;
  std::string text_;
};

}  // namespace

std::string Listed(const std::set<std::int32_t>& numbers) {
  std::string listed;
  for (const std::int32_t number : numbers)
    listed += (listed.empty() ? "" : ", ") + std::to_string(number);
  return Shortened(listed);
}

std::string Idle(const std::set<std::size_t>& lines) {
  const std::string first = std::to_string(*lines.begin());
  if (lines.size() == 1) return "line " + first + " has no effect";
  return std::to_string(lines.size()) + " lines from " + first + " to " +
         std::to_string(*lines.rbegin()) + " have no effect";
}

Folding::Subject Folding::SubjectOf(const Finding& finding) const {
  Subject subject;
  const std::string& key = finding.meant.empty() ? finding.key : finding.meant;
  const KnownKey* known = reading.KnownKeyOf(key, &subject.number);
  if (known == nullptr) return subject;
  subject.shape = known->Shape();
  const char* governor = FactsOf(subject.shape).governor;
  subject.governor = governor == nullptr ? "" : governor;
  return subject;
}

std::set<std::int32_t> Folding::NumbersOf(const Indices& indices) const {
  std::set<std::int32_t> numbers;
  for (const std::size_t i : indices)
    numbers.insert(SubjectOf(findings_[i]).number);
  return numbers;
}

std::set<std::size_t> Folding::LinesOf(const Indices& indices) const {
  std::set<std::size_t> lines;
  for (const std::size_t i : indices)
    lines.insert(findings_[i].line);
  return lines;
}

void Folding::Fold(std::size_t cause, const Indices& consequences) {
  Finding& folded = findings_[cause];
  Sum sum(folded.effect);
  for (const std::size_t i : consequences) {
    if (i == cause || gone_[i]) continue;
    gone_[i] = true;
    folded.severity = std::max(folded.severity, findings_[i].severity);
    sum.Add(findings_[i], SubjectOf(findings_[i]));
  }
  const std::string text = sum.Text();
  folded.effect += (folded.effect.empty() || text.empty() ? "" : "; ") + text;
}

void Folding::FoldModes(std::size_t cause, const std::set<std::int32_t>& modes) {
  const bool hasModes = !reading.modes.empty();
  Fold(cause, Find([&](const Finding& finding) {
         return (finding.missingMode && modes.count(*finding.missingMode) != 0) ||
                (!hasModes && finding.rule == "uncalled-key" && finding.key == "LimitationMode");
       }));
}

void Folding::Join(const Indices& indices) {
  Finding& first = findings_[indices.front()];
  for (const std::size_t i : indices) {
    if (i == indices.front()) continue;
    gone_[i] = true;
    first.edits.insert(first.edits.end(), findings_[i].edits.begin(), findings_[i].edits.end());
  }
}

std::size_t Folding::Add(const Finding& finding) {
  findings_.push_back(finding);
  gone_.push_back(false);
  return findings_.size() - 1;
}

Findings Folding::Kept() const {
  Findings kept;
  for (std::size_t i = 0; i < findings_.size(); ++i) {
    if (!gone_[i]) kept.push_back(findings_[i]);
  }
  return kept;
}

}  // namespace tavrin::tool
