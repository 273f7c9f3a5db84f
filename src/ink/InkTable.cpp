#include "ink/InkTable.h"

#include <utility>

namespace tavrin {

void InkTable::Add(std::int32_t code, std::string name) {
  auto entry = std::make_unique<IdentifiableData>();
  entry->code = code;
  entry->name = std::move(name);
  entries_.push_back(std::move(entry));
  byCode_.emplace(code, entries_.back().get());  // keeps an earlier entry of the same code
}

void InkTable::Clear() {
  byCode_.clear();
  nodes_.release();
  entries_.clear();
}

const IdentifiableData* InkTable::Find(std::int32_t code) const {
  const auto found = byCode_.find(code);
  return found == byCode_.end() ? nullptr : found->second;
}

}  // namespace tavrin
