// tidewell-backup as a process of this computer, beside reading the same files with nothing else.
#include <spawn.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "backup/registry_text.h"
#include "backup/registry_text_reader.h"
#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "platform/text.h"
#include "tools/whole_files.h"

namespace tidewell::bench {

namespace {

namespace fs = std::filesystem;

// How it ended; -1 when it was not to be started.
int Run(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", 1, 0);
  pid_t process = 0;
  const bool runs =
      posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  if (!runs || waitpid(process, &status, 0) < 0 || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

// Half numbers, half strings, 50 values to a key; with `salt` every thousandth is another.
std::wstring TextOfBackup(std::size_t bytes, bool salt) {
  std::wstring text = L"\n[" + std::wstring(kProductKey) + L"]\n\"OnClick\"=dword:1\n";
  std::int32_t values = 0;
  for (std::int32_t key = 0; 2 * text.size() < bytes; ++key) {
    text += L"\n[" + std::wstring(kProductKey) + L"\\Key" + FormatDecimal(key) + L"]\n";
    for (std::int32_t i = 0; i < 25; ++i, ++values) {
      const std::wstring number = FormatDecimal(i);
      const std::wstring value = FormatDecimal(salt && values % 500 == 0 ? -1 : values);
      text += L"\"SomeNumber" + number + L"\"=dword:" + value + L"\n";
      text += L"\"SomeText" + number + L"\"=\"\\Program Files\\Velmont\\Tidewell\"\n";
    }
  }
  return text;
}

struct Backups {
  std::string old;
  std::string now;
};

bool Write(const std::string& path, const std::wstring& text) {
  const std::vector<std::byte> bytes = BytesOf(text);
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return file.flush().good();
}

Backups WriteBackups(const fs::path& folder, std::size_t megabytes) {
  const std::string start = (folder / std::to_string(megabytes)).string();
  const Backups backups{start + ".old", start + ".new"};
  const bool ok = Write(backups.old, TextOfBackup(megabytes * 1'000'000, false)) &&
                  Write(backups.now, TextOfBackup(megabytes * 1'000'000, true));
  return ok ? backups : Backups();
}

class IdleTarget final : public TextTarget {
 public:
  bool OpenKey(const std::wstring&) override { return true; }
};

bool ReadBare(const std::string& path) {
  const auto bytes = ReadFile(path);
  if (!bytes) return false;
  TextReader stream(*bytes);
  IdleTarget target;
  RegistryTextReader reader(stream, target);
  return reader.Begin() && reader.Read();
}

bool MeasureShow(const std::string& program, const std::string& backup) {
  constexpr int kRounds = 30;
  Comparison comparison;
  for (int round = 0; round < kRounds; ++round) {
    const Stopwatch watch;
    if (Run({program, "show", backup}) != 0) return false;
    const double ours = watch.Milliseconds();
    const Stopwatch bare;
    if (Run({program, "--help"}) != 0) return false;
    comparison.Add(ours, bare.Milliseconds());
  }
  PrintSamples("show of a real backup, as a process", comparison.ours, 30, " ms");
  PrintRatio("show of a real backup / --help, both as processes", comparison, kNoAim, "ms");
  return true;
}

bool MeasureDiff(const std::string& program, const fs::path& folder) {
  constexpr int kRounds = 5;
  constexpr int kDifferent = 1;
  const Backups small = WriteBackups(folder, 10);
  const Backups large = WriteBackups(folder, 50);
  Comparison toFloor;
  Comparison toSmall;
  for (int round = 0; round < kRounds; ++round) {
    const Stopwatch smallWatch;
    if (Run({program, "diff", small.old, small.now}) != kDifferent) return false;
    const double smallTime = smallWatch.Milliseconds();
    const Stopwatch watch;
    if (Run({program, "diff", large.old, large.now}) != kDifferent) return false;
    const double time = watch.Milliseconds();
    const Stopwatch bare;
    if (!ReadBare(large.old) || !ReadBare(large.now)) return false;
    toFloor.Add(time, bare.Milliseconds());
    toSmall.Add(time, 5 * smallTime);
  }
  PrintFigure("diff of two backups of 50 MB, as a process", toFloor.ours.Median() / 1000,
              Spread(toFloor.ours.Quantile(0.25) / 1000, toFloor.ours.Quantile(0.75) / 1000), 2,
              " s", "");
  PrintRatio("diff of two of 50 MB / reading both bare", toFloor, kNoAim, "ms");
  PrintRatio("diff of two of 50 MB / five of two of 10 MB", toSmall, 1.5, "ms");
  return true;
}

}  // namespace

}  // namespace tidewell::bench

// PROGRAM BACKUP
int main(int argc, char** argv) {
  using namespace tidewell::bench;
  std::string folder = (fs::temp_directory_path() / "tidewell_bench_XXXXXX").string();
  const bool ok = argc == 3 && mkdtemp(folder.data()) && MeasureShow(argv[1], argv[2]) &&
                  MeasureDiff(argv[1], folder);
  std::error_code error;
  fs::remove_all(folder, error);
  if (!ok) std::printf("the companion's bench could not do all of its work\n");
  return ok ? 0 : 1;
}
