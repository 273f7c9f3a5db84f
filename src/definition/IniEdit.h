#pragma once

#include <optional>
#include <string>

namespace tavrin {

/// The bytes of an INI file in which key has the value in section, or without a value is not in it.
/// By the rules of the profile functions' portable writer, which writes to the first section and
/// key of the name, on every platform; but every other byte stays as it is. Characters that the
/// file's encoding lacks come out as others.
std::string EditIni(const std::string& bytes, const std::string& section, const std::string& key,
                    const std::optional<std::string>& value);

}  // namespace tavrin
