#include "platform/windows/NamedMutex.h"

#include <windows.h>

namespace tavrin::platform {

namespace {

constexpr DWORD kLongestWait = 10000;  // ms

bool Acquire(HANDLE mutex) {
  if (mutex == nullptr) return false;
  const DWORD result = WaitForSingleObject(mutex, kLongestWait);
  return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

}  // namespace

// More rights than to wait would keep an ordinary process from the mutex of an elevated one.
NamedMutex::NamedMutex(const std::wstring& name)
    : handle_(CreateMutexExW(nullptr, (L"Local\\" + name).c_str(), 0, SYNCHRONIZE)),
      isHeld_(Acquire(handle_)) {
}

NamedMutex::~NamedMutex() {
  if (isHeld_) ReleaseMutex(handle_);
  if (handle_ != nullptr) CloseHandle(handle_);
}

}  // namespace tavrin::platform
