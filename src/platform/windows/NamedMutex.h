#pragma once

#include <string>

namespace tavrin::platform {

/// Keeps processes of one session apart: one at a time holds the mutex of a name, from construction
/// to destruction of this object, which belong on one thread.
class NamedMutex {
 public:
  /// Waits until no other process holds the mutex, for ten seconds at the most: its holder may
  /// stand still in a debugger. One that ended without releasing it leaves it free.
  ///
  /// @param name without a backslash.
  explicit NamedMutex(const std::wstring& name);
  ~NamedMutex();
  NamedMutex(const NamedMutex&) = delete;
  NamedMutex& operator=(const NamedMutex&) = delete;

  /// False when the wait was in vain or the mutex cannot be opened.
  bool IsHeld() const { return isHeld_; }

 private:
  void* handle_;
  bool isHeld_;
};

}  // namespace tavrin::platform
