// Counts calls by kind and decides which of them fail; shared by the recorded registry and files.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace tidewell {

// `Kind` is an enumeration from 0 whose last member, kCount, is their number.
template <typename Kind>
class CallRecorder {
 public:
  // A call that touched something by name, in the order of the calls.
  struct Entry {
    Kind kind;
    std::wstring path;
    bool succeeded = false;
  };

  int Count(Kind kind) const { return counts_[Index(kind)]; }
  // All calls that can fail; FailNth of 1 to this number fails each of them in turn.
  int FailableCount() const { return failable_; }
  const std::vector<Entry>& Log() const { return log_; }
  // The paths of all logged calls of one kind, in order.
  std::vector<std::wstring> Paths(Kind kind) const {
    std::vector<std::wstring> paths;
    for (const Entry& entry : log_) {
      if (entry.kind == kind) paths.push_back(entry.path);
    }
    return paths;
  }

  // The n-th call that can fail, counted from 1 and from the last Reset, fails; with `FailFrom`
  // every later one as well.
  void FailNth(int n) { firstFailure_ = lastFailure_ = n; }
  void FailFrom(int n) {
    firstFailure_ = n;
    lastFailure_ = std::numeric_limits<int>::max();
  }
  void FailEvery(Kind kind) { fails_[Index(kind)] = true; }
  // `watcher` runs inside every call that can fail, before it does anything.
  void Watch(std::function<void(Kind)> watcher) { watcher_ = std::move(watcher); }
  // Forgets counts, log, failures and the watcher.
  void Reset() { *this = CallRecorder(); }

  // For the recorded objects. A call that can fail asks whether it is to.
  bool Note(Kind kind) {
    ++counts_[Index(kind)];
    ++failable_;
    if (watcher_) watcher_(kind);
    return fails_[Index(kind)] || (failable_ >= firstFailure_ && failable_ <= lastFailure_);
  }
  void NoteUnfailing(Kind kind) { ++counts_[Index(kind)]; }
  void Write(Kind kind, std::wstring path, bool succeeded) {
    log_.push_back({kind, std::move(path), succeeded});
  }

 private:
  static constexpr std::size_t kKinds = static_cast<std::size_t>(Kind::kCount);
  static constexpr std::size_t Index(Kind kind) { return static_cast<std::size_t>(kind); }

  std::array<int, kKinds> counts_{};
  std::array<bool, kKinds> fails_{};
  int failable_ = 0;
  int firstFailure_ = std::numeric_limits<int>::max();
  int lastFailure_ = 0;
  std::function<void(Kind)> watcher_;
  std::vector<Entry> log_;
};

}  // namespace tidewell
