#include "ui/path_dialog_model.h"

#include <algorithm>
#include <utility>

#include "platform/name_pattern.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

// One of several patterns, parted by semicolons.
bool FitsAnyPattern(std::wstring_view name, std::wstring_view patterns) {
  for (;;) {
    const std::size_t end = std::min(patterns.find(L';'), patterns.size());
    if (FitsPattern(name, patterns.substr(0, end))) return true;
    if (end == patterns.size()) return false;
    patterns.remove_prefix(end + 1);
  }
}

}  // namespace

PathDialogTexts::PathDialogTexts(const Language& language)
    : select(language.Text(IDS_SELECT, L"Select")),
      cancel(language.Text(IDS_CANCEL, L"Cancel")),
      up(language.Text(IDS_FOLDER_UP, L"Up one level")),
      root(language.Text(IDS_FOLDER_ROOT, L"My Device")),
      empty(language.Text(IDS_FOLDER_EMPTY, L"No entries")),
      unreadable(language.Text(IDS_FOLDER_UNREADABLE, L"This folder cannot be read.")) {}

PathDialogModel::PathDialogModel(Files& files, Locale& locale, PathRequest request,
                                 std::wstring upText)
    : files_(files), locale_(locale), request_(std::move(request)), upText_(std::move(upText)) {
  Enter(request_.present);
  if (request_.pattern && EqualIgnoringCase(ParentFolder(request_.present), folder_)) {
    Suggest(NameInPath(request_.present));
  }
}

void PathDialogModel::GoUp() {
  if (!HasParent(folder_)) return;
  const std::wstring left = folder_;
  Enter(ParentFolder(left));
  if (EqualIgnoringCase(ParentFolder(left), folder_)) Suggest(NameInPath(left));
}

std::optional<std::wstring> PathDialogModel::Activate(Row row) {
  if (!row || *row >= rows_.size()) return std::nullopt;
  if (rows_[*row].IsUp()) {
    GoUp();
    return std::nullopt;
  }
  const std::wstring path = PathOf(*row);
  if (!rows_[*row].IsFolder() && FileExists(files_, path)) return path;
  // A row that has vanished leads back to the folder as it is now.
  Enter(FolderExists(files_, path) ? path : folder_);
  return std::nullopt;
}

std::optional<std::wstring> PathDialogModel::Take(Row row) {
  if (request_.pattern) return Activate(row);
  const bool isMarked = row && *row < rows_.size() && rows_[*row].IsFolder();
  const std::wstring path = isMarked ? PathOf(*row) : folder_;
  if (FolderExists(files_, path)) return path;
  Enter(folder_);
  return std::nullopt;
}

bool PathDialogModel::Opens(Row row) const {
  return row && *row < rows_.size() && (rows_[*row].IsUp() || rows_[*row].IsFolder());
}

bool PathDialogModel::Shows(const FileEntry& entry) const {
  return entry.isFolder || (request_.pattern && FitsAnyPattern(entry.name, *request_.pattern));
}

void PathDialogModel::Enter(const std::wstring& folder) {
  folder_ = NearestFolder(files_, folder);
  FolderListing listing = ListFolder(files_, locale_, JoinPath(folder_, L"*"),
                                     [&](const FileEntry& entry) { return Shows(entry); });
  rows_ = std::move(listing.entries);
  note_ = !rows_.empty()       ? FolderNote::kNone
          : listing.isReadable ? FolderNote::kEmpty
                               : FolderNote::kUnreadable;
  if (HasParent(folder_)) rows_.insert(rows_.begin(), {upText_, kUpTag});
  suggested_.reset();
}

void PathDialogModel::Suggest(std::wstring_view name) {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const ListedEntry& row) {
    return !row.IsUp() && EqualIgnoringCase(row.name, name);
  });
  if (found != rows_.end()) suggested_ = static_cast<std::size_t>(found - rows_.begin());
}

std::wstring PathDialogModel::PathOf(std::size_t row) const {
  return JoinPath(folder_, rows_[row].name);
}

}  // namespace tidewell
