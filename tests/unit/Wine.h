#pragma once

namespace tavrin::test {

/// Whether Windows is played by Wine.
bool RunsUnderWine();

}  // namespace tavrin::test
