#include "companion/backup_document.h"

#include <algorithm>

#include "backup/registry_text.h"
#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

namespace {

const std::wstring kNames[] = {L"OnClick", L"a", L"FolD", L"percent%", L""};
const std::wstring kPaths[] = {std::wstring(kProductKey), std::wstring(kProductKey) + L"\\Fonts",
                               L"Software\\Other"};

std::vector<std::byte> Copied(Bytes bytes) {
  return {bytes.begin(), bytes.end()};
}

// What differs in the old file lies within one of its lines.
void RequireOneLine(const BackupDocument& document, Bytes old, Bytes now) {
  const std::size_t shorter = std::min(old.size(), now.size());
  std::size_t front = 0;
  while (front < shorter && old[front] == now[front]) ++front;
  std::size_t back = 0;
  while (back < shorter - front && old[old.size() - 1 - back] == now[now.size() - 1 - back]) ++back;
  const std::size_t end = old.size() - back;
  Require(front == end || std::ranges::any_of(document.Lines(), [&](const DocumentLine& line) {
            return line.begin <= front && end <= line.end;
          }));
}

// All that was in effect still is, but for one value.
void RequireOthers(const BackupDocument& old, const BackupDocument& now, const std::wstring& path,
                   const std::wstring& name) {
  for (std::size_t i = 0; i < old.Values().size(); ++i) {
    const StoredValue& value = old.Values()[i];
    const std::wstring_view key = old.Keys()[value.key].path;
    if (!old.IsInEffect(i)) continue;
    if (old.KeyOf(path) == value.key && EqualIgnoringCase(value.name, name)) continue;
    const StoredValue* found = now.Find(key, value.name);
    Require(found && AreSame(now, *found, old, value));
  }
}
void RequireRecords(const BackupDocument& old, const BackupDocument& now) {
  Require(old.Categories().size() == now.Categories().size());
  Require(old.Filters().size() == now.Filters().size());
}

// Records that are taken over are there, and all values still are.
void TakeRecords(BackupDocument document, std::int32_t number) {
  const CategoryLines category{0, 0, L"Work", number, 255};
  const FilterLines filter{0, 0, number % 32 + 1, L"x\"=\"", true, number % 2 == 0};
  if (document.TakeCategory(category) != EditStatus::kDone) return;
  if (document.TakeFilter(filter) != EditStatus::kDone) return;
  const BackupDocument now(document.Edited());
  const CategoryLines* itsCategory = now.FindCategory(category.name);
  const FilterLines* itsFilter = now.FindFilter(filter.index);
  Require(itsCategory && AreSame(*itsCategory, category));
  Require(itsFilter && AreSame(*itsFilter, filter));
  RequireOthers(document, now, kPaths[0], L"\n");
}

}  // namespace

// Unchanged a file stays the same to the byte; a value that is set or removed is so when the file
// is read again, and is all that changed; so are records.
void backup_document(Bytes bytes) {
  const std::size_t choice = TakeNumber(bytes);
  const std::wstring& path = kPaths[choice % 3];
  const std::wstring& name = kNames[choice / 3 % 5];
  BackupDocument document(Copied(bytes));
  const std::vector<std::byte> same = document.Edited();
  Require(std::ranges::equal(same, bytes));
  if (!document.IsRegistryText()) return;

  const NewValue value{choice % 2 == 0, static_cast<std::int32_t>(choice), L"a \"text\""};
  const bool isSet = document.Set(path, name, value) == EditStatus::kDone;
  if (isSet) {
    const std::vector<std::byte> edited = document.Edited();
    RequireOneLine(document, bytes, edited);
    const BackupDocument again(Copied(edited));
    const StoredValue* found = again.Find(path, name);
    Require(found && (value.isNumber ? found->type == kTypeDword && found->number == value.number
                                     : again.StringOf(*found) == value.text));
    RequireOthers(document, again, path, name);
    RequireRecords(document, again);
  }
  TakeRecords(BackupDocument(Copied(bytes)), value.number);
  BackupDocument other(Copied(bytes));
  const StoredValue* present = other.Find(path, name);
  if (!present || other.Remove(*present) != EditStatus::kDone) return;
  const BackupDocument without(other.Edited());
  Require(!without.Find(path, name));
  RequireOthers(other, without, path, name);
  RequireRecords(other, without);
}

}  // namespace tidewell::fuzz
