// Choosing a folder or a file: where the dialog is, what it shows, where each step leads. Knows no
// windows.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/language.h"
#include "ui/folder_listing.h"

namespace tidewell {

struct PathRequest {
  std::wstring title;
  std::wstring present;  // the value until now: the dialog starts there if it exists
  // The files to show ("*.bmp;*.png"). Nothing: a folder is chosen and no file is shown.
  std::optional<std::wstring> pattern;
};

struct PathDialogTexts {
  explicit PathDialogTexts(const Language& language);

  std::wstring select, cancel;
  std::wstring up;
  std::wstring root;  // the name shown for "\"
  std::wstring empty, unreadable;
};

enum class FolderNote { kNone, kEmpty, kUnreadable };

class PathDialogModel {
 public:
  using Row = std::optional<std::size_t>;

  // Begins at the request's present value, or at the nearest folder above it that exists.
  // `upText` names the first row, which leads to the folder above; the root has none.
  PathDialogModel(Files& files, Locale& locale, PathRequest request, std::wstring upText);

  const PathRequest& Request() const { return request_; }
  const std::wstring& Folder() const { return folder_; }
  const std::vector<ListedEntry>& Rows() const { return rows_; }
  FolderNote Note() const { return note_; }
  // The row to mark after a step: the present file, or the folder that was left upwards.
  Row Suggested() const { return suggested_; }

  // Each step may end in another folder than was asked for, when folders have vanished meanwhile.
  void GoUp();
  // Return or a tap on a row: opens a folder, or gives the path of a file.
  std::optional<std::wstring> Activate(Row row);
  // The soft key. For a folder: the marked one, or the one shown when none is marked.
  std::optional<std::wstring> Take(Row row);
  bool Opens(Row row) const;  // whether activating the row leads to another folder
  bool CanTake(Row row) const { return !request_.pattern || row; }

 private:
  bool Shows(const FileEntry& entry) const;
  void Enter(const std::wstring& folder);
  void Suggest(std::wstring_view name);
  std::wstring PathOf(std::size_t row) const;

  Files& files_;
  Locale& locale_;
  PathRequest request_;
  std::wstring upText_;
  std::wstring folder_;
  std::vector<ListedEntry> rows_;
  FolderNote note_ = FolderNote::kNone;
  Row suggested_;
};

}  // namespace tidewell
