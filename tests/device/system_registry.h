// The registry as the system's own reg tool fills and shows it.
#pragma once

#include <string>

namespace tidewell::device {

inline constexpr wchar_t kProductKey[] = L"HKCU\\Software\\Velmont\\Tidewell";

// Runs `reg import` on a file of that text, which needs no head line. False when it refuses.
bool ImportRegistry(const std::string& text);

// `reg add` of one value below the product's key; `subkey` is empty or "\Calendar".
bool AddValue(const std::wstring& subkey, const std::wstring& name, const std::wstring& type,
              const std::wstring& data);

// What `reg query KEY /s` prints, one value a line ("    dNumOfDays = REG_DWORD 0x7") below its
// key's name ("[\Calendar]", "[]" for the product's key itself). Keys without values are left out.
// Empty when there is no such key.
std::string QueryProductTree();

// A file's bytes; empty for none.
std::string ReadFileBytes(const wchar_t* path);
void WriteFileBytes(const wchar_t* path, const std::string& bytes);

// Takes the product's keys away as if it had never run.
void ForgetProductKeys();

}  // namespace tidewell::device
