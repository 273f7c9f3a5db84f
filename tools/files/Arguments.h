#pragma once

namespace tavrin::tool {

/// False when the command line has a character that the process's code page lacks, so that what the
/// program got of it is another one.
bool HasWholeArguments();

}  // namespace tavrin::tool
