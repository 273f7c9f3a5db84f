#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

namespace tavrin::test {

/// REQUIRES: text is UTF-8.
inline std::wstring WideFromUtf8(const std::string& text) {
  std::wstring wide;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i++]);
    const int trailing = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    std::uint32_t c = trailing == 0 ? lead : lead & (0x3Fu >> trailing);
    for (int n = 0; n < trailing; ++n)
      c = c << 6 | (static_cast<unsigned char>(text.at(i++)) & 0x3Fu);
    if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
      wide += static_cast<wchar_t>(0xD7C0 + (c >> 10));
      c = 0xDC00 | (c & 0x3FF);
    }
    wide += static_cast<wchar_t>(c);
  }
  return wide;
}

/// REQUIRES: text holds no lone surrogate.
inline std::string Utf8FromWide(const std::wstring& text) {
  std::string utf8;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto c = static_cast<std::uint32_t>(text[i]);
    if (sizeof(wchar_t) == 2 && c >> 10 == 0x36)
      c = 0x10000 + ((c & 0x3FF) << 10) + (static_cast<std::uint32_t>(text.at(++i)) & 0x3FF);
    const int trailing = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    const std::uint32_t marks = trailing == 0 ? 0 : 0xF00u >> (trailing + 1) & 0xFFu;
    utf8 += static_cast<char>(marks | c >> 6 * trailing);
    for (int n = trailing; n-- > 0;)
      utf8 += static_cast<char>(0x80 | (c >> 6 * n & 0x3F));
  }
  return utf8;
}

/// The bytes that a cell of a table spells: \r \n \t \v \\ \0 and \xNN, all else being itself.
inline std::string Unescape(const std::string& cell) {
  const std::string letters = "rntv\\0";
  const std::string meanings("\r\n\t\v\\\0", 6);
  std::string bytes;
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] != '\\') {
      bytes += cell[i];
    } else if (cell.at(++i) == 'x') {
      bytes += static_cast<char>(std::stoi(cell.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      bytes += meanings.at(letters.find(cell[i]));
    }
  }
  return bytes;
}

/// Spells bytes as a cell of printable ASCII.
inline std::string Escape(const std::string& bytes) {
  const std::string letters = "rntv\\0";
  const std::string meanings("\r\n\t\v\\\0", 6);
  std::string cell;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const bool isOuterBlank = byte == ' ' && (i == 0 || i + 1 == bytes.size());
    const std::size_t meaning = meanings.find(bytes[i]);
    if (meaning != std::string::npos) {
      cell += {'\\', letters[meaning]};
    } else if (byte < ' ' || byte > '~' || isOuterBlank) {
      const char* digits = "0123456789ABCDEF";
      cell += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
    } else {
      cell += bytes[i];
    }
  }
  return cell;
}

/// The cells of the rows of a tab-separated text, without rows that start with '#'.
inline std::vector<std::vector<std::string>> Rows(const std::string& text) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream cells(line);
    rows.emplace_back();
    for (std::string cell; std::getline(cells, cell, '\t');)
      rows.back().push_back(cell);
  }
  return rows;
}

}  // namespace tavrin::test
