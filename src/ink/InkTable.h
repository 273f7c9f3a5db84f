#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <memory_resource>
#include <string>
#include <vector>

#include "ink/IdentifiableData.h"

namespace tavrin {

/// The colours or the ink types that a printer knows, in the order of the definition file.
class InkTable {
 public:
  void Add(std::int32_t code, std::string name);
  void Clear();

  /// The first entry with this code; null when there is none. It lives as long as the table is not
  /// cleared.
  const IdentifiableData* Find(std::int32_t code) const;

  std::size_t size() const { return entries_.size(); }
  const IdentifiableData& operator[](std::size_t index) const { return *entries_[index]; }

 private:
  std::vector<std::unique_ptr<IdentifiableData>> entries_;
  std::pmr::monotonic_buffer_resource nodes_;  ///< a few blocks of memory for all of the map
  std::pmr::map<std::int32_t, const IdentifiableData*> byCode_{&nodes_};
};

}  // namespace tavrin
