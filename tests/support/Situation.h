#pragma once

#include <csignal>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace tavrin::test {

/// A state of the process or its system that ends with the object.
using Situation = std::shared_ptr<void>;

inline Situation Until(std::function<void()> undo) {
  return {nullptr, [undo = std::move(undo)](void*) { undo(); }};
}

/// The environment has a variable of this name and value, or none for null.
inline Situation Variable(const char* name, const char* value) {
  const auto set = [name](const char* text) {
    text != nullptr ? setenv(name, text, 1) : unsetenv(name);
  };
  std::optional<std::string> previous;
  if (const char* text = std::getenv(name)) previous = text;
  set(value);
  return Until([=] { set(previous ? previous->c_str() : nullptr); });
}

inline Situation Limit(decltype(RLIMIT_FSIZE) resource, rlim_t value) {
  rlimit previous{};
  EXPECT_EQ(getrlimit(resource, &previous), 0);
  const rlimit lowered{value, previous.rlim_max};
  EXPECT_EQ(setrlimit(resource, &lowered), 0);
  return Until([=] { setrlimit(resource, &previous); });
}

/// No file grows beyond size, as where the file system is full.
inline Situation FilesEndAt(rlim_t size) {
  std::signal(SIGXFSZ, SIG_IGN);
  return Limit(RLIMIT_FSIZE, size);
}

}  // namespace tavrin::test
