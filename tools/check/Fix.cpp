#include "check/Fix.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>

#include "LineAlignment.h"
#include "check/Rules.h"
#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

/// A change of the file's bytes.
struct Patch {
  std::size_t offset;
  std::size_t length;
  Bytes bytes;
};

/// How the first line ends.
std::string LineEndOf(const Reading& reading) {
  const std::string text = TextOf(reading.plain, reading.lines.Format());
  const std::size_t end = text.find_first_of("\r\n");
  if (end == std::string::npos) return "\n";
  return text.compare(end, 2, "\r\n") == 0 ? "\r\n" : text.substr(end, 1);
}

Patch PatchOf(const Edit& edit, const LineIndex& lines, const std::string& lineEnd) {
  const TextFormat& format = lines.Format();
  if (edit.line == 0) return {0, format.markLength, {}};
  Patch patch{lines.OffsetOf(edit.line, edit.column), edit.count * format.unitLength, {}};
  std::string text;
  for (const char c : edit.text)
    text += c == '\n' ? lineEnd : std::string(1, c);
  for (const char c : text) {
    patch.bytes.resize(patch.bytes.size() + format.unitLength);
    patch.bytes[patch.bytes.size() - format.unitLength + format.lowByte] =
        static_cast<unsigned char>(c);
  }
  return patch;
}

/// Changes that do not touch each other, by their offsets.
class Patches {
 public:
  /// Takes all of them or none.
  void Add(const std::vector<Patch>& patches) {
    if (!std::all_of(patches.begin(), patches.end(),
                     [this](const Patch& patch) { return IsFree(patch); }))
      return;
    for (const Patch& patch : patches)
      byOffset_.emplace(patch.offset, patch);
  }

  Bytes ApplyTo(const Bytes& plain) const {
    Bytes applied;
    auto rest = plain.begin();
    for (const auto& [offset, patch] : byOffset_) {
      const auto begin = plain.begin() + static_cast<std::ptrdiff_t>(offset);
      applied.insert(applied.end(), rest, begin);
      applied.insert(applied.end(), patch.bytes.begin(), patch.bytes.end());
      rest = begin + static_cast<std::ptrdiff_t>(patch.length);
    }
    applied.insert(applied.end(), rest, plain.end());
    return applied;
  }

 private:
  bool IsFree(const Patch& patch) const {
    const auto next = byOffset_.upper_bound(patch.offset + patch.length);
    if (next == byOffset_.begin()) return true;
    const Patch& last = std::prev(next)->second;
    return last.offset + last.length < patch.offset;
  }

  std::map<std::size_t, Patch> byOffset_;
};

/// Of findings that would change the same place the first is followed; the others come up again if
/// anything is left of them.
Bytes Follow(const Reading& reading, const Findings& findings) {
  Patches patches;
  const std::string lineEnd = LineEndOf(reading);
  for (const Finding& finding : findings) {
    if (finding.certainty != Certainty::Certain || finding.edits.empty()) continue;
    std::vector<Patch> own;
    for (const Edit& edit : finding.edits)
      own.push_back(PatchOf(edit, reading.lines, lineEnd));
    patches.Add(own);
  }
  return patches.ApplyTo(reading.plain);
}

/// What stands behind a last line that has no end, on a line of its own.
constexpr char kUnended[] = "\n\\ No newline at end of file";

std::vector<std::string> LinesOf(const Bytes& plain) {
  std::vector<std::string> lines;
  const std::string text = TextOf(plain, TextFormat::Of(plain));
  for (std::string_view rest = text; !rest.empty();)
    lines.emplace_back(TakeLine(&rest));
  if (!text.empty() && text.back() != '\n' && text.back() != '\r') lines.back() += kUnended;
  return lines;
}

std::string Signed(char sign, const std::string& line) {
  const std::size_t end = line.find('\n');
  return sign + Printable(line.substr(0, end)) + (end == std::string::npos ? "" : kUnended) + '\n';
}

}  // namespace

Bytes FollowCertainRemedies(const Reading& reading) {
  constexpr int kMostRounds = 10;  // remedies that undo each other shall not go on for ever
  Bytes before = reading.plain;
  Bytes after = Follow(reading, FindAll(reading));
  for (int round = 1; round < kMostRounds && after != before; ++round) {
    before = after;
    const Reading next(before);
    after = Follow(next, FindAll(next));
  }
  return after;
}

std::string DifferenceOf(const std::string& file, const Bytes& before, const Bytes& after) {
  if (before == after) return {};
  const std::string name = Printable(file);
  std::string difference = "--- " + name + "\n+++ " + name + '\n';
  if (TextFormat::Of(before).markLength != TextFormat::Of(after).markLength)
    difference += "without the byte order mark\n";
  const std::vector<std::string> old = LinesOf(before);
  const std::vector<std::string> now = LinesOf(after);
  const auto take = [](const std::vector<std::string>& lines, std::size_t begin, std::size_t end,
                       char sign) {
    std::string taken;
    for (std::size_t i = begin; i < end; ++i)
      taken += Signed(sign, lines[i]);
    return taken;
  };
  const auto range = [](std::size_t begin, std::size_t end) {
    return std::to_string(end == begin ? begin : begin + 1) + ',' + std::to_string(end - begin);
  };
  for (const LineDifference& lines : AlignLines(old, now)) {
    difference += "@@ -" + range(lines.oldBegin, lines.oldEnd) + " +" +
                  range(lines.newBegin, lines.newEnd) + " @@\n" +
                  take(old, lines.oldBegin, lines.oldEnd, '-') +
                  take(now, lines.newBegin, lines.newEnd, '+');
  }
  return difference;
}

}  // namespace tavrin::tool
