// Naming a file in one folder, to save or to load it: what the dialog lists, which names it
// accepts and the path that comes out. Knows no windows.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/language.h"
#include "platform/scale.h"
#include "ui/folder_listing.h"

namespace tidewell {

// Filled by the caller, completed by the dialog.
struct FileNameRequest {
  std::wstring title;
  std::wstring folder;
  std::wstring extension;  // without its dot; may be empty
  std::wstring typeLabel;  // shown for the extension where there is one
  std::wstring initialName;
  bool listsFolders = true;
  std::optional<std::wstring> nameCaption;  // the labels, where the caller has better ones
  std::optional<std::wstring> extensionCaption;
  std::wstring resultPath;  // set when a name was confirmed
};

struct FileNameDialogTexts {
  FileNameDialogTexts(const Language& language, const FileNameRequest& request);

  std::wstring select, cancel;
  std::wstring nameLabel, extensionLabel;
  std::wstring nameMissing, nameIllegal, errorCaption;
};

enum class NameProblem { kNone, kMissing, kIllegal };

// The backslash is not among them: a name may lead into a folder below.
inline constexpr wchar_t kIllegalNameCharacters[] = L"/:*?\"<>|";
inline constexpr std::size_t kLongestTypedName = 256;

class FileNameDialogModel {
 public:
  using Row = std::optional<std::size_t>;

  FileNameDialogModel(Files& files, Locale& locale, FileNameRequest& request);
  virtual ~FileNameDialogModel() = default;

  const FileNameRequest& Request() const { return request_; }
  const std::vector<ListedEntry>& Entries() const { return entries_; }

  // Lists the folder anew. One that cannot be searched has no entries.
  void Fill();
  // With kNone the result path is set and the dialog ends.
  NameProblem Confirm(std::wstring_view name);
  // True when the row is a file: the result path is set and the dialog ends.
  bool Activate(Row row);
  // The name to put into an empty field for a marked row, so that confirming it gives that very
  // file; nothing where there is none.
  std::optional<std::wstring> NameFor(Row row) const;

  // The path confirmed last in this process, empty before the first.
  static const std::wstring& LastConfirmedPath();

 protected:
  // Decides whether a found entry is listed.
  virtual bool Lists(bool isFolder, const std::wstring& /*name*/) const {
    return request_.listsFolders || !isFolder;
  }

 private:
  void Accept(std::wstring path);

  Files& files_;
  Locale& locale_;
  FileNameRequest& request_;
  std::vector<ListedEntry> entries_;
};

// The folder of the path confirmed last, if it is still there, else `fallback`.
std::wstring FolderConfirmedLast(Files& files, const std::wstring& fallback);

struct DialogPlace {  // in the dialog's client area, pixels
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool operator==(const DialogPlace&) const = default;
};

struct FileNameLayout {
  DialogPlace nameLabel, nameField;
  DialogPlace extensionLabel, extensionField;  // empty without an extension row
  DialogPlace folder;
  DialogPlace list;
  int columnWidth = 0;
};

FileNameLayout LayOutFileNameDialog(int width, int height, bool hasExtension,
                                    const ScreenScale& scale);

}  // namespace tidewell
