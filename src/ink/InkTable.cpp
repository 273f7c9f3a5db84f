#include "ink/InkTable.h"

namespace tavrin {

void InkTable::Add(std::int32_t code, const std::string& name) {
  IdentifiableData& entry = entries_.emplace_back();
  entry.code = code;
  entry.name = name;
  byCode_.emplace(code, &entry);  // keeps an earlier entry of the same code
}

void InkTable::Clear() {
  byCode_.clear();
  entries_.clear();
}

const IdentifiableData* InkTable::Find(std::int32_t code) const {
  const auto found = byCode_.find(code);
  return found == byCode_.end() ? nullptr : found->second;
}

}  // namespace tavrin
