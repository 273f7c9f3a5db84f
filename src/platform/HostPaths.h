#pragma once

#include <string>

namespace tavrin::platform {

/// The full path of the host process's executable (not of this library); empty when the platform
/// does not tell.
std::string GetModulePath();

/// The user's temporary directory, ending in a separator.
std::string GetTempDirectory();

}  // namespace tavrin::platform
