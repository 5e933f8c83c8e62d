// What every registry and every file system must do, whoever answers. Each program of tests gives
// its own answers: the fakes in memory, or the system's.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/registry.h"

namespace tidewell {

// Files with an empty folder for one test, removed at the end, and the steps of others.
class FilesUnderTest {
 public:
  virtual ~FilesUnderTest() = default;
  virtual Files& Door() = 0;
  virtual std::wstring Folder() const = 0;
  // Another program holds the file and shares it with nobody, until the result is gone.
  virtual std::shared_ptr<void> Lock(const std::wstring& path) = 0;
  virtual void MakeReadOnly(const std::wstring& path) = 0;
  // A file that can be opened for writing and takes no byte.
  virtual std::wstring FileOnFullDisk() = 0;
};

template <typename UnderTest>
using Answers = std::vector<std::function<std::shared_ptr<UnderTest>()>>;

Answers<Registry> RegistryAnswers();
Answers<FilesUnderTest> FilesAnswers();

}  // namespace tidewell
