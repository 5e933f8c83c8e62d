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
  virtual std::optional<std::wstring> FindText(std::uint32_t id) const = 0;
  // The module handle for calls that take one (pictures); null where there is none.
  virtual void* Handle() const = 0;
};

class ResourceLibraries {
 public:
  virtual ~ResourceLibraries() = default;
  // Null when the file is absent, damaged or no library.
  virtual std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) = 0;
};

// The text of an id, empty without a library or without the string.
inline std::wstring TextOf(const ResourceLibrary* library, std::uint32_t id) {
  return library ? library->FindText(id).value_or(std::wstring()) : std::wstring();
}

// The text of an id, or a built-in one without a library or without the string.
inline std::wstring TextOf(const ResourceLibrary* library, std::uint32_t id,
                           const wchar_t* builtIn) {
  return library ? library->FindText(id).value_or(builtIn) : builtIn;
}

}  // namespace tidewell
