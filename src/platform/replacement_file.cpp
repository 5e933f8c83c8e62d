#include "platform/replacement_file.h"

#include <string_view>
#include <utility>
#include <vector>

namespace tidewell {

namespace {

// A digit stands between the two. No user gives such a name; where one is taken all the same, the
// next digit is tried.
constexpr std::wstring_view kUnfinished = L"~TidewellSettings";
constexpr std::wstring_view kUnfinishedEnd = L".tmp";

std::wstring UnfinishedName(wchar_t digit) {
  std::wstring name(kUnfinished);
  name += digit;
  name += kUnfinishedEnd;
  return name;
}

bool IsUnfinished(const FileEntry& entry) {
  if (entry.isFolder || entry.name.size() <= kUnfinished.size()) return false;
  const wchar_t digit = entry.name[kUnfinished.size()];
  return digit >= L'1' && digit <= L'9' && entry.name == UnfinishedName(digit);
}

void RemoveUnfinished(Files& files, const std::wstring& folder) {
  std::vector<std::wstring> names;
  files.List(folder + UnfinishedName(L'?'), [&](const FileEntry& entry) {
    if (IsUnfinished(entry)) names.push_back(entry.name);
    return true;
  });
  for (const std::wstring& name : names) files.Remove(folder + name);
}

}  // namespace

std::wstring FolderOf(const std::wstring& path) {
  return path.substr(0, path.rfind(L'\\') + 1);
}

ReplacementFile::ReplacementFile(Files& files, std::wstring path)
    : files_(files), path_(std::move(path)) {
  RemoveUnfinished(files_, FolderOf(path_));
  CreateBeside();
}

ReplacementFile::~ReplacementFile() {
  if (!file_.stream) return;
  file_.stream.reset();
  files_.Remove(beside_);
}

void ReplacementFile::CreateBeside() {
  for (wchar_t digit = L'1'; digit <= L'9' && !file_.stream; ++digit) {
    beside_ = FolderOf(path_) + UnfinishedName(digit);
    file_ = files_.CreateNew(beside_);
  }
}

FileStatus ReplacementFile::Commit() {
  return CommitBy(&Files::Replace);
}

FileStatus ReplacementFile::CommitAsNew() {
  return CommitBy(&Files::Move);
}

FileStatus ReplacementFile::CommitBy(PutInPlace putInPlace) {
  if (!file_.stream) return file_.status;
  FileStatus status = file_.stream->Close();
  if (status == FileStatus::kOk) status = (files_.*putInPlace)(beside_, path_);
  if (status == FileStatus::kOk) file_.stream.reset();
  return status;
}

}  // namespace tidewell
