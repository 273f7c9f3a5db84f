#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "check/LineIndex.h"
#include "check/WatchedIni.h"
#include "definition/PrinterConfig.h"
#include "files/FileTransfer.h"
#include "keys/KnownKeys.h"

namespace tavrin::tool {

/// What the library makes of one plain definition, watched while it reads.
struct Reading {
  explicit Reading(const Bytes& plainDefinition);

  /// The read of a key; null when it was not asked for.
  const WatchedRead* Find(const std::string& key) const;
  /// The same, but null also when no number came out.
  const WatchedRead* FindNumber(const std::string& key) const;
  /// The key that a name spells; null when the reading code knows no such key.
  const KnownKey* KnownKeyOf(const std::string& name, std::int32_t* number) const;
  /// The line that the read of the key came from; without one, that of the key that governs it, or
  /// else the start of the section.
  std::size_t LineOf(const std::string& key) const;
  /// Whether the library sees the line's key in the section. A name beyond ASCII is taken on trust.
  bool Lists(const KeyLine& line) const;
  /// Whether what was read bears out what the index says of the line.
  bool Confirms(const KeyLine& line) const;

  Bytes plain;
  LineIndex lines;
  std::vector<KnownKey> knownKeys;
  std::unique_ptr<PrinterConfig> config = std::make_unique<PrinterConfig>();
  bool loads = false;
  std::vector<WatchedRead> reads;            ///< each key once, in the order asked for
  std::map<std::string, std::size_t> byKey;  ///< by folded name, into reads
  std::set<std::pair<std::string, std::int32_t>> numbersAskedFor;  ///< with their governor
  std::set<std::string> listedKeys;  ///< those of the section as the library sees it, folded
  std::vector<std::int32_t> modes;   ///< as "Mode" lists them
  std::vector<std::int32_t> limitationModes;  ///< none while there are no modes
};

}  // namespace tavrin::tool
