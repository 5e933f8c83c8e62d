// The program's texts in the language that the user chose. One object for as long as the program
// runs: whoever asks it has the library that is loaded now, and never one that was let go of.
#pragma once

#include <memory>
#include <string>

#include "platform/libraries.h"

namespace tidewell {

class Language {
 public:
  // Lets go of the library that was loaded, and loads `path`, or `otherwise` when that fails. False
  // when neither loads; every text is empty then.
  bool Load(ResourceLibraries& libraries, const std::wstring& path, const std::wstring& otherwise) {
    library_.reset();
    library_ = libraries.Load(path);
    if (!library_) library_ = libraries.Load(otherwise);
    return library_ != nullptr;
  }
  void Unload() { library_.reset(); }

  // Empty without a library or without such a text; 0 stands for no text at all.
  std::wstring Text(int id) const { return Text(id, L""); }
  // The same with a text for that case.
  std::wstring Text(int id, const wchar_t* builtIn) const {
    if (!library_ || id == 0) return builtIn;
    return library_->FindText(id).value_or(builtIn);
  }

 private:
  std::unique_ptr<ResourceLibrary> library_;
};

}  // namespace tidewell
