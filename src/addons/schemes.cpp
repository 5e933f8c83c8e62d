#include "addons/schemes.h"

#include <array>

#include "platform/whole_file.h"
#include "settings/changed_registry.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kFolder = L"\\Schemes";

// In the order in which they stand in the file.
const std::array<std::wstring, 2>& Trees() {
  static const std::array<std::wstring, 2> trees = {LocationOf(SettingKey::kColors).path,
                                                    LocationOf(SettingKey::kFonts).path};
  return trees;
}

}  // namespace

std::wstring Schemes::PathOf(const std::wstring& file) const {
  return store_.todayItemFolder + kFolder + L'\\' + file;
}

std::vector<std::wstring> Schemes::Names() const {
  std::vector<std::wstring> names;
  machine_.files.List(PathOf(L"*") + kSchemeExtension, [&](const FileEntry& entry) {
    if (!entry.isFolder) names.push_back(entry.name);
    return true;
  });
  return names;
}

FileStatus Schemes::Save(const std::wstring& name) const {
  const std::wstring path = PathOf(name + kSchemeExtension);
  if (machine_.files.Find(path)) return FileStatus::kInUse;
  machine_.files.MakeFolder(store_.todayItemFolder + kFolder);
  ReplacementFile file(machine_.files, path);
  WriteTo(file, TextKind::kBackup);
  return file.CommitAsNew();
}

// A copy takes along also what a scheme has no room for, and is read like one.
void Schemes::WriteTo(ReplacementFile& file, TextKind kind) const {
  if (!file.Stream()) return;
  TextWriter text(*file.Stream());
  ChangedRegistry registry(machine_.registry, {&store_.colors, &store_.fonts});
  if (kind == TextKind::kCopy) WriteCopyMark(text);
  for (const std::wstring& tree : Trees()) WriteKeyTree(registry, tree, text, kind);
  WriteCategoriesSection(catalog_, text, kind);
  text.Flush();
}

FileStatus Schemes::Remove(const std::wstring& file) const {
  return machine_.files.Remove(PathOf(file));
}

// Read whole before anything is changed: it may be the file that what is set now goes to.
SchemeResult Schemes::Apply(const std::wstring& file) const {
  const WholeFile scheme = ReadWholeFile(machine_.files, PathOf(file), kLargestScheme);
  if (scheme.status != FileStatus::kOk) return SchemeResult::kUnreadable;
  {
    ReplacementFile before(machine_.files, PathOf(kBeforeApplying));
    WriteTo(before, TextKind::kCopy);
    before.Commit();
  }
  for (const std::wstring& tree : Trees()) {
    machine_.registry.DeleteTree(RegistryRoot::kCurrentUser, tree);
  }
  TextReader text(scheme.bytes);
  const TextImport import = ImportRegistryText(machine_.registry, catalog_, text, Trees());
  return import == TextImport::kWhole ? SchemeResult::kApplied : SchemeResult::kRefused;
}

}  // namespace tidewell
