#include "ui/file_advice.h"

#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

int AdviceOn(FileStatus cause) {
  switch (cause) {
    case FileStatus::kAbsent:
      return IDS_FILE_ABSENT;
    case FileStatus::kRefused:
    case FileStatus::kInUse:  // where a file cannot be replaced the system tells the two not apart
      return IDS_FILE_PROTECTED;
    case FileStatus::kFull:
      return IDS_FILE_FULL;
    case FileStatus::kOk:
    case FileStatus::kOther:
      break;
  }
  return 0;
}

}  // namespace

std::wstring WithAdvice(const Language& language, int textId, FileStatus cause) {
  const int advice = AdviceOn(cause);
  return language.Text(textId) + (advice ? L' ' + language.Text(advice) : L"");
}

}  // namespace tidewell
