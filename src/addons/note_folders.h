// The folders that are searched for notes, in the order of the user's list: one string each in a
// key of their own, named "0", "1", "2" ...
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/machine.h"

namespace tidewell {

class NoteFolders {
 public:
  // Reads the list; what names nothing that is there is left out, and so is what is there twice.
  explicit NoteFolders(const Machine& machine);

  const std::vector<std::wstring>& Paths() const { return paths_; }
  // Behind the others, less a backslash at its end. False when it is in the list already; what
  // names nothing that is there is passed over.
  bool Add(std::wstring path);
  void Remove(std::size_t position);
  // Makes the key hold the list and nothing else. When that is cut short, every folder that was to
  // stay is there. Nothing when the key could not be read to its end. Failures are silent.
  void Save() const;

 private:
  struct StoredPath {
    std::wstring name;
    std::wstring path;
  };

  void ReadKey();
  bool SaveEndangered(RegistryKey& key) const;

  const Machine& machine_;
  std::vector<StoredPath> stored_;  // as the key had it
  std::vector<std::wstring> paths_;
  bool isNew_ = false;  // there was no key, or it was refused
  bool isWhole_ = true;
};

}  // namespace tidewell
