#include "companion/listing.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "platform/text.h"

namespace tidewell {

namespace {

// A longer text pushes what follows to the right.
constexpr std::size_t kWidestColumn = 30;

struct CodeRange {
  std::uint32_t first;
  std::uint32_t last;
};
// Marks that stand above or below a letter, and what is not seen at all.
constexpr std::array<CodeRange, 14> kNoCells = {{{0x300, 0x36F},
                                                 {0x483, 0x489},
                                                 {0x591, 0x5BD},
                                                 {0x610, 0x61A},
                                                 {0x64B, 0x65F},
                                                 {0x93C, 0x93C},
                                                 {0x94D, 0x94D},
                                                 {0xE31, 0xE31},
                                                 {0xE34, 0xE3A},
                                                 {0xE47, 0xE4E},
                                                 {0x200B, 0x200F},
                                                 {0x20D0, 0x20FF},
                                                 {0xFE00, 0xFE0F},
                                                 {0xFE20, 0xFE2F}}};
// Signs of the scripts of East Asia, and pictures.
constexpr std::array<CodeRange, 9> kTwoCells = {{{0x1100, 0x115F},
                                                 {0x2E80, 0x303E},
                                                 {0x3041, 0xA4CF},
                                                 {0xAC00, 0xD7A3},
                                                 {0xF900, 0xFAFF},
                                                 {0xFE30, 0xFE6F},
                                                 {0xFF00, 0xFF60},
                                                 {0xFFE0, 0xFFE6},
                                                 {0x1F300, 0x3FFFD}}};

template <typename Ranges>
bool IsIn(const Ranges& ranges, std::uint32_t code) {
  return std::ranges::any_of(
      ranges, [&](const CodeRange& each) { return code >= each.first && code <= each.last; });
}

// In cells of a terminal.
std::size_t WidthOf(std::wstring_view text) {
  std::size_t width = 0;
  while (!text.empty()) {
    const std::uint32_t code = TakeCharacter(text);
    width += IsIn(kNoCells, code) ? 0 : IsIn(kTwoCells, code) ? 2 : 1;
  }
  return width;
}

// What breaks a line, turns its direction, or would be an order to a terminal.
constexpr std::array<CodeRange, 5> kOrders = {
    {{0, 0x1F}, {0x7F, 0x9F}, {0x2028, 0x202E}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF}}};

std::vector<std::wstring> CellsOf(const Record& record) {
  std::vector<std::wstring> cells;
  for (const Field& field : record.fields) {
    if (!field.isInJsonOnly) cells.push_back(OnOneLine(field.text));
  }
  return cells;
}

std::wstring HeadingOf(const Record& record) {
  return OnOneLine(record.tab.empty() ? record.page : record.page + L" > " + record.tab);
}

std::string Plain(const std::vector<Record>& records) {
  std::string text;
  for (const Record& record : records) {
    text += ToUtf8(OnOneLine(record.page)) + '\t' + ToUtf8(OnOneLine(record.tab));
    for (const Field& field : record.fields) {
      if (!field.isInJsonOnly) text += '\t' + ToUtf8(OnOneLine(field.text));
    }
    text += '\n';
  }
  return text;
}

std::vector<std::size_t> WidthsOf(const std::vector<Record>& records) {
  std::vector<std::size_t> widths;
  for (const Record& record : records) {
    const std::vector<std::wstring> cells = CellsOf(record);
    widths.resize(std::max(widths.size(), cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i) {
      widths[i] = std::max(widths[i], std::min(WidthOf(cells[i]), kWidestColumn));
    }
  }
  return widths;
}

std::wstring AlignedLine(const std::vector<std::wstring>& cells,
                         const std::vector<std::size_t>& widths) {
  std::wstring line = L"  ";
  for (std::size_t i = 0; i < cells.size(); ++i) {
    line += cells[i];
    const std::size_t width = WidthOf(cells[i]);
    line.append(width < widths[i] ? widths[i] - width + 2 : 2, L' ');
  }
  line.resize(line.find_last_not_of(L' ') + 1);
  return line + L'\n';
}

std::string Aligned(const std::vector<Record>& records, bool isColored) {
  const std::vector<std::size_t> widths = WidthsOf(records);
  std::wstring text;
  std::wstring heading;
  for (const Record& record : records) {
    if (HeadingOf(record) != heading) {
      if (!heading.empty()) text += L'\n';
      heading = HeadingOf(record);
      text += isColored ? L"\x1B[1m" + heading + L"\x1B[0m\n" : heading + L"\n";
    }
    text += AlignedLine(CellsOf(record), widths);
  }
  return ToUtf8(text);
}

std::string Json(const std::vector<Record>& records) {
  auto list = nlohmann::ordered_json::array();
  for (const Record& record : records) {
    nlohmann::ordered_json entry;
    entry["page"] = ToUtf8(record.page);
    if (!record.tab.empty()) entry["tab"] = ToUtf8(record.tab);
    for (const Field& field : record.fields) {
      if (field.isNumber) {
        entry[field.key] = ParseNumber(field.text, 10);
      } else {
        entry[field.key] = ToUtf8(field.text);
      }
    }
    for (const MeaningChoice& choice : record.choices) {
      entry["choices"].push_back(
          {{"value", static_cast<std::int32_t>(choice.number)}, {"text", ToUtf8(choice.text)}});
    }
    list.push_back(std::move(entry));
  }
  return list.dump(2) + "\n";
}

}  // namespace

std::wstring OnOneLine(std::wstring text) {
  std::ranges::replace_if(
      text, [](wchar_t unit) { return IsIn(kOrders, static_cast<std::uint32_t>(unit)); },
      L'\uFFFD');
  return text;
}

std::string OnOneLine(std::string_view utf8) {
  return ToUtf8(OnOneLine(FromUtf8(utf8)));
}

std::string Render(const std::vector<Record>& records, ListingStyle style) {
  switch (style) {
    case ListingStyle::kPlain:
      return Plain(records);
    case ListingStyle::kJson:
      return Json(records);
    case ListingStyle::kAligned:
    case ListingStyle::kColored:
      break;
  }
  return Aligned(records, style == ListingStyle::kColored);
}

}  // namespace tidewell
