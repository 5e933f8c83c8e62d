// Writes docs/pages.md, what the settings pages show: pages_table FILE TEXT_IDS, the latter being
// the header that has the English texts.
#include <cstdio>
#include <fstream>
#include <string>

#include "pages/page_list.h"
#include "platform/text.h"
#include "tests/support/test_device.h"
#include "tools/document.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kIntroduction =
    LR"(# The settings pages

*Written by the program `pages_table` from the pages in `src/pages/`; a test fails when this page is
older than they are. Change a page, then run `cmake --build --preset host --target pages_table &&
build/host/tools/pages_table docs/pages.md resources/text/text_ids.h`.*

The pages as a VGA device has them that has every other program installed, on 14 March 2008, in
English. `position` stores the chosen line, counted from 0; `number` and `name` store what is chosen
or typed. Numbers are those of the controls: the label, the control, its two buttons; or of the list
in which an option stands.
)";

// "#define IDS_NAME 617  // Text" gives the text to the number.
MemoryLibraries::Texts ReadTexts(const char* path) {
  MemoryLibraries::Texts texts;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    int id = 0;
    const auto comment = line.find("// ");
    if (comment == std::string::npos || std::sscanf(line.c_str(), "#define %*s %d", &id) != 1) {
      continue;
    }
    texts[id] = std::wstring(line.begin() + static_cast<std::ptrdiff_t>(comment) + 3, line.end());
  }
  return texts;
}

std::wstring Code(const std::wstring& text) {
  return L"`" + text + L"`";
}

const wchar_t* KindOf(const Row& row) {
  switch (row.stored) {
    case Stored::kState:
      return L"check";
    case Stored::kPosition:
      return L"position";
    case Stored::kData:
      return L"number of the line";
    case Stored::kName:
      return L"name";
    case Stored::kNumber:
      return L"number";
    case Stored::kText:
      return row.kind == RowKind::kPath ? L"path" : L"text";
    case Stored::kOrder:
      return L"order of the lines";
    case Stored::kByRules:
      return L"filled by the page";
    case Stored::kNothing:
      return L"not stored";
    case Stored::kCodes:
      return row.kind == RowKind::kIcon ? L"code of an icon" : L"codes of icons";
  }
  return L"";
}

class PagesWriter {
 public:
  explicit PagesWriter(const Language& language) : language_(language) {}

  void Page(const PageEntry& page, const PageTabs& tabs) {
    text_ += L"\n## " + Text(page.captionId) + L" (" + Code(page.className) + L")\n";
    for (const PageTab& tab : tabs) Tab(tab);
  }
  std::wstring Take() { return std::move(text_); }

 private:
  std::wstring Text(int id) const { return language_.Text(id); }

  void Tab(const PageTab& tab) {
    text_ += L"\n### " + Text(tab.titleId) +
             L"\n\n| Text | Controls | Stored | Value | Choices |\n|---|---|---|---|---|\n";
    if (const auto* list = std::get_if<OptionList>(&tab.body)) {
      for (const Option& option : list->options) {
        Line(Text(option.lineTextId), FormatDecimal(list->listId), option.editor);
      }
      return;
    }
    for (const Row* row : tab.Rows()) Line(Text(row->textId), Controls(*row), *row);
    if (const auto* list = std::get_if<ItemList>(&tab.body)) {
      for (const SettingLine& line : list->lines) Line(line, FormatDecimal(list->listId));
      Items(*list);
    }
  }

  void Items(const ItemList& list) {
    std::wstring settings;
    for (const Setting* setting : list.settings) {
      settings += (settings.empty() ? L"" : L", ") + Value(setting);
    }
    Cells(L"", FormatDecimal(list.listId), L"filled by the page", settings);
    for (const ItemButton& label : list.labels) Cells(Text(label.textId), FormatDecimal(label.id));
    for (const ItemButton& each : list.buttons) {
      Cells(Text(each.textId), FormatDecimal(each.id), L"button");
    }
  }

  void Cells(const std::wstring& text, const std::wstring& controls, const std::wstring& kind = {},
             const std::wstring& value = {}, const std::wstring& choices = {}) {
    text_ += L"| " + text + L" | " + controls + L" | " + kind + L" | " + value + L" | " + choices +
             L" |\n";
  }

  void Line(const std::wstring& text, const std::wstring& controls, const Row& row) {
    Cells(text, controls, KindOf(row), Value(row), ChoicesOf(row));
  }

  // A font's own name is the beginning of its six values'.
  void Line(const SettingLine& line, const std::wstring& controls) {
    const bool isFont = line.setting->Key() == SettingKey::kFonts;
    text_ += L"| " + line.TextIn(language_) + L" | " + controls + L" | " +
             (isFont ? L"font" : L"color") + L" | " + Value(line.setting) + L" |  |\n";
  }

  static std::wstring Controls(const Row& row) {
    std::wstring ids;
    for (const int id : {row.labelId, row.controlId, row.clearId, row.browseId}) {
      if (id) ids += (ids.empty() ? L"" : L", ") + FormatDecimal(id);
    }
    return ids;
  }

  static std::wstring Value(const Row& row) {
    std::wstring names;
    for (const DwordSetting* setting : row.order) {
      names += (names.empty() ? L"" : L", ") + Value(setting);
    }
    for (const Setting* setting :
         {static_cast<const Setting*>(row.number), static_cast<const Setting*>(row.text)}) {
      if (setting) names += (names.empty() ? L"" : L", ") + Value(setting);
    }
    return names;
  }

  static std::wstring Value(const Setting* setting) {
    const std::wstring key = LocationOf(setting->Key()).path;
    return Code(key.substr(key.rfind(L'\\') + 1) + L"\\" + setting->Name());
  }

  std::wstring ChoicesOf(const Row& row) const {
    std::wstring listed;
    for (const MarkerChoice& icon : row.icons) {
      listed += (listed.empty() ? L"" : L", ") + Text(icon.textId) + L" = " +
                FormatDecimal(static_cast<std::int32_t>(icon.value));
    }
    for (const Choice& choice : row.choices) {
      const std::wstring number = FormatDecimal(static_cast<std::int32_t>(choice.data));
      const std::wstring text = choice.TextIn(language_);
      listed += (listed.empty() ? L"" : L", ") + text;
      if (row.HoldsData() && text != number) listed += L" = " + number;
    }
    if (row.otherwise != kNoChoice) {
      listed += L"; else line " + FormatDecimal(row.otherwise);
      if (row.ofNoChoice == 0) listed += L", without one 0";
    }
    return listed;
  }

  const Language& language_;
  std::wstring text_;
};

// Markdown in plain ASCII, lines ended by a line feed.
std::string PagesDocument(const char* textIds) {
  TestDevice device;
  device.UseScreen(480, 640, 192);
  device.memory.libraries.Put(L"English", ReadTexts(textIds));
  device.InstallOtherPrograms();
  device.catalog.Add({L"Business", 1});
  device.language.Load(device.memory.libraries, L"English", {});
  PagesWriter writer(device.language);
  for (const PageEntry& page : kPages) {
    writer.Page(page, page.make(device.context)->Tabs());
  }
  const std::wstring text = kIntroduction + writer.Take();
  return {text.begin(), text.end()};
}

}  // namespace

}  // namespace tidewell

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: pages_table FILE TEXT_IDS\n", stderr);
    return 2;
  }
  if (tidewell::WriteDocument(argv[1], tidewell::PagesDocument(argv[2]))) return 0;
  std::perror(argv[1]);
  return 1;
}
