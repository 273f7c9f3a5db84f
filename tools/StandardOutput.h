#pragma once

namespace tavrin::tool {

/// Makes standard output pass bytes on unchanged, line ends included.
void MakeStandardOutputBinary();

}  // namespace tavrin::tool
