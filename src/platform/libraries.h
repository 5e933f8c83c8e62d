// The door to resource libraries: load one by path, read its texts by id, free it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace tidewell {

class ResourceLibrary {
 public:
  virtual ~ResourceLibrary() = default;  // frees the library
  // Nothing when the library has no string of that id.
  virtual std::optional<std::wstring> FindText(int id) const = 0;
  // The module handle for calls that take one (pictures); null where there is none.
  virtual void* Handle() const = 0;
};

class ResourceLibraries {
 public:
  virtual ~ResourceLibraries() = default;
  // Null when the file is absent, damaged or no library.
  virtual std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) = 0;
};

}  // namespace tidewell
