#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tavrin::tool {

using Bytes = std::vector<unsigned char>;

/// Refuses a file that cannot hold a definition: one that is missing, empty, not a regular file or
/// longer than the cipher's 32-bit length. The file is not opened, so a pipe never blocks.
///
/// @return the file's size.
std::uint32_t CheckInput(const std::string& file);

/// Refuses an output that would take the place of the input, is read-only, or that no file can be
/// written to.
void CheckOutput(const std::string& input, const std::string& output);

/// CheckInput and CheckOutput, of which either may be standard input or output, which is not looked
/// at.
void CheckTransfer(const std::string& input, const std::string& output);

/// Reads the whole file, or refuses it as CheckInput does.
Bytes ReadFile(const std::string& file);

/// What stands for standard input and output where a file is to be named.
inline constexpr char kStandardStream[] = "-";

/// Reads standard input to its end, or refuses it when it is empty or longer than a file can be.
Bytes ReadStandardInput();

/// Reads the file, or standard input.
Bytes ReadInput(const std::string& file);

/// The input as messages name it.
std::string NameOfInput(const std::string& file);

/// Refuses inputs among which standard input, which can be read once, is named more often.
void CheckInputs(const std::vector<std::string>& files);

/// Writes the file in one step: either it holds all the bytes afterwards, or it is as it was.
/// Until then its bytes can be read by the owner alone. A file that is there keeps its permissions.
///
/// @param permissions those of a new file.
void WriteFile(const std::string& file, const Bytes& bytes, std::filesystem::perms permissions);

/// The same in place of a file that is there, and refuses one that is read-only.
void ReplaceFile(const std::string& file, const Bytes& bytes);

/// Writes the bytes unchanged to standard output; refuses what is no text where that is a terminal.
void WriteStandardOutput(const Bytes& bytes);

/// WriteFile, or standard output.
void WriteOutput(const std::string& file, const Bytes& bytes, std::filesystem::perms permissions);

/// Prints text to standard output, with the platform's line ends.
void PrintText(const std::string& text);

}  // namespace tavrin::tool
