#include "files/FileTransfer.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <limits>
#include <system_error>

#include "Failure.h"
#include "files/FileOwner.h"
#include "files/FilePath.h"
#include "files/StandardStreams.h"
#include "files/TemporaryFile.h"

namespace tavrin::tool {

namespace {

/// A single transfer stays below the 2 GiB that some runtimes take at once.
constexpr std::size_t kPieceSize = std::size_t{64} << 20;

using std::filesystem::perms;

std::string SystemMessage() {
  return std::generic_category().message(errno);
}

/// Refuses what exists and is not a regular file.
void CheckType(const std::string& file, std::filesystem::file_status status) {
  if (std::filesystem::is_directory(status)) throw Failure(file, "is a directory", "name a file");
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
    throw Failure(file, "is not a regular file", "name a file on a disk");
  }
}

/// The cipher counts bytes in 32 bits.
void CheckLength(const std::string& file, std::uintmax_t length) {
  if (length > std::numeric_limits<std::uint32_t>::max())
    throw Failure(file, "is larger than 4294967295 bytes", "no definition can be that long");
}

std::filesystem::file_status StatusOf(const std::string& file) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(ToPath(file), error);
  if (!std::filesystem::status_known(status)) {
    throw Failure(file, "cannot be reached: " + error.message(), "check its path and permissions");
  }
  return status;
}

/// Nobody may write it. Taking its place would need no more than leave to write its directory.
bool IsReadOnly(std::filesystem::file_status status) {
  constexpr perms kWriters = perms::owner_write | perms::group_write | perms::others_write;
  return std::filesystem::exists(status) && (status.permissions() & kWriters) == perms::none;
}

bool WriteAll(std::FILE* stream, const Bytes& bytes) {
  for (std::size_t done = 0; done < bytes.size();) {
    const std::size_t piece = std::min(kPieceSize, bytes.size() - done);
    if (std::fwrite(bytes.data() + done, 1, piece, stream) != piece) return false;
    done += piece;
  }
  return std::fflush(stream) == 0;
}

void Print(const Bytes& bytes) {
  if (!WriteAll(stdout, bytes)) {
    throw Failure("standard output", "cannot be written: " + SystemMessage(),
                  "check where it leads to");
  }
}

bool ReadAll(std::istream& stream, Bytes* bytes) {
  for (std::size_t done = 0; done < bytes->size();) {
    const std::size_t piece = std::min(kPieceSize, bytes->size() - done);
    if (!stream.read(reinterpret_cast<char*>(bytes->data() + done),
                     static_cast<std::streamsize>(piece))) {
      return false;
    }
    done += piece;
  }
  return stream.peek() == std::istream::traits_type::eof();
}

/// Enciphered bytes and UTF-16 have control characters that would drive a terminal.
bool IsText(const Bytes& bytes) {
  return std::none_of(bytes.begin(), bytes.end(), [](unsigned char byte) {
    return byte < ' ' && (byte < '\t' || byte > '\r');
  });
}

/// The members of the other group were among the others before, and get no more than these.
perms ForAnotherGroup(perms permissions) {
  const auto others = static_cast<unsigned>(permissions & perms::others_all);
  return permissions & (~perms::group_all | static_cast<perms>(others << 3));
}

/// The file that is replaced: a link stays and what it leads to gets the bytes.
std::filesystem::path FollowLink(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_symlink(file, error)) return file;
  const std::filesystem::path target = std::filesystem::canonical(file, error);
  return error ? file : target;
}

}  // namespace

std::uint32_t CheckInput(const std::string& file) {
  const std::filesystem::file_status status = StatusOf(file);
  if (!std::filesystem::exists(status)) throw Failure(file, "does not exist", "check its path");
  CheckType(file, status);
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(ToPath(file), error);
  if (error) throw Failure(file, "has no size: " + error.message(), "check its permissions");
  if (size == 0) throw Failure(file, "is empty", "name a file with content");
  CheckLength(file, size);
  return static_cast<std::uint32_t>(size);
}

void CheckOutput(const std::string& input, const std::string& output) {
  const std::filesystem::file_status status = StatusOf(output);
  CheckType(output, status);
  if (IsReadOnly(status)) {
    throw Failure(output, "is read-only", "make it writable or name another output file");
  }
  const std::filesystem::path path = ToPath(output);
  if (!path.has_filename()) throw Failure(output, "names no file", "add a file name");
  std::error_code error;
  if (std::filesystem::is_symlink(path, error) && !std::filesystem::exists(path, error)) {
    throw Failure(output, "is a link that leads nowhere", "remove it or name another output file");
  }
  if (input != kStandardStream && std::filesystem::equivalent(ToPath(input), path, error)) {
    throw Failure(output, "is the input file itself", "name another output file");
  }
  const std::filesystem::path directory = path.has_parent_path() ? path.parent_path() : ".";
  if (!std::filesystem::is_directory(directory, error)) {
    throw Failure(output, "lies in no existing directory", "create the directory first");
  }
}

void CheckTransfer(const std::string& input, const std::string& output) {
  if (input != kStandardStream) CheckInput(input);
  if (output != kStandardStream) CheckOutput(input, output);
}

Bytes ReadFile(const std::string& file) {
  Bytes bytes(CheckInput(file));
  std::ifstream stream(ToPath(file), std::ios::binary);
  if (!stream) throw Failure(file, "cannot be read: " + SystemMessage(), "check its permissions");
  if (!ReadAll(stream, &bytes)) {
    throw Failure(file, "could not be read whole", "make sure that nothing else changes it");
  }
  return bytes;
}

void WriteFile(const std::string& file, const Bytes& bytes, perms permissions) {
  constexpr perms kOfPeople = perms::owner_all | perms::group_all | perms::others_all;
  std::error_code error;
  const std::filesystem::path target = FollowLink(ToPath(file));
  const std::filesystem::file_status replaced = std::filesystem::status(target, error);
  if (std::filesystem::exists(replaced)) permissions = replaced.permissions() & kOfPeople;
  TemporaryFile temporary(target);
  if (temporary.Stream() == nullptr || !WriteAll(temporary.Stream(), bytes) || !temporary.Close()) {
    throw Failure(file, "cannot be written: " + SystemMessage(),
                  "check the directory's permissions and free space");
  }
  if (std::filesystem::exists(replaced) && !TakeOwner(target, temporary.Path()))
    permissions = ForAnotherGroup(permissions);
  if (!temporary.Rename(permissions, &error)) {
    throw Failure(file, "cannot be replaced: " + error.message(),
                  "check its name and permissions, and that no program has it open");
  }
}

void ReplaceFile(const std::string& file, const Bytes& bytes) {
  const std::filesystem::file_status status = StatusOf(file);
  if (IsReadOnly(status)) throw Failure(file, "is read-only", "make it writable");
  WriteFile(file, bytes, status.permissions());
}

Bytes ReadStandardInput() {
  MakeStandardInputBinary();
  Bytes bytes;
  unsigned char piece[4096];
  std::size_t n = 0;
  while ((n = std::fread(piece, 1, sizeof piece, stdin)) > 0) {
    bytes.insert(bytes.end(), piece, piece + n);
    CheckLength("standard input", bytes.size());
  }
  if (std::ferror(stdin) != 0) {
    throw Failure("standard input", "cannot be read: " + SystemMessage(),
                  "check where it comes from");
  }
  if (bytes.empty()) throw Failure("standard input", "is empty", "pass a definition");
  return bytes;
}

Bytes ReadInput(const std::string& file) {
  return file == kStandardStream ? ReadStandardInput() : ReadFile(file);
}

std::string NameOfInput(const std::string& file) {
  return file == kStandardStream ? "standard input" : file;
}

void CheckInputs(const std::vector<std::string>& files) {
  if (std::count(files.begin(), files.end(), kStandardStream) <= 1) return;
  throw Failure("standard input", "is named more than once and can be read once",
                "save it to a file first", ExitStatus::Usage);
}

void WriteStandardOutput(const Bytes& bytes) {
  if (IsTerminal() && !IsText(bytes)) {
    throw Failure("standard output", "is a terminal and would get bytes that are no text",
                  "name an output file, or lead it into one with >", ExitStatus::Usage);
  }
  MakeStandardOutputBinary();
  Print(bytes);
}

void WriteOutput(const std::string& file, const Bytes& bytes, perms permissions) {
  if (file == kStandardStream) {
    WriteStandardOutput(bytes);
  } else {
    WriteFile(file, bytes, permissions);
  }
}

void PrintText(const std::string& text) {
  Print(Bytes(text.begin(), text.end()));
}

}  // namespace tavrin::tool
