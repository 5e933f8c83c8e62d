// What every file system must do, whoever answers: one suite, run on the twin and on the system's.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "platform/files.h"

namespace tidewell {

// Files with an empty folder for one test, removed at the end, and the deeds of others.
class FilesUnderTest {
 public:
  virtual ~FilesUnderTest() = default;
  virtual Files& Door() = 0;
  virtual std::wstring Folder() const = 0;
  // Another program holds the file and shares it with nobody, until the result is gone.
  virtual std::shared_ptr<void> Lock(const std::wstring& path) = 0;
  virtual void MakeReadOnly(const std::wstring& path) = 0;
};

struct FilesAnswer {
  const char* name;
  std::function<std::unique_ptr<FilesUnderTest>()> make;
};

inline void PrintTo(const FilesAnswer& answer, std::ostream* out) {
  *out << answer.name;
}

inline std::string NameOfFilesAnswer(const testing::TestParamInfo<FilesAnswer>& info) {
  return info.param.name;
}

class FilesContract : public testing::TestWithParam<FilesAnswer> {
 protected:
  void SetUp() override { underTest_ = GetParam().make(); }

  Files& Door() { return underTest_->Door(); }
  std::wstring In(const std::wstring& name) const { return underTest_->Folder() + L'\\' + name; }
  bool WriteFileOf(const std::wstring& name, const std::string& text);
  // The file's contents, "absent" for one that cannot be opened.
  std::string TextIn(const std::wstring& name);
  // The names that fit a pattern, sorted, folders with a backslash behind.
  std::string NamesOf(const std::wstring& pattern);

  std::unique_ptr<FilesUnderTest> underTest_;
};

}  // namespace tidewell
