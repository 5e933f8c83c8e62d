// Writes a document to a file.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace tidewell {

// False when the file could not be written whole.
inline bool WriteDocument(const char* path, const std::string& bytes) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "wb"), &std::fclose);
  return file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
}

}  // namespace tidewell
