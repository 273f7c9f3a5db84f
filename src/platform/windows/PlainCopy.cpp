#include "platform/PlainCopy.h"

#include <cstdint>
#include <cstdio>
#include <new>

#include <windows.h>

#include "platform/Files.h"
#include "platform/TextEncoding.h"
#include "platform/windows/PlainCopyState.h"

namespace tavrin::platform {

namespace {

std::wstring Widened(const std::string& path) {
  std::wstring wide;
  if (!ToWide(path, &wide)) throw std::bad_alloc();
  return wide;
}

/// The file system's names have no case.
std::wstring InUpperCase(const std::wstring& text) {
  std::wstring upper(text.size(), L'\0');
  const auto length = static_cast<int>(text.size());
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, text.c_str(), length, upper.data(), length,
                nullptr, nullptr, 0);
  return upper;
}

/// A name of limited length without a backslash, which a mutex must have; paths of equal names just
/// wait for each other.
std::wstring MutexNameOf(const std::wstring& path) {
  std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a
  for (const wchar_t c : InUpperCase(path))
    hash = (hash ^ c) * 0x100000001B3;
  return L"TavrinLib-" + std::to_wstring(hash);
}

/// Removes the file at path, a read-only one too. What it links to, or is another name of, stays.
bool RemoveFile(const wchar_t* path) {
  if (DeleteFileW(path)) return true;
  const DWORD attributes = GetFileAttributesW(path);
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0)
    return false;
  SetFileAttributesW(path, attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
  return DeleteFileW(path);
}

bool WriteFileAt(const std::string& path, const unsigned char* block, std::uint32_t n) {
  std::FILE* file = CreateOwnerOnlyFile(path);
  if (file == nullptr) return false;
  const bool wroteAll = std::fwrite(block, 1, n, file) == n;
  return std::fclose(file) == 0 && wroteAll;
}

}  // namespace

PlainCopy::State::State(const std::string& copyPath)
    : path(Widened(copyPath)), mutex(MutexNameOf(path)) {
}

PlainCopy::PlainCopy(const std::string& path) : path_(path), state_(std::make_unique<State>(path)) {
}

PlainCopy::~PlainCopy() {
  if (!state_->mutex.IsHeld()) return;
  if (!RemoveFile(state_->path.c_str())) RemoveDirectoryW(state_->path.c_str());
}

bool PlainCopy::Write(const unsigned char* block, std::uint32_t n) {
  if (!state_->mutex.IsHeld()) return false;
  RemoveFile(state_->path.c_str());
  wroteAll_ = WriteFileAt(path_, block, n);
  return FileExists(state_->path);
}

}  // namespace tavrin::platform
