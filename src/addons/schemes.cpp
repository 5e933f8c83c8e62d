#include "addons/schemes.h"

#include <algorithm>
#include <array>

#include "platform/text.h"
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
  return WriteTo(file, TextKind::kBackup) ? file.CommitAsNew() : FileStatus::kOther;
}

// A copy takes along also what a scheme has no room for, and is read like one. False when something
// was not to be read.
bool Schemes::WriteTo(ReplacementFile& file, TextKind kind) const {
  if (!file.Stream()) return true;
  TextWriter text(*file.Stream());
  ChangedRegistry registry(machine_.registry, {&store_.colors, &store_.fonts});
  if (kind == TextKind::kCopy) WriteCopyMark(text);
  bool wasRead = true;
  for (const std::wstring& tree : Trees()) {
    wasRead = WriteKeyTree(registry, tree, text, kind) && wasRead;
  }
  WriteCategoriesSection(catalog_, text, kind);
  text.Flush();
  return wasRead;
}

FileStatus Schemes::Remove(const std::wstring& file) const {
  return machine_.files.Remove(PathOf(file));
}

SchemeResult Schemes::Apply(const std::wstring& file) {
  const WholeFile scheme = ReadWholeFile(machine_.files, PathOf(file), kLargestScheme);
  if (scheme.status != FileStatus::kOk) return SchemeResult::kUnreadable;
  if (WasOneRefused()) return Import(scheme);
  ReplacementFile before(machine_.files, PathOf(kBeforeApplying));
  const bool isWhole = WriteTo(before, TextKind::kCopy);
  // Whoever goes back has the state to go back to in that very file until it is set.
  const bool goesBack = EqualIgnoringCase(file, kBeforeApplying);
  if (isWhole && !goesBack) before.Commit();
  const SchemeResult result = Import(scheme);
  if (isWhole && goesBack) before.Commit();
  return result;
}

// What is left then is nothing to go back to. Each load of the settings makes both keys; one is
// missing where the refusal came before this object.
bool Schemes::WasOneRefused() const {
  return wasRefused_ || std::ranges::any_of(Trees(), [&](const std::wstring& tree) {
           return !machine_.registry.Open(RegistryRoot::kCurrentUser, tree);
         });
}

SchemeResult Schemes::Import(const WholeFile& scheme) {
  for (const std::wstring& tree : Trees()) {
    machine_.registry.DeleteTree(RegistryRoot::kCurrentUser, tree);
  }
  TextReader text(scheme.bytes);
  const TextImport import = ImportRegistryText(machine_.registry, catalog_, text, Trees());
  wasRefused_ = import != TextImport::kWhole;
  return wasRefused_ ? SchemeResult::kRefused : SchemeResult::kApplied;
}

}  // namespace tidewell
