// Backups beside the system's own reg tool, the reader and the writer over a registry in memory,
// and the catalogue's rebuild beside the bare queries that it cannot do without.
#include <windows.h>

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "backup/registry_text.h"
#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "categories/windows/pim_categories.h"
#include "platform/replacement_file.h"
#include "platform/text.h"
#include "platform/whole_file.h"
#include "platform/windows/windows_machine.h"
#include "tests/support/test_device.h"

namespace tidewell::bench {

namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kTree = L"Software\\TidewellBench";

std::wstring BelowTemp(const wchar_t* name) {
  wchar_t folder[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, folder);
  return JoinPath(folder, name);
}

// Half numbers, half strings, 100 values to a key.
std::wstring TextOfTree(const std::wstring& root, int keys) {
  std::wstring text;
  for (int key = 0; key < keys; ++key) {
    text += L"\n[" + root + L"\\Key" + FormatDecimal(key) + L"]\n";
    for (int i = 0; i < 50; ++i) {
      const std::wstring number = FormatDecimal(i);
      text += L"\"SomeNumber" + number + L"\"=dword:" + FormatDecimal(i * 977) + L"\n";
      text += L"\"SomeText" + number + L"\"=\"\\Program Files\\Velmont\\Tidewell\"\n";
    }
  }
  return text;
}

bool Import(Registry& registry, CategoryCatalog& catalog, std::span<const std::byte> bytes) {
  TextReader reader(bytes);
  return ImportRegistryText(registry, catalog, reader) == TextImport::kWhole;
}

bool Export(Registry& registry, const std::wstring& path) {
  WindowsFiles files;
  ReplacementFile file(files, path);
  if (!file.Stream()) return false;
  TextWriter text(*file.Stream());
  WriteKeyTree(registry, kTree, text);
  text.Flush();
  return file.Commit() == FileStatus::kOk;
}

bool RunReg(std::wstring commandLine) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                      nullptr, nullptr, &startup, &process)) {
    return false;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD exitCode = 1;
  GetExitCodeProcess(process.hProcess, &exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return exitCode == 0;
}

bool CompareWithReg() {
  constexpr int kRounds = 7;
  WindowsRegistry registry;
  WindowsFiles files;
  TestDevice idle;
  const std::wstring ours = BelowTemp(L"bench.twsb");
  const std::wstring theirs = BelowTemp(L"bench.reg");
  const std::wstring quotedTheirs = L'"' + theirs + L'"';
  if (!Import(registry, idle.catalog, BytesOf(TextOfTree(kTree, 100)))) return false;

  Comparison exporting;
  Comparison importing;
  bool ok = true;
  for (int round = 0; round < kRounds; ++round) {
    const Stopwatch exportWatch;
    ok = Export(registry, ours) && ok;
    const double exportTime = exportWatch.Milliseconds();
    const Stopwatch regExportWatch;
    ok = RunReg(L"reg export HKCU\\" + kTree + L' ' + quotedTheirs + L" /y") && ok;
    exporting.Add(exportTime, regExportWatch.Milliseconds());

    registry.DeleteTree(kUser, kTree);
    const Stopwatch importWatch;
    ok = Import(registry, idle.catalog, ReadWholeFile(files, ours).bytes) && ok;
    const double importTime = importWatch.Milliseconds();
    registry.DeleteTree(kUser, kTree);
    const Stopwatch regImportWatch;
    ok = RunReg(L"reg import " + quotedTheirs) && ok;
    importing.Add(importTime, regImportWatch.Milliseconds());
  }
  registry.DeleteTree(kUser, kTree);
  files.Remove(ours);
  files.Remove(theirs);
  if (!ok) return false;
  PrintRatio("exporting 10,000 values / reg export", exporting, 1, "ms");
  PrintRatio("importing 10,000 values / reg import", importing, 1, "ms");
  return true;
}

class CountingSink final : public OutputStream {
 public:
  bool Write(std::span<const std::byte> bytes) override {
    count += bytes.size();
    return true;
  }
  FileStatus Close() override { return FileStatus::kOk; }
  std::size_t count = 0;
};

struct Speed {
  double megabytes = 0;
  double reading = 0;  // megabytes in a second
  double writing = 0;
};

Speed MeasureInMemory(int keys) {
  TestDevice idle;
  const std::vector<std::byte> bytes = BytesOf(TextOfTree(kTree, keys));
  Speed speed{static_cast<double>(bytes.size()) / 1e6, 0, 0};
  const Stopwatch readWatch;
  Import(idle.registry, idle.catalog, bytes);
  speed.reading = speed.megabytes * 1000 / readWatch.Milliseconds();
  CountingSink sink;
  TextWriter writer(sink);
  const Stopwatch writeWatch;
  WriteKeyTree(idle.registry, kTree, writer);
  writer.Flush();
  speed.writing = static_cast<double>(sink.count) / 1e3 / writeWatch.Milliseconds();
  return speed;
}

void PrintSpeeds() {
  const Speed warmUp = MeasureInMemory(100);
  const Speed small = MeasureInMemory(900);
  const Speed large = MeasureInMemory(9000);
  char behind[96];
  std::snprintf(behind, sizeof behind, "a text of %.1f MB; of %.1f MB: %.0f MB/s", large.megabytes,
                small.megabytes, small.reading);
  PrintFigure("reading into a registry in memory", large.reading, "", 50, " MB/s", behind);
  std::snprintf(behind, sizeof behind, "a text of %.1f MB; of %.1f MB: %.0f MB/s", large.megabytes,
                small.megabytes, small.writing);
  PrintFigure("writing from a registry in memory", large.writing, "", 50, " MB/s", behind);
  static_cast<void>(warmUp);
}

bool WriteVolume(const std::wstring& path, int categories) {
  std::string text;
  for (int i = 1; i <= categories; ++i) {
    text += std::to_string(i) + "\t0\tCategory " + std::to_string(i) + '\n';
  }
  WindowsFiles files;
  const auto stream = files.OpenForWriting(path).stream;
  return stream && stream->Write(std::as_bytes(std::span(text))) &&
         stream->Close() == FileStatus::kOk;
}

// The two queries per category, with nothing around them.
void AskBare(int categories) {
  HKEY key = nullptr;
  RegCreateKeyExW(HKEY_CURRENT_USER, LocationOf(SettingKey::kCategories).path, 0, nullptr, 0,
                  KEY_ALL_ACCESS, nullptr, &key, nullptr);
  for (const wchar_t* prefix : {L"CatColor.", L"CatFilter."}) {
    for (int i = 1; i <= categories; ++i) {
      const std::wstring name = prefix + (L"Category " + FormatDecimal(i));
      DWORD number = 0;
      DWORD size = sizeof number;
      RegQueryValueExW(key, name.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(&number),
                       &size);
    }
  }
  RegCloseKey(key);
}

bool CompareRebuild() {
  constexpr int kRounds = 20;
  constexpr int kCategories = 300;
  const std::wstring volume = BelowTemp(L"bench.vol");
  if (!WriteVolume(volume, kCategories)) return false;
  WindowsMachine machine;
  SettingsStore store;
  CategoryCatalog catalog(machine.Door(), store);
  Comparison comparison;
  for (int round = 0; round < kRounds; ++round) {
    const Stopwatch watch;
    PimCategorySource source(machine.files, BelowTemp(L"no icons"), volume);
    catalog.Rebuild(source, L"All");
    const double ours = watch.Milliseconds();
    const Stopwatch bare;
    AskBare(kCategories);
    comparison.Add(ours, bare.Milliseconds());
  }
  machine.files.Remove(volume);
  if (catalog.Categories().size() != kCategories) return false;
  PrintRatio("rebuilding 300 categories / bare queries", comparison, kNoAim, "ms");
  return true;
}

}  // namespace

}  // namespace tidewell::bench

int main() {
  using namespace tidewell::bench;
  const bool ok = CompareWithReg() && CompareRebuild();
  PrintSpeeds();
  if (!ok) std::printf("the backup bench could not do all of its work\n");
  return ok ? 0 : 1;
}
