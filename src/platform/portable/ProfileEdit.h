#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/portable/ProfileText.h"

namespace tavrin::platform {

/// The line of a key, or the empty place where that line is to go.
template <typename Unit>
struct Place {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t length = 0;  ///< of the line without its end
  bool hasSection = false;
  bool hasKey = false;
  bool hasValue = false;                  ///< false for a line without '='
  std::basic_string_view<Unit> key = {};  ///< as the file spells it
  std::wstring value = {};                ///< with its quotes
};

/// A new key goes behind the last one of its section, or else behind the section's comments.
///
/// @param previous a line of the key that was found before, for the next one.
template <typename Encoding, typename Unit = typename Encoding::Unit>
Place<Unit> FindPlace(std::basic_string_view<Unit> text, std::wstring_view section,
                      std::wstring_view key, Encoding* encoding,
                      const Place<Unit>& previous = {0, Encoding::kMarkLength}) {
  Place<Unit> place{text.size(), text.size(), 0, previous.hasSection};
  bool hasKeys = false;
  std::wstring wide;
  std::basic_string_view<Unit> rest = text.substr(previous.end);
  while (!rest.empty()) {
    const std::size_t begin = text.size() - rest.size();
    const std::basic_string_view<Unit> units = TakeLine(&rest);
    const std::size_t end = text.size() - rest.size();
    wide.clear();
    encoding->AppendWide(units, &wide);
    const ProfileLine<wchar_t> line = ParseLine<wchar_t>(wide);
    if (line.IsHeader()) {
      if (place.hasSection) break;
      if (SameName(line.name, section)) place = {end, end, 0, true};
    } else if (place.hasSection && line.IsKey() && SameName(line.name, key)) {
      const bool hasValue = line.kind == ProfileLine<wchar_t>::Kind::Key;
      const auto name = Spelled(units.substr(0, units.find('=')));
      return {begin, end, units.size(), true, true, hasValue, name, std::wstring(line.value)};
    } else if (place.hasSection && (line.IsKey() || (line.IsComment() && !hasKeys))) {
      hasKeys = line.IsKey();
      place.begin = place.end = end;
    }
  }
  return place;
}

/// The line end that goes with a line before the place: that of the line above it, or else of the
/// first line.
template <typename Unit>
std::basic_string<Unit> LineEndFor(std::basic_string_view<Unit> text, std::size_t place) {
  const auto endAt = [text](std::size_t last) {
    const bool isCrLf = last > 0 && text[last] == '\n' && text[last - 1] == '\r';
    return std::basic_string<Unit>(text.substr(isCrLf ? last - 1 : last, isCrLf ? 2 : 1));
  };
  if (place > 0 && IsLineEnd(text[place - 1])) return endAt(place - 1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsLineEnd(text[i])) continue;
    const bool isCrLf = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    return endAt(isCrLf ? i + 1 : i);
  }
  return {Unit{'\r'}, Unit{'\n'}};
}

/// Puts value where the line, without its end, has its own. Blanks round it stay.
template <typename Unit>
std::basic_string<Unit> WithValue(std::basic_string_view<Unit> line,
                                  std::basic_string_view<Unit> value) {
  const std::size_t equals = line.find('=');
  if (equals == line.npos) return std::basic_string<Unit>(line).append(1, Unit{'='}).append(value);
  const std::basic_string_view<Unit> old = line.substr(equals + 1);
  const std::basic_string_view<Unit> written = Trim(old);
  // All of a value that is blank is after the new one.
  const std::size_t begin =
      equals + 1 + (written.empty() ? 0 : static_cast<std::size_t>(written.data() - old.data()));
  std::basic_string<Unit> changed(line);
  return changed.replace(begin, written.size(), value);
}

/// The bytes of a profile after key is set to value, or all its lines in the section are removed if
/// value is null. The line and the place of a new one are those that the profile writer finds;
/// every other byte stays, also of that line.
template <typename Encoding>
std::string EditInPlace(const std::string& bytes, std::wstring_view section, std::wstring_view key,
                        const wchar_t* value) {
  using Unit = typename Encoding::Unit;
  using View = std::basic_string_view<Unit>;
  Encoding encoding;
  std::basic_string<Unit> text = Encoding::FromBytes(bytes);
  Place<Unit> place = FindPlace(View(text), section, key, &encoding);
  if (value == nullptr) {
    std::basic_string<Unit> kept;
    std::size_t end = 0;
    for (; place.hasKey; place = FindPlace(View(text), section, key, &encoding, place)) {
      kept.append(text, end, place.begin - end);
      end = place.end;
    }
    text = kept.append(text, end);
  } else if (place.hasKey) {
    std::basic_string<Unit> units;
    encoding.AppendUnits(value, &units);
    text.replace(place.begin, place.length,
                 WithValue(View(text).substr(place.begin, place.length), View(units)));
  } else {
    const std::basic_string<Unit> lineEnd = LineEndFor(View(text), place.begin);
    std::basic_string<Unit> lines;
    const bool isEnded = place.begin <= Encoding::kMarkLength || IsLineEnd(text[place.begin - 1]);
    if (!isEnded) lines = lineEnd;
    if (!place.hasSection) {
      encoding.AppendUnits(std::wstring(L"[").append(section).append(L"]"), &lines);
      lines += lineEnd;
    }
    encoding.AppendUnits(std::wstring(key).append(L"=").append(value), &lines);
    text.insert(place.begin, lines += lineEnd);
  }
  const std::size_t incomplete = bytes.size() % sizeof(Unit);
  return Encoding::ToBytes(text).append(bytes, bytes.size() - incomplete, incomplete);
}

/// EditInPlace for the encoding that the bytes have; UTF-8's mark stays before the text.
template <typename Narrow>
std::string EditInAnyEncoding(const std::string& bytes, std::wstring_view section,
                              std::wstring_view key, const wchar_t* value) {
  if (Utf16Encoding::HasMark(bytes)) return EditInPlace<Utf16Encoding>(bytes, section, key, value);
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  const bool hasMark = bytes.compare(0, kMark.size(), kMark) == 0;
  const std::size_t markLength = hasMark ? kMark.size() : 0;
  return bytes.substr(0, markLength) +
         EditInPlace<Narrow>(bytes.substr(markLength), section, key, value);
}

}  // namespace tavrin::platform
