#include "check/Fix.h"

#include <algorithm>
#include <string_view>

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

Patch PatchOf(const Edit& edit, const LineIndex& lines) {
  const TextFormat& format = lines.Format();
  if (edit.line == 0) return {0, format.markLength, {}};
  Patch patch{lines.OffsetOf(edit.line, edit.column), edit.count * format.unitLength, {}};
  for (const char c : edit.text) {
    patch.bytes.resize(patch.bytes.size() + format.unitLength);
    patch.bytes[patch.bytes.size() - format.unitLength + format.lowByte] =
        static_cast<unsigned char>(c);
  }
  return patch;
}

bool Touch(const Patch& a, const Patch& b) {
  return a.offset <= b.offset + b.length && b.offset <= a.offset + a.length;
}

/// Of findings that would change the same place the first is followed; the others come up again if
/// anything is left of them.
Bytes Follow(const Reading& reading, const Findings& findings, Findings* followed) {
  std::vector<Patch> patches;
  for (const Finding& finding : findings) {
    if (finding.certainty != Certainty::Certain || finding.edits.empty()) continue;
    std::vector<Patch> own;
    for (const Edit& edit : finding.edits)
      own.push_back(PatchOf(edit, reading.lines));
    const bool isFree = std::none_of(own.begin(), own.end(), [&](const Patch& patch) {
      return std::any_of(patches.begin(), patches.end(),
                         [&](const Patch& other) { return Touch(patch, other); });
    });
    if (!isFree) continue;
    patches.insert(patches.end(), own.begin(), own.end());
    followed->push_back(finding);
  }
  std::sort(patches.begin(), patches.end(),
            [](const Patch& a, const Patch& b) { return a.offset > b.offset; });
  Bytes plain = reading.plain;
  for (const Patch& patch : patches) {
    const auto begin = plain.begin() + static_cast<std::ptrdiff_t>(patch.offset);
    const auto end = begin + static_cast<std::ptrdiff_t>(patch.length);
    plain.insert(plain.erase(begin, end), patch.bytes.begin(), patch.bytes.end());
  }
  return plain;
}

std::vector<std::string> LinesOf(const Bytes& plain) {
  std::vector<std::string> lines;
  const std::string text = TextOf(plain, TextFormat::Of(plain));
  for (std::string_view rest = text; !rest.empty();)
    lines.emplace_back(TakeLine(&rest));
  return lines;
}

}  // namespace

Fix FollowCertainRemedies(const Reading& reading) {
  constexpr int kMostRounds = 10;  // remedies that undo each other shall not go on for ever
  Fix fix;
  fix.plain = Follow(reading, FindAll(reading), &fix.followed);
  Bytes before = reading.plain;
  for (int round = 1; round < kMostRounds && fix.plain != before; ++round) {
    before = fix.plain;
    const Reading next(before);
    fix.plain = Follow(next, FindAll(next), &fix.followed);
  }
  return fix;
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
      taken += sign + Printable(lines[i]) + '\n';
    return taken;
  };
  const std::size_t count = std::min(old.size(), now.size());
  for (std::size_t begin = 0; begin < count; ++begin) {
    std::size_t end = begin;
    while (end < count && old[end] != now[end])
      ++end;
    if (end == begin) continue;
    const std::string range =
        std::to_string(begin + 1) + (end - begin == 1 ? "" : ',' + std::to_string(end - begin));
    difference += "@@ -" + range + " +" + range + " @@\n";
    difference += take(old, begin, end, '-') + take(now, begin, end, '+');
    begin = end;
  }
  return difference;
}

}  // namespace tavrin::tool
