#pragma once

namespace tavrin::test {

/// Every `new` of the process, the shared library's included: counted, and failing on demand.
class Allocations {
 public:
  enum class Failing { Once, FromThereOn };

  /// Lets the n-th request from now on fail, counted from 1.
  static void FailAt(long n, Failing failing);

  /// Lets all requests succeed again.
  ///
  /// @return how many there were since FailAt.
  static long Disarm();

  /// The number of blocks that were not freed yet.
  static long Live();
};

}  // namespace tavrin::test
