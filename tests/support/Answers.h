#pragma once

#include <string>

namespace tavrin::test {

/// Asks every query of the shared library, at every index that it names and one beyond, and writes
/// the results and answers down. Arrays that are handed out are freed.
std::string AskEverything();

}  // namespace tavrin::test
