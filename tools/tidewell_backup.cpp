// tidewell-backup: reads, compares and edits backups on a PC. Only the command line and the files
// are here; what the commands do is in src/companion.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

#include "companion/backup_check.h"
#include "companion/backup_edits.h"
#include "companion/reports.h"
#include "companion/suggestions.h"
#include "platform/text.h"
#include "tools/whole_files.h"

namespace tidewell {

namespace {

constexpr int kDone = 0;
constexpr int kDifferent = 1;
constexpr int kTrouble = 2;

// What the command line says.
struct Request {
  std::string command;
  std::string file;
  std::string other;
  std::vector<std::string> groups;
  std::vector<std::string> names;
  std::string out;
  std::string language;
  std::string device;
  std::string locale;
  bool json = false;
  bool changed = false;
  bool aligned = false;
  bool inPlace = false;
};

bool IsTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stdout)) != 0;
#else
  return isatty(STDOUT_FILENO) != 0;
#endif
}

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

int Trouble(const std::string& sentence) {
  std::cerr << "tidewell-backup: " << OnOneLine(sentence) << '\n';
  return kTrouble;
}

// A console of Windows has to be told that it may.
bool ShowsColors() {
  if (!Environment("NO_COLOR").empty()) return false;
#ifdef _WIN32
  const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) != 0 &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
#else
  return true;
#endif
}

ListingStyle StyleOf(const Request& request) {
  if (request.json) return ListingStyle::kJson;
  if (!IsTerminal()) return request.aligned ? ListingStyle::kAligned : ListingStyle::kPlain;
  return ShowsColors() ? ListingStyle::kColored : ListingStyle::kAligned;
}

DeviceFacts FactsOf(const Request& request) {
  DeviceFacts facts;
  if (!request.device.empty()) facts.screen = ScreenOfName(request.device);
  if (!request.locale.empty()) facts.locale = FromUtf8(request.locale);
  facts.tongue = request.language == "de" ? Tongue::kGerman : Tongue::kEnglish;
  return facts;
}

std::vector<std::wstring> Wide(const std::vector<std::string>& texts) {
  std::vector<std::wstring> wide;
  wide.reserve(texts.size());
  for (const std::string& text : texts) wide.push_back(FromUtf8(text));
  return wide;
}

// What to do about a file that does not begin as a backup.
std::string WhyNoBackup(std::span<const std::byte> bytes) {
  const auto begins = [&](std::initializer_list<int> start) {
    return std::ranges::equal(bytes.first(std::min(bytes.size(), start.size())), start, {},
                              [](std::byte byte) { return std::to_integer<int>(byte); });
  };
  if (bytes.empty()) return "is empty: choose a .twsb file as the program wrote it.";
  if (begins({0xFF, 0xFE})) {
    return "begins with a byte-order mark, which backups do not have: save it without one.";
  }
  if (begins({'\r', 0})) {
    return "has carriage returns, which backups do not have: save it with line feeds alone.";
  }
  if (begins({'\n'}) && !begins({'\n', 0})) {
    return "is not in UTF-16: choose a .twsb file as the program wrote it.";
  }
  return "is no backup, for its first line is not empty: choose a .twsb file as the program wrote "
         "it, in UTF-16.";
}

// Nothing, and the user told, when it is no backup.
std::optional<BackupDocument> Open(const std::string& file) {
  std::optional<std::vector<std::byte>> bytes = ReadFile(file);
  if (!bytes) {
    Trouble(file + ": " + WhyNotRead(file));
    return std::nullopt;
  }
  const std::string why = WhyNoBackup(*bytes);
  BackupDocument document(*std::move(bytes));
  if (document.IsRegistryText()) return document;
  Trouble(file + ":1: " + why);
  return std::nullopt;
}

bool AreGroups(const MeaningDevice& device, const std::vector<std::wstring>& groups) {
  const auto unknown = std::ranges::find_if_not(
      groups, [&](const std::wstring& group) { return IsGroup(device, group); });
  if (unknown == groups.end()) return true;
  const std::vector<std::wstring> titles = GroupTitles(device);
  const std::wstring nearest = NearestOf(titles, *unknown);
  std::string all;
  for (const std::wstring& title : titles) all += (all.empty() ? "" : ", ") + ToUtf8(title);
  Trouble("there is no group \"" + ToUtf8(*unknown) + "\": choose " +
          (nearest.empty() ? "one " : "\"" + ToUtf8(nearest) + "\" or another ") + "of " + all +
          ".");
  return false;
}

int Show(const Request& request) {
  const std::optional<BackupDocument> document = Open(request.file);
  if (!document) return kTrouble;
  BackupSettings backup(*document, FactsOf(request));
  const std::vector<std::wstring> groups = Wide(request.groups);
  if (!AreGroups(backup.Device(), groups)) return kTrouble;
  std::cout << Render(ShowBackup(backup, groups, request.changed), StyleOf(request));
  return kDone;
}

int List(const Request& request) {
  MeaningDevice device(FactsOf(request));
  const std::vector<std::wstring> groups = Wide(request.groups);
  if (!AreGroups(device, groups)) return kTrouble;
  std::cout << Render(ListSettings(device, groups), StyleOf(request));
  return kDone;
}

int Diff(const Request& request) {
  const std::optional<BackupDocument> left = Open(request.file);
  if (!left) return kTrouble;
  const std::optional<BackupDocument> right = Open(request.other);
  if (!right) return kTrouble;
  BackupSettings old(*left, FactsOf(request));
  BackupSettings now(*right, FactsOf(request));
  const std::vector<Record> records = CompareBackups(old, now);
  std::cout << Render(records, StyleOf(request));
  return records.empty() ? kDone : kDifferent;
}

// "FILE:LINE:COLUMN: what is the matter", as compilers have it.
int Check(const Request& request) {
  const std::optional<BackupDocument> document = Open(request.file);
  if (!document) return kTrouble;
  BackupSettings backup(*document, FactsOf(request));
  bool hasLoss = false;
  for (const Finding& finding : CheckBackup(backup)) {
    std::string place = request.file + ":";
    if (finding.line != 0) place += std::to_string(finding.line) + ":";
    if (finding.column != 0) place += std::to_string(finding.column) + ":";
    std::cout << OnOneLine(place + (finding.isLoss ? " " : " note: ") + finding.text) << '\n';
    hasLoss = hasLoss || finding.isLoss;
  }
  return hasLoss ? kDifferent : kDone;
}

int Get(const Request& request) {
  const std::optional<BackupDocument> document = Open(request.file);
  if (!document) return kTrouble;
  BackupSettings backup(*document, FactsOf(request));
  const std::vector<const StoredValue*> others = backup.OtherValues();
  std::vector<Record> records;
  for (const std::wstring& name : Wide(request.names)) {
    std::string trouble;
    const std::vector<NamedSetting> found = FindNamed(backup, name, trouble);
    const auto other = std::ranges::find_if(
        others, [&](const StoredValue* value) { return IsNamed(*document, *value, name); });
    if (!found.empty()) {
      records.push_back(ShowMeaning(backup, *found.front().meaning));
    } else if (other != others.end()) {
      records.push_back(ShowValue(backup, **other));
    } else {
      return Trouble(request.file + ": " + trouble);
    }
  }
  std::cout << Render(records, StyleOf(request));
  return kDone;
}

// Where what a command makes goes; empty, and the user told, when that is not said or not allowed.
std::string PlaceFor(const Request& request) {
  const std::string instead = request.command == "scheme" ? "." : ", or say --in-place.";
  if (request.inPlace) return request.file;
  if (request.out.empty()) {
    Trouble(request.file + ": stays as it is: name the new file with -o" + instead);
    return {};
  }
  if (IsSameFile(request.out, request.other)) {
    Trouble(request.other + ": is not written over: name another file with -o.");
    return {};
  }
  if (IsSameFile(request.out, request.file)) {
    Trouble(request.file + ": is not written over: name another file with -o" + instead);
    return {};
  }
  return request.out;
}

int Write(const std::string& place, const std::vector<std::byte>& bytes) {
  if (WriteFile(place, bytes)) return kDone;
  return Trouble(place +
                 ": cannot be written: check that its folder is there, and neither that nor the "
                 "file protected, nor the disk full.");
}

// Writes the changed document, and tells what is different in it.
int Finish(const Request& request, const BackupDocument& document, const std::string& trouble) {
  if (!trouble.empty()) return Trouble(request.file + ": " + trouble);
  const std::string place = PlaceFor(request);
  if (place.empty()) return kTrouble;
  std::vector<std::byte> bytes = document.Edited();
  if (const int status = Write(place, bytes); status != kDone) return status;
  const BackupDocument edited(std::move(bytes));
  BackupSettings old(document, FactsOf(request));
  BackupSettings now(edited, FactsOf(request));
  std::cout << Render(CompareBackups(old, now), StyleOf(request));
  return kDone;
}

int Set(const Request& request) {
  std::optional<BackupDocument> document = Open(request.file);
  if (!document) return kTrouble;
  const BackupSettings settings(*document, FactsOf(request));
  return Finish(request, *document, SetByName(*document, settings, Wide(request.names)));
}

int MergeFiles(const Request& request) {
  std::optional<BackupDocument> document = Open(request.file);
  if (!document) return kTrouble;
  const std::optional<BackupDocument> from = Open(request.other);
  if (!from) return kTrouble;
  const BackupSettings theirs(*from, FactsOf(request));
  const MergeChoice choice{Wide(request.groups), Wide(request.names)};
  return Finish(request, *document, Merge(*document, theirs, choice));
}

int WriteScheme(const Request& request) {
  const std::optional<BackupDocument> document = Open(request.file);
  if (!document) return kTrouble;
  std::vector<std::byte> scheme;
  const std::string trouble = SchemeOf(*document, scheme);
  if (!trouble.empty()) return Trouble(request.file + ": " + trouble);
  const std::string place = PlaceFor(request);
  return place.empty() ? kTrouble : Write(place, scheme);
}

int ApplySchemeFile(const Request& request) {
  std::optional<BackupDocument> document = Open(request.file);
  if (!document) return kTrouble;
  const std::optional<BackupDocument> scheme = Open(request.other);
  if (!scheme) return kTrouble;
  return Finish(request, *document, ApplyScheme(*document, *scheme));
}

class CommandLine {
 public:
  CommandLine() : app_("Reads, compares and edits backups of the settings.", "tidewell-backup") {
    app_.require_subcommand(1);
    app_.footer("Exit codes: 0 done, 1 there are differences or losses, 2 trouble.");
    AddShow();
    AddList();
    AddDiff();
    AddCheck();
    AddGet();
    AddSet();
    AddMerge();
    AddSchemes();
    app_.failure_message([](const CLI::App* app, const CLI::Error& error) {
      std::string command = "tidewell-backup ";
      for (const CLI::App* used : app->get_subcommands()) command += used->get_name() + " ";
      return "tidewell-backup: " + std::string(error.what()) + ": " + command +
             "--help tells what there is.\n";
    });
  }

  int Run(std::vector<std::string> arguments) {
    for (const std::string& each : arguments) {
      if (ToUtf8(FromUtf8(each)) != each) {
        return Trouble("\"" + ToUtf8(FromUtf8(each)) +
                       "\" is not UTF-8: type it on a terminal that is.");
      }
    }
    if (arguments.empty() || !IsCommand(arguments[0])) {
      return NoCommand(Commands(), arguments);
    }
    std::reverse(arguments.begin(), arguments.end());
    try {
      app_.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
      return app_.exit(error) == 0 ? kDone : kTrouble;
    }
    const int status = run_(request_);
    if (std::cout.flush()) return status;
    return Trouble("standard output: cannot be written: check that its disk is not full.");
  }

 private:
  std::vector<std::wstring> Commands() const {
    std::vector<std::wstring> names;
    for (const CLI::App* command : app_.get_subcommands({})) {
      names.push_back(FromUtf8(command->get_name()));
    }
    return names;
  }
  bool IsCommand(const std::string& word) const {
    return word.starts_with('-') || std::ranges::count(Commands(), FromUtf8(word)) != 0;
  }
  static int NoCommand(const std::vector<std::wstring>& names,
                       const std::vector<std::string>& arguments) {
    if (arguments.empty()) return Trouble("names no command: --help tells what there is.");
    const std::wstring nearest = NearestOf(names, FromUtf8(arguments[0]));
    return Trouble("there is no command \"" + arguments[0] + "\": choose " +
                   (nearest.empty() ? "one" : ToUtf8(nearest) + " or another") +
                   " that --help tells.");
  }

  CLI::App& Add(const char* name, const char* about, int (*run)(const Request&)) {
    CLI::App& command = *app_.add_subcommand(name, about);
    command.callback([this, name, run] {
      request_.command = name;
      run_ = run;
    });
    return command;
  }
  void AddFile(CLI::App& command) {
    command.add_option("FILE", request_.file, "The backup")->required();
  }
  void AddGroups(CLI::App& command) {
    command.add_option("GROUP", request_.groups,
                       "Pages by their titles or registry keys, Categories, Filters; all without");
  }
  void AddDevice(CLI::App& command) {
    command.add_option("--language", request_.language, "Of labels and choices: en or de")
        ->check(CLI::IsMember({"en", "de"}));
    command
        .add_option("--device", request_.device,
                    "The screen that defaults follow from; without one such defaults are not known")
        ->check(CLI::IsMember(ScreenNames()));
    command
        .add_option("--locale", request_.locale,
                    "The locale that defaults and the form of times follow from")
        ->check(CLI::IsMember(LocaleNames()));
  }
  void AddStyle(CLI::App& command) {
    command.add_flag("--json", request_.json, "As JSON");
    command.add_flag("--aligned", request_.aligned, "Into a pipe as on a terminal");
  }

  void AddShow() {
    CLI::App& command = Add("show", "Shows every setting by page and tab", Show);
    AddFile(command);
    AddGroups(command);
    command.add_flag("--changed", request_.changed, "Only what differs from the defaults");
    AddStyle(command);
    AddDevice(command);
  }
  void AddList() {
    CLI::App& command = Add("list", "Lists all settings with types, defaults and choices", List);
    AddGroups(command);
    AddStyle(command);
    AddDevice(command);
  }
  void AddDiff() {
    CLI::App& command = Add("diff", "Shows what differs between two backups", Diff);
    command.add_option("A", request_.file, "The older backup")->required();
    command.add_option("B", request_.other, "The newer backup")->required();
    AddStyle(command);
    AddDevice(command);
  }

  void AddCheck() {
    CLI::App& command = Add("check", "Tells what an import would not bring back", Check);
    AddFile(command);
    AddDevice(command);
  }
  void AddGet() {
    CLI::App& command = Add("get", "Shows single settings", Get);
    AddFile(command);
    command.add_option("NAME", request_.names, "Registry names or labels")->required();
    AddStyle(command);
    AddDevice(command);
  }
  CLI::Option* AddOut(CLI::App& command) {
    return command.add_option("-o,--output", request_.out, "The new file");
  }
  void AddChanged(CLI::App& command) {
    CLI::Option* out = AddOut(command);
    command.add_flag("--in-place", request_.inPlace, "Puts the new file in the place of the old")
        ->excludes(out);
    AddStyle(command);
    AddDevice(command);
  }
  void AddSet() {
    CLI::App& command = Add("set", "Changes single settings", Set);
    AddFile(command);
    command
        .add_option(
            "NAME=VALUE", request_.names,
            "A registry name or label, and a number, a choice's text, a color, a text or default")
        ->required();
    AddChanged(command);
  }
  void AddMerge() {
    CLI::App& command = Add("merge", "Takes values of one backup over another", MergeFiles);
    command.add_option("BASE", request_.file, "The backup that is changed")->required();
    command.add_option("FROM", request_.other, "The backup that values come from")->required();
    command.add_option("--only", request_.groups,
                       "Pages, Categories, Filters, registry names, labels");
    command.add_option("--except", request_.names, "Registry names or labels that stay");
    AddChanged(command);
  }
  void AddSchemes() {
    CLI::App& scheme =
        Add("scheme", "Writes colors, fonts and categories as a scheme", WriteScheme);
    AddFile(scheme);
    AddOut(scheme);
    CLI::App& apply = Add("apply-scheme", "Puts a scheme into a backup", ApplySchemeFile);
    AddFile(apply);
    apply.add_option("SCHEME", request_.other, "The scheme")->required();
    AddChanged(apply);
  }

  CLI::App app_;
  Request request_;
  int (*run_)(const Request&) = nullptr;
};

}  // namespace

}  // namespace tidewell

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) {
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) arguments.push_back(tidewell::ToUtf8(argv[i]));
  return tidewell::CommandLine().Run(std::move(arguments));
}
#else
int main(int argc, char** argv) {
  return tidewell::CommandLine().Run({argv + 1, argv + argc});
}
#endif
