#pragma once

#include <filesystem>

namespace tavrin::tool {

/// Gives a file that takes another's place the owner and the group of that one, or the group alone
/// where only an administrator may give a file away.
///
/// @return false when the group is not the same.
bool TakeOwner(const std::filesystem::path& replaced, const std::filesystem::path& file);

}  // namespace tavrin::tool
