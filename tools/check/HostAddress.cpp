#include "check/HostAddress.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

namespace tavrin::tool {

namespace {

constexpr std::size_t kNumbers = 4;

/// A number of an IPv4 address. Some systems read one with a leading 0 as octal.
bool IsNumber(const std::string& text, bool withZeros) {
  const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
  return !text.empty() && text.size() <= 3 && std::all_of(text.begin(), text.end(), isDigit) &&
         std::stoi(text) <= 255 && (withZeros || text.size() == 1 || text.front() != '0');
}

std::vector<std::string> Parts(const std::string& text, const char* separators) {
  std::vector<std::string> parts;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
    parts.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

bool AreNumbers(const std::vector<std::string>& parts, bool withZeros) {
  return parts.size() == kNumbers &&
         std::all_of(parts.begin(), parts.end(),
                     [&](const std::string& part) { return IsNumber(part, withZeros); });
}

bool IsIpv4(const std::string& text) {
  return AreNumbers(Parts(text, "."), false);
}

/// The numbers between separators and blanks of all kinds, with full stops; letters that look like
/// digits as such.
std::string Mended(const std::string& text, bool withZeros) {
  std::string digits = text;
  for (char& c : digits) {
    if (c == 'O' || c == 'o') c = '0';
    if (c == 'l' || c == 'I') c = '1';
  }
  std::vector<std::string> parts = Parts(digits, "., \t");
  parts.erase(std::remove(parts.begin(), parts.end(), ""), parts.end());
  if (!AreNumbers(parts, withZeros)) return {};
  std::string mended;
  for (const std::string& part : parts)
    mended += (mended.empty() ? "" : ".") + std::to_string(std::stoi(part));
  return mended;
}

AddressDoubt DoubtAboutUrl(const std::string& text, std::size_t scheme) {
  const std::string rest = text.substr(scheme + 3);
  const std::string host = rest.substr(0, rest.find_first_of("/:?#@["));
  const bool isHost = !host.empty() && rest.find_first_of("@[") == std::string::npos;
  const bool isAll = rest == host || rest == host + '/';
  return {"is a URL, not an address", isHost ? host : "",
          !isHost ? Certainty::None
          : isAll ? Certainty::Certain
                  : Certainty::Likely};
}

/// Whether someone meant numbers: a name of a machine has letters, and no blanks.
bool LooksLikeIpv4(const std::string& text) {
  constexpr std::string_view kLookAlikes = "0123456789.,OoIl \t";
  constexpr std::size_t kLongest = 40;  // with room for blanks
  const bool isOfThem =
      text.size() <= kLongest && text.find_first_not_of(kLookAlikes) == std::string::npos;
  const std::size_t digits = static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; }));
  return isOfThem && digits > 0 && digits * 2 >= text.size() - digits;
}

}  // namespace

AddressDoubt DoubtAbout(const std::string& text) {
  if (text.empty() || IsIpv4(text)) return {};
  const std::size_t scheme = text.find("://");
  if (scheme != std::string::npos) return DoubtAboutUrl(text, scheme);
  const bool isMeantAsIpv4 = LooksLikeIpv4(text);
  if (const std::string mended = Mended(text, false); isMeantAsIpv4 && !mended.empty())
    return {"is no IPv4 address", mended, Certainty::Certain};
  const std::string start = text.substr(0, text.find_first_of(":/,; \t"));
  const std::string behind = text.substr(start.size());
  const bool hasPort = behind.size() > 1 && behind.front() == ':' &&
                       behind.find_first_not_of("0123456789", 1) == std::string::npos;
  const bool hasPath = text.find('/') != std::string::npos;
  if (start.size() < text.size() && !start.empty() && (IsIpv4(start) || hasPort || hasPath))
    return {"has more than an address", start, Certainty::Likely};
  if (!isMeantAsIpv4) return {};
  if (const std::string mended = Mended(text, true); !mended.empty())
    return {"has a 0 in front of a number, which some systems read as octal", mended,
            Certainty::Likely};
  return {"is no IPv4 address, which is four numbers from 0 to 255 with full stops between"};
}

}  // namespace tavrin::tool
