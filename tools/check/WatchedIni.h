#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "definition/IniSnapshot.h"

namespace tavrin::tool {

/// One thing that the reading code asked a definition for, and what it got.
struct WatchedRead {
  enum class Kind { Text, Integer, Number };

  std::string key;
  Kind kind = Kind::Text;
  bool found = false;      ///< the key is there and its value is not empty
  bool converted = false;  ///< a number came out; never for a text
  std::wstring text = {};  ///< the value as read
  double number = 0.0;     ///< what it converted to
};

/// Reads a definition as the library does and keeps a record of every read.
class WatchedIni : public IniSnapshot {
 public:
  using IniSnapshot::IniSnapshot;

  using IniSnapshot::ReadDouble;
  using IniSnapshot::ReadInt;
  using IniSnapshot::ReadString;
  bool ReadInt(const wchar_t* section, const wchar_t* key, std::int32_t* value) override;
  bool ReadDouble(const wchar_t* section, const wchar_t* key, double* value) override;
  bool ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) override;

  /// In the order of the reads; a key that was asked for again is there again.
  const std::vector<WatchedRead>& Reads() const { return reads_; }

 private:
  std::vector<WatchedRead> reads_;
};

}  // namespace tavrin::tool
