// Loading the settings beside a bare loop that makes the same calls to the registry, and
// what saving asks of the registry. No language library takes part: loading one is the system's.
#include <windows.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "bench/figures.h"
#include "bench/recording_registry.h"
#include "bench/stopwatch.h"
#include "platform/memory/memory_libraries.h"
#include "platform/memory/recorded_registry.h"
#include "platform/text.h"
#include "platform/windows/windows_machine.h"
#include "settings/settings_store.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 200;
constexpr int kHostedTabs = 30;
constexpr ScreenScale kScale(192, 192, false);

// The system's registry through a wrapper; the rest of the machine as it is.
struct BenchMachine {
  explicit BenchMachine(Registry& registry)
      : door{registry, machine.files, machine.locale, libraries, machine.system} {}

  WindowsMachine machine;
  MemoryLibraries libraries;  // none
  Machine door;
};

void Load(SettingsStore& store, Registry& registry) {
  BenchMachine machine(registry);
  Language language;
  store.Load(machine.door, kScale, language);
}

HKEY RootOf(RegistryRoot root) {
  return root == RegistryRoot::kLocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

// The recorded requests, straight to the system with one buffer for all.
void AskBare(const std::vector<RecordedRequest>& requests) {
  static BYTE buffer[4096];
  HKEY key = nullptr;
  for (const RecordedRequest& request : requests) {
    switch (request.request) {
      case Request::kOpen:
        RegOpenKeyExW(RootOf(request.root), request.name.c_str(), 0, KEY_ALL_ACCESS, &key);
        break;
      case Request::kCreate:
        RegCreateKeyExW(RootOf(request.root), request.name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                        nullptr, &key, nullptr);
        break;
      case Request::kQuery: {
        DWORD size = request.room;
        RegQueryValueExW(key, request.name.c_str(), nullptr, nullptr, size ? buffer : nullptr,
                         &size);
        break;
      }
      case Request::kCountValues: {
        DWORD values = 0;
        RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &values,
                         nullptr, nullptr, nullptr, nullptr);
        break;
      }
      case Request::kEnumValue: {
        wchar_t name[256];
        DWORD length = 256;
        DWORD size = sizeof buffer;
        RegEnumValueW(key, request.room, name, &length, nullptr, nullptr, buffer, &size);
        break;
      }
      case Request::kEnumSubkey: {
        DWORD length = sizeof buffer / sizeof(wchar_t);
        RegEnumKeyExW(key, request.room, reinterpret_cast<wchar_t*>(buffer), &length, nullptr,
                      nullptr, nullptr, nullptr);
        break;
      }
      case Request::kFlush:
        RegFlushKey(key);
        break;
      case Request::kClose:
        RegCloseKey(key);
        break;
    }
  }
}

void CompareLoading(const char* name, double aim) {
  WindowsRegistry registry;
  RecordingRegistry recording(registry);
  SettingsStore recorded;
  Load(recorded, recording);
  Comparison comparison;
  for (int round = 0; round < kRounds; ++round) {
    SettingsStore store;
    const Stopwatch watch;
    Load(store, registry);
    const double ours = watch.Milliseconds();
    const Stopwatch bare;
    AskBare(recording.Requests());
    comparison.Add(ours, bare.Milliseconds());
  }
  PrintRatio(name, comparison, aim, "ms");
}

// Every setting gets a value that is not its default.
class Changer final : public SettingVisitor {
 public:
  void Visit(DwordSetting& setting) override { setting.Set(setting.Value() + 1); }
  void Visit(StringSetting& setting) override { setting.Set(setting.Value() + L"x"); }
  void Visit(FlagArraySetting&) override {}
};

void CountSaving(const char* name, const std::function<void(SettingsStore&)>& change, double aim) {
  WindowsRegistry registry;
  SettingsStore store;
  Load(store, registry);
  change(store);
  RecordedRegistry recorded(registry);
  store.Save(recorded, kScale);
  char behind[96];
  std::snprintf(behind, sizeof behind, "%d keys opened, %d calls to write",
                recorded.Count(RegistryCall::kCreate) + recorded.Count(RegistryCall::kOpen),
                recorded.CountWrites());
  PrintFigure(name, recorded.CountWrites(), "", aim, "", behind);
}

void ForgetSettings() {
  WindowsRegistry().DeleteTree(RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell");
}

// As the program itself leaves them.
void PutHostedTabs(int count) {
  WindowsRegistry registry;
  SettingsStore store;
  Load(store, registry);
  for (int i = 1; i <= count; ++i) {
    store.tabs.push_back({TabType::kHosted, 0, 1, L"Plug-in " + FormatDecimal(i),
                          L"\\Windows\\plug-in.dll", L"\\Plug-ins", L"icon.ico"});
  }
  Renumber(store.tabs);
  store.Save(registry, kScale);
}

int Run() {
  CompareLoading("loading, nothing stored / bare loop", 1.15);
  CountSaving(
      "saving no change, calls to write", [](SettingsStore&) {}, 0);
  PutHostedTabs(kHostedTabs);
  CountSaving(
      "saving no change with 30 hosted tabs, calls to write", [](SettingsStore&) {}, 0);
  ForgetSettings();
  CountSaving(
      "saving one change, calls to write",
      [](SettingsStore& store) { store.calendar.dNumOfDays.Set(14); }, 1);

  WindowsRegistry registry;
  SettingsStore store;
  Load(store, registry);
  Changer changer;
  for (SettingGroup* group : store.Groups()) group->Accept(changer);
  store.Save(registry, kScale);
  CompareLoading("loading, everything stored / bare loop", 1.15);
  ForgetSettings();
  return 0;
}

}  // namespace

}  // namespace tidewell::bench

int main() {
  return tidewell::bench::Run();
}
