// Writes docs/settings.md: settings_table FILE

#include <cstdio>
#include <memory>

#include "settings/settings_table.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: settings_table FILE\n", stderr);
    return 2;
  }
  tidewell::SettingsStore store;
  const std::wstring text = tidewell::SettingsTable(store);
  const std::string bytes(text.begin(), text.end());

  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(argv[1], "wb"),
                                                             &std::fclose);
  if (!file || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
    std::perror(argv[1]);
    return 1;
  }
  return 0;
}
