#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "check/HostAddress.h"
#include "check/JudgedKeys.h"
#include "check/Rules.h"
#include "check/Utf8.h"
#include "check/ValueRemark.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kDigits = "0123456789";

bool IsOneOf(char c, std::string_view set) {
  return set.find(c) != std::string_view::npos;
}

/// A quote that writing programs put in place of those on the keyboard.
struct TypographicQuote {
  std::string_view utf8;
  char ansi;  ///< in the code pages of Windows; NUL: it is in none
  wchar_t wide;
  bool isDouble;
};

constexpr TypographicQuote kTypographicQuotes[] = {
    {"\xE2\x80\x9C", '\x93', 0x201C, true},  {"\xE2\x80\x9D", '\x94', 0x201D, true},
    {"\xE2\x80\x9E", '\x84', 0x201E, true},  {"\xE2\x80\x9F", '\0', 0x201F, true},
    {"\xE2\x80\x98", '\x91', 0x2018, false}, {"\xE2\x80\x99", '\x92', 0x2019, false},
    {"\xE2\x80\x9A", '\x82', 0x201A, false}, {"\xE2\x80\x9B", '\0', 0x201B, false},
};

/// A quote at one end of a value.
struct Quote {
  std::size_t length = 0;  ///< in the text of the line; 0: there is none
  char plain = '"';        ///< the one on the keyboard
  bool isTypographic = false;
};

/// A value as its line has it, with the quotes round it.
class WrittenValue {
 public:
  WrittenValue(const KeyLine& line, const WatchedRead& read, bool isUtf16)
      : wide_(isUtf16 ? read.text : std::wstring()) {
    const std::string_view text = line.text;
    const std::string_view value = Trim(text.substr(text.find('=') + 1));
    column_ = static_cast<std::size_t>(value.data() - text.data());
    text_ = value.substr(0, value.find('\0'));
  }

  std::string_view Text() const { return text_; }
  std::size_t Column() const { return column_; }
  bool IsQuoted() const {
    return text_.size() >= 2 && IsOneOf(text_.front(), "\"'") && text_.front() == text_.back();
  }
  Quote First() const { return QuoteAt(true); }
  Quote Last() const { return QuoteAt(false); }
  std::size_t TypographicQuotes() const;

 private:
  Quote QuoteAt(bool isFirst) const;

  std::wstring wide_;  ///< of UTF-16, of which the line has ASCII alone
  std::string_view text_;
  std::size_t column_ = 0;
};

Quote WrittenValue::QuoteAt(bool isFirst) const {
  if (text_.empty()) return {};
  const char end = isFirst ? text_.front() : text_.back();
  if (IsOneOf(end, "\"'")) return {1, end, false};
  for (const TypographicQuote& quote : kTypographicQuotes) {
    const char plain = quote.isDouble ? '"' : '\'';
    if (end == '?' && !wide_.empty() && (isFirst ? wide_.front() : wide_.back()) == quote.wide)
      return {1, plain, true};
    const std::size_t length = quote.utf8.size();
    const std::size_t begin = isFirst || text_.size() < length ? 0 : text_.size() - length;
    if (text_.substr(begin, length) == quote.utf8) return {length, plain, true};
    if (end == quote.ansi && !IsUtf8(text_)) return {1, plain, true};
  }
  return {};
}

std::size_t WrittenValue::TypographicQuotes() const {
  std::size_t count = 0;
  const auto add = [&](const auto& text, auto quote) {
    count += static_cast<std::size_t>(std::count(text.begin(), text.end(), quote));
  };
  for (const TypographicQuote& quote : kTypographicQuotes) {
    add(wide_, quote.wide);
    if (wide_.empty() && !IsUtf8(text_) && quote.ansi != '\0') add(text_, quote.ansi);
    if (!IsUtf8(text_)) continue;
    for (std::size_t i = text_.find(quote.utf8); i != std::string_view::npos;
         i = text_.find(quote.utf8, i + 1))
      ++count;
  }
  return count;
}

/// Looks at one value of a line of its own.
class TextCheck {
 public:
  TextCheck(const Check& check, const WatchedRead& read, const KeyLine& line)
      : check_(check),
        read_(read),
        line_(line),
        value_(line, read, check.reading.lines.IsUtf16()) {}

  /// @return whether there is something amiss.
  bool CheckQuotes() const;
  bool CheckFieldQuotes() const;
  bool CheckSign() const;
  bool CheckRemark() const;
  void CheckAddress() const;

 private:
  /// Adds a finding on part of the value, which the edits are to mend.
  Finding& Warn(const char* rule, std::size_t begin, const std::string& what,
                const std::string& effect, const std::string& remedy) const;
  /// Makes a remedy certain: part of the value becomes text.
  void Replace(Finding* finding, std::size_t begin, std::size_t count,
               const std::string& text) const;

  const Check& check_;
  const WatchedRead& read_;
  const KeyLine& line_;
  WrittenValue value_;
};

Finding& TextCheck::Warn(const char* rule, std::size_t begin, const std::string& what,
                         const std::string& effect, const std::string& remedy) const {
  Finding& finding =
      check_.Add(rule, line_.number, Severity::Warning, read_.key, what, effect, remedy);
  finding.column = value_.Column() + begin + 1;
  finding.certainty = Certainty::Likely;
  return finding;
}

void TextCheck::Replace(Finding* finding, std::size_t begin, std::size_t count,
                        const std::string& text) const {
  finding->certainty = Certainty::Certain;
  finding->edits.push_back({line_.number, value_.Column() + begin, count, text});
}

bool TextCheck::CheckQuotes() const {
  const std::string_view text = value_.Text();
  const Quote first = value_.First();
  const Quote last = value_.Last();
  const bool isAlone = text.size() < first.length + last.length;
  if ((first.length == 0 && last.length == 0) || value_.IsQuoted()) return false;
  const bool areBoth = !isAlone && first.length > 0 && last.length > 0;
  if (areBoth && (first.isTypographic || last.isTypographic)) {
    Finding& finding = Warn("quotes", 0, "typographic quotes are not taken off the value",
                            "they are part of it", "write \" in place of both");
    Replace(&finding, 0, first.length, "\"");
    Replace(&finding, text.size() - last.length, last.length, "\"");
    return true;
  }
  if (areBoth && first.plain != last.plain) {
    Warn("quotes", 0, "the value begins and ends with quotes of two kinds", "both are part of it",
         "write the same at both ends");
    return true;
  }
  const bool isFirst = first.length > 0;
  const Quote& quote = isFirst ? first : last;
  const std::size_t begin = isFirst ? 0 : text.size() - last.length;
  // Within the text the quotes may have their like.
  const bool isPaired = quote.isTypographic
                            ? value_.TypographicQuotes() > 1
                            : std::count(text.begin(), text.end(), quote.plain) % 2 == 0;
  // At the end of a text, ' is an apostrophe and " behind a digit means inches.
  const bool isSign =
      !isFirst && (last.plain == '\'' || (begin > 0 && IsOneOf(text[begin - 1], kDigits)));
  if (isPaired || isSign) return false;
  Finding& finding =
      Warn("quotes", begin,
           std::string("a quote stands at the ") + (isFirst ? "start" : "end") + " alone",
           "it is part of the value", "remove it");
  if (quote.plain == '"' && !isAlone) Replace(&finding, begin, quote.length, "");
  return true;
}

bool TextCheck::CheckFieldQuotes() const {
  const std::string_view text = value_.Text();
  const auto count = std::count(text.begin(), text.end(), '"');
  if (text.find(',') == std::string_view::npos || count < 2 || (count == 2 && value_.IsQuoted()))
    return false;
  Finding& finding = Warn("quotes", text.find('"'), "there are quotes round the fields of the list",
                          "they are part of them", "remove them");
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') Replace(&finding, i, 1, "");
  }
  return true;
}

/// Other notations have two characters between key and value.
bool TextCheck::CheckSign() const {
  const std::string_view text = value_.Text();
  const std::size_t length = std::min(text.find_first_not_of("=>"), text.size());
  if (length == 0) return false;
  const std::size_t next = std::min(text.find_first_not_of(kBlanks, length), text.size());
  Finding& finding =
      Warn("second-equals-sign", 0,
           Quoted(std::string(text)) + " begins with " + (text.front() == '=' ? "another =" : ">"),
           "it is part of the value", "remove it");
  if (next < text.size()) Replace(&finding, 0, next, "");
  return true;
}

bool TextCheck::CheckRemark() const {
  if (value_.IsQuoted()) return false;
  const bool isName = read_.key != "Version" && read_.key != "IPAddress";
  const auto remark = RemarkIn(value_.Text(), isName);
  if (remark) AddRemark(check_, line_, read_.key, value_.Column(), *remark);
  return remark.has_value();
}

void TextCheck::CheckAddress() const {
  const std::size_t quote = value_.IsQuoted() ? 1 : 0;
  const std::string text(value_.Text().substr(quote, value_.Text().size() - 2 * quote));
  const AddressDoubt doubt = DoubtAbout(text);
  if (doubt.what.empty()) return;
  const bool isCertain = doubt.certainty == Certainty::Certain;
  Finding& finding =
      Warn("address", quote, Quoted(text) + ' ' + doubt.what, "hosts get it as it stands",
           doubt.meant.empty() ? "write the address"
                               : "write " + doubt.meant + (isCertain ? "" : " if that is meant"));
  finding.certainty = doubt.certainty;
  if (isCertain) Replace(&finding, quote, text.size(), doubt.meant);
}

bool IsBeyondAscii(const std::string& text) {
  return std::any_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

/// The characters of texts that depend on the machine: said once, where the first of them is.
class EncodingCheck {
 public:
  void Add(const WatchedRead& read, const KeyLine& line) {
    if (!IsBeyondAscii(line.value)) return;
    constexpr wchar_t kReplacement = 0xFFFD;
    const bool isUndecodable = read.text.find(kReplacement) != std::wstring::npos &&
                               line.value.find("\xEF\xBF\xBD") == std::string::npos;
    (isUndecodable ? undecodable_ : others_).push_back(&line);
  }

  void Report(const Check& check) const {
    const bool isUndecodable = !undecodable_.empty();
    const auto& lines = isUndecodable ? undecodable_ : others_;
    if (lines.empty() || check.reading.lines.IsUtf16()) return;
    const KeyLine& first = **std::min_element(
        lines.begin(), lines.end(),
        [](const KeyLine* a, const KeyLine* b) { return a->number < b->number; });
    const std::string values =
        lines.size() == 1 ? "the value has" : Counted(lines.size(), "value") + " have";
    Finding& finding = check.Add(
        isUndecodable ? "undecodable" : "beyond-ascii", first.number, Severity::Warning, first.name,
        values + (isUndecodable ? " bytes that are no character of the user's encoding"
                                : " characters beyond ASCII"),
        isUndecodable ? "the printer gets a replacement character for each"
                      : "machines with another code page read others in their place",
        "save the file as UTF-16LE with a byte order mark");
    finding.certainty = Certainty::Likely;
  }

 private:
  std::vector<const KeyLine*> undecodable_;
  std::vector<const KeyLine*> others_;
};

/// What becomes of a number between quotes is no mistake of its own.
void LeaveOutConsequences(const Check& check, std::size_t line) {
  const auto isConsequence = [&](const Finding& finding) {
    return finding.line == line && (finding.rule == "no-number" || finding.rule == "number-range" ||
                                    finding.rule == "number-in-part");
  };
  Findings& findings = *check.findings;
  findings.erase(std::remove_if(findings.begin(), findings.end(), isConsequence), findings.end());
}

}  // namespace

void CheckTexts(const Check& check) {
  EncodingCheck encoding;
  const JudgedKeys judged(check);
  for (const WatchedRead& read : check.reading.reads) {
    const KeyLine* line = check.reading.lines.Find(read.key);
    if (!read.found || line == nullptr || !check.reading.Confirms(*line)) continue;
    std::int32_t number = 0;
    const KeyFacts& facts = FactsOf(check.reading.KnownKeyOf(read.key, &number)->Shape());
    const bool isText = read.kind == WatchedRead::Kind::Text && facts.form == KeyFacts::Form::Text;
    const TextCheck text(check, read, *line);
    const bool isFree = isText && !judged.Contains(read.key);
    if (isFree && (text.CheckSign() || text.CheckRemark())) continue;
    if ((!isText && text.CheckFieldQuotes()) || text.CheckQuotes()) {
      LeaveOutConsequences(check, line->number);
      continue;
    }
    if (!isText) continue;
    if (read.key == "IPAddress") text.CheckAddress();
    encoding.Add(read, *line);
  }
  encoding.Report(check);
}

}  // namespace tavrin::tool
