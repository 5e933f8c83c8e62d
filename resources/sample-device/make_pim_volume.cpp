// Makes a property database volume from a plain list of categories: make_pim_volume LIST VOLUME
#include <charconv>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "categories/pim_properties.h"
#include "platform/desktop/pim_volume.h"

namespace {

using namespace tidewell;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

// UTF-16 units of a UTF-8 text; what is malformed stands for itself byte by byte.
std::wstring UnitsOf(std::string_view utf8) {
  std::wstring units;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i++]);
    const std::size_t more = lead >= 0xF0 ? 3u : lead >= 0xE0 ? 2u : lead >= 0xC0 ? 1u : 0u;
    std::uint32_t code = more == 0 ? lead : lead & (0x3Fu >> more);
    for (std::size_t end = std::min(i + more, utf8.size()); i < end; ++i) {
      code = code << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3Fu);
    }
    if (code >= 0x10000) {
      units += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
      code = 0xDC00 + (code & 0x3FF);
    }
    units += static_cast<wchar_t>(code);
  }
  return units;
}

// The part of `rest` before the next tab, which is taken away with it.
std::string_view NextField(std::string_view& rest) {
  const std::size_t tab = rest.find('\t');
  const std::string_view field = rest.substr(0, tab);
  rest = tab == std::string_view::npos ? std::string_view() : rest.substr(tab + 1);
  return field;
}

bool ParseField(std::string_view field, std::uint32_t& number) {
  const auto result = std::from_chars(field.data(), field.data() + field.size(), number);
  return result.ec == std::errc() && result.ptr == field.data() + field.size();
}

bool AddCategory(std::string_view line, VolumeDatabase& database) {
  const std::string_view id = NextField(line);
  const std::string_view flag = NextField(line);
  std::uint32_t idNumber = 0;
  std::uint32_t flagNumber = 0;
  if (id != "-" && !ParseField(id, idNumber)) return false;
  if (!ParseField(flag, flagNumber) || line.empty()) return false;
  VolumeRecord record;
  if (id != "-") record.properties.push_back({kPimIdProperty, idNumber, {}});
  record.properties.push_back({kPimNameProperty, 0, UnitsOf(line)});
  record.properties.push_back({kPimFlagProperty, flagNumber, {}});
  database.records.push_back(std::move(record));
  return true;
}

bool ReadFile(const char* path, std::string& text) {
  const FileHandle file(std::fopen(path, "rb"));
  if (!file) return false;
  char buffer[4096];
  for (std::size_t count; (count = std::fread(buffer, 1, sizeof buffer, file.get())) != 0;) {
    text.append(buffer, count);
  }
  return std::ferror(file.get()) == 0;
}

bool WriteFile(const char* path, const std::vector<std::byte>& bytes) {
  FileHandle file(std::fopen(path, "wb"));
  if (!file || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) return false;
  return std::fclose(file.release()) == 0;
}

int Fail(const char* what, const char* where, int line = 0) {
  std::fprintf(stderr, "make_pim_volume: %s: %s", where, what);
  if (line != 0) std::fprintf(stderr, ", line %d", line);
  std::fputc('\n', stderr);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return Fail("two arguments wanted", "LIST VOLUME");
  std::string text;
  if (!ReadFile(argv[1], text)) return Fail("cannot be read", argv[1]);

  VolumeDatabase database{kCategoryDatabase, {}};
  std::string_view rest = text;
  for (int number = 1; !rest.empty(); ++number) {
    const std::size_t end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    if (line.empty() || line.front() == '#') continue;
    if (!AddCategory(line, database)) return Fail("not identifier, flag, name", argv[1], number);
  }
  PimVolume volume;
  volume.databases.push_back(std::move(database));
  if (!WriteFile(argv[2], FormatPimVolume(volume))) return Fail("cannot be written", argv[2]);
  return 0;
}
