#include "companion/listing.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "platform/text.h"

namespace tidewell {

namespace {

// A longer text pushes what follows to the right.
constexpr std::size_t kWidestColumn = 30;

// In cells of a terminal, nearly: a pair of surrogates is one character.
std::size_t WidthOf(const std::wstring& text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](wchar_t unit) { return unit < wchar_t{0xDC00} || unit > wchar_t{0xDFFF}; }));
}

// What would break the line, or be taken for an order by a terminal, becomes a sign.
std::wstring OnOneLine(std::wstring text) {
  std::ranges::replace_if(
      text, [](wchar_t unit) { return unit < L' ' || (unit >= 0x7F && unit < 0xA0); }, L'\uFFFD');
  return text;
}

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
