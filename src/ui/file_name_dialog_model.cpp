#include "ui/file_name_dialog_model.h"

#include <utility>

#include "platform/text.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

std::wstring& ConfirmedPath() {
  static std::wstring path;
  return path;
}

}  // namespace

FileNameDialogTexts::FileNameDialogTexts(const Language& language, const FileNameRequest& request)
    : select(language.Text(IDS_SELECT, L"Select")),
      cancel(language.Text(IDS_CANCEL, L"Cancel")),
      nameLabel(request.nameCaption.value_or(language.Text(IDS_FILE_NAME, L"File Name"))),
      extensionLabel(
          request.extensionCaption.value_or(language.Text(IDS_FILE_EXTENSION, L"Extension"))),
      nameMissing(language.Text(IDS_FILE_NAME_MISSING, L"File name value is missing")),
      nameIllegal(language.Text(IDS_FILE_NAME_ILLEGAL, L"File name include illegal characters")),
      errorCaption(language.Text(IDS_FILE_NAME_ERROR, L"File Name Error")) {}

FileNameDialogModel::FileNameDialogModel(Files& files, Locale& locale, FileNameRequest& request)
    : files_(files), locale_(locale), request_(request) {}

void FileNameDialogModel::Fill() {
  entries_ = ListFolder(files_, locale_, JoinPath(request_.folder, L"*") + request_.extension,
                        [&](const FileEntry& entry) { return Lists(entry.isFolder, entry.name); })
                 .entries;
}

NameProblem FileNameDialogModel::Confirm(std::wstring_view name) {
  name = name.substr(0, kLongestTypedName);
  if (name.empty()) return NameProblem::kMissing;
  if (name.find_first_of(kIllegalNameCharacters) != std::wstring_view::npos) {
    return NameProblem::kIllegal;
  }
  Accept(JoinPath(request_.folder, name) + L"." + request_.extension);
  return NameProblem::kNone;
}

bool FileNameDialogModel::Activate(Row row) {
  if (!row || *row >= entries_.size() || entries_[*row].IsFolder()) return false;
  Accept(JoinPath(request_.folder, entries_[*row].name));
  return true;
}

std::optional<std::wstring> FileNameDialogModel::NameFor(Row row) const {
  if (!row || *row >= entries_.size() || entries_[*row].IsFolder()) return std::nullopt;
  const std::wstring& name = entries_[*row].name;
  const std::wstring ending = L"." + request_.extension;
  if (name.size() <= ending.size()) return std::nullopt;
  const std::size_t split = name.size() - ending.size();
  if (!EqualIgnoringCase(std::wstring_view(name).substr(split), ending)) return std::nullopt;
  return name.substr(0, split);
}

const std::wstring& FileNameDialogModel::LastConfirmedPath() {
  return ConfirmedPath();
}

void FileNameDialogModel::Accept(std::wstring path) {
  ConfirmedPath() = path;
  request_.resultPath = std::move(path);
}

std::wstring FolderConfirmedLast(Files& files, const std::wstring& fallback) {
  const std::wstring& last = FileNameDialogModel::LastConfirmedPath();
  if (last.empty()) return fallback;
  const std::wstring folder = ParentFolder(last);
  return FolderExists(files, folder) ? folder : fallback;
}

FileNameLayout LayOutFileNameDialog(int width, int height, bool hasExtension,
                                    const ScreenScale& scale) {
  const int margin = scale.ScaleX(10);
  const int labelWidth = scale.ScaleX(50);
  const int rowHeight = scale.ScaleX(20);
  const int fieldWidth = width - 2 * margin - labelWidth;
  int y = scale.ScaleY(10);
  const auto label = [&] {
    return DialogPlace{margin, y + scale.ScaleY(3), labelWidth, rowHeight};
  };
  const auto field = [&] { return DialogPlace{margin + labelWidth, y, fieldWidth, rowHeight}; };

  FileNameLayout layout;
  layout.nameLabel = label();
  layout.nameField = field();
  y += scale.ScaleY(24);
  if (hasExtension) {
    layout.extensionLabel = label();
    layout.extensionField = field();
    y += scale.ScaleY(24);
  }
  layout.folder = {margin, y, width - scale.ScaleX(20) - 2 * margin, rowHeight};
  const int top = y + scale.ScaleY(24);
  layout.list = {margin, top, width - 2 * margin, height - scale.ScaleY(10) - top};
  layout.columnWidth = width - 2 * margin;
  return layout;
}

}  // namespace tidewell
