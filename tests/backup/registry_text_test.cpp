#include "backup/registry_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "tests/support/backup_text.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"
#include "tests/text_format/rules_file.h"

namespace tidewell {
namespace {

using namespace std::string_literals;

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot(kProductKey);

class RegistryText : public testing::Test, protected TestDevice {
 protected:
  static std::string WriteTree(Registry& from) {
    return Utf8(Written([&](TextWriter& writer) { WriteKeyTree(from, L"K", writer); }));
  }
};

// ---- Writing

TEST_F(RegistryText, ABackupHoldsTheTreeDepthFirstThenCategoriesThenFilters) {
  LoadWith({L"Work", L"caf\x00E9"});
  Delete(kRoot);
  Put(kRoot, L"SkinPath", L"\\My \"Skin\"");
  Put(kRoot, L"Color", 0xFFFFFFFF);
  Put(kRoot + L"\\B\\Inner", L"Deep", 1);
  PutBytes(kRoot + L"\\B", L"State", {1, 2});
  Put(kRoot + L"\\B", L"After", 0x80000000);
  Put(kRoot + L"\\A", L"", L"unnamed\nwith a break");
  catalog.FindCategory(L"Work")->filterFlags = 0x80000001;
  catalog.FindCategory(L"Work")->color = 0x00FF8000;
  catalog.Filters()[31] = {L"Last", 3, false, true, 32};
  const std::string text = Utf8(ExportText(registry, catalog));
  EXPECT_EQ(text.substr(0, text.find("\"FilterName\"=\"Filter 2\"")),
            "\n[Software\\Velmont\\Tidewell]\n"
            "\"SkinPath\"=\"\\My \"Skin\"\"\n"
            "\"Color\"=dword:-1\n"
            "\n[Software\\Velmont\\Tidewell\\B]\n"
            "\"After\"=dword:-2147483648\n"
            "\n[Software\\Velmont\\Tidewell\\B\\Inner]\n"
            "\"Deep\"=dword:1\n"
            "\n[Software\\Velmont\\Tidewell\\A]\n"
            "\"\"=\"unnamed\nwith a break\"\n"
            "\n[::Categories::]\n"
            "\"Category\"=\"caf\xC3\xA9\"\n\"FiltersFlag\"=dword:0\n\"Color\"=dword:-1\n"
            "\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:-2147483647\n\"Color\"=dword:16744448\n"
            "\n[::Filters::]\n"
            "\"FilterName\"=\"Filter 1\"\n\"Index\"=dword:1\n"
            "\"VisibleState\"=dword:1\n\"IncludeUncategorized\"=dword:0\n");
  EXPECT_TRUE(text.ends_with(
      "\"IncludeUncategorized\"=dword:0\n\"FilterName\"=\"Last\"\n\"Index\"=dword:32\n"
      "\"VisibleState\"=dword:0\n\"IncludeUncategorized\"=dword:1\n"));
}

TEST_F(RegistryText, AValueThatDoesNotFitEndsTheListOfItsKeyAlone) {
  struct Case {
    std::size_t nameUnits;
    std::uint32_t type;
    std::size_t bytes;
    bool fits;
  };
  for (const Case& c : {Case{1, kTypeString, 256, true},  // 127 units and a zero
                        {1, kTypeString, 257, false},
                        {1, kTypeBinary, 257, false},
                        {255, kTypeDword, 4, true},
                        {256, kTypeDword, 4, false}}) {
    Delete(L"K");
    Put(L"K", L"before", 1);
    PutRaw(L"K", std::wstring(c.nameUnits, L'n'), c.type, std::vector<std::byte>(c.bytes));
    Put(L"K", L"after", 2);
    Put(L"K\\Sub", L"in", 3);
    const std::string text = WriteTree(registry);
    EXPECT_TRUE(text.starts_with("\n[K]\n\"before\"=dword:1\n")) << c.bytes;
    EXPECT_EQ(text.find("\"after\"") != std::string::npos, c.fits);
    EXPECT_TRUE(text.ends_with("\n[K\\Sub]\n\"in\"=dword:3\n")) << c.bytes;
  }
}

TEST_F(RegistryText, DataIsWrittenAsFarAsItIsText) {
  EXPECT_EQ(WriteTree(registry), "\n[K]\n");
  EXPECT_EQ(Dump(L"K"), "[K]\n") << "a missing key is created";
  const std::vector<std::byte> ab = BytesOf(L"ab");
  PutRaw(L"K", L"1", kTypeString, ab);
  PutRaw(L"K", L"2", kTypeString, std::span(ab).first(3));
  PutRaw(L"K", L"3", kTypeString, {});
  PutRaw(L"K", L"4", kTypeString, BytesOf(L"x\0y"s));
  PutRaw(L"K", L"5", kTypeDword, std::span(ab).first(3));
  PutRaw(L"K", L"6", kTypeDword, {});
  PutRaw(L"K", L"7", 2, BytesOf(L"%windir%"));
  EXPECT_EQ(WriteTree(registry),
            "\n[K]\n\"1\"=\"ab\"\n\"2\"=\"a\"\n\"3\"=\"\"\n\"4\"=\"x\"\n"
            "\"5\"=dword:6422625\n\"6\"=dword:0\n");
}

TEST_F(RegistryText, WhatDoesNotFitALineIsLeftOutWhole) {
  LoadWith({std::wstring(786, L'c'), std::wstring(787, L'd')});
  catalog.Filters()[0].title = std::wstring(784, L't');
  catalog.Filters()[1].title = std::wstring(785, L'u');
  const std::wstring text = ExportText(registry, catalog);
  const auto holds = [&](std::wstring_view part) { return text.find(part) != std::wstring::npos; };
  EXPECT_TRUE(holds(std::wstring(786, L'c')));
  EXPECT_FALSE(holds(L"ddd"));
  EXPECT_TRUE(holds(std::wstring(784, L't')));
  EXPECT_FALSE(holds(L"uuu"));
  EXPECT_FALSE(holds(L"\"Index\"=dword:2\n"));

  std::wstring deep = L"K";
  for (int i = 0; i < 4; ++i) deep += L'\\' + std::wstring(255, L'k');
  Put(deep, L"lost", 1);
  EXPECT_EQ(std::ranges::count(WriteTree(registry), '['), 4) << "769 units fit, 1025 do not";
}

// ---- Copies

TEST_F(RegistryText, WhatOneCallRefusesIsAllThatACopyLacks) {
  for (const wchar_t* key : {L"K", L"K\\A", L"K\\B"}) {
    Put(key, L"x", 1);
    Put(key, L"y", 2);
  }
  // A key that is refused takes its values along; the end of a list has none.
  constexpr int kLost[] = {6, 1, 1, 0, 2, 2, 1, 1, 0, 0, 2, 2, 1, 1, 0, 0, 0};
  for (std::size_t call = 0; call <= std::size(kLost); ++call) {
    recorded.Calls().Reset();
    recorded.Calls().FailNth(static_cast<int>(call) + 1);
    bool isWhole = false;
    const std::wstring text = Written([&](TextWriter& writer) {
      isWhole = WriteKeyTree(recorded, L"K", writer, TextKind::kCopy);
    });
    EXPECT_EQ(isWhole, call == std::size(kLost)) << call;
    const int lost = isWhole ? 0 : kLost[call];
    EXPECT_EQ(std::ranges::count(text, L':'), 6 - lost) << call;
  }
}

TEST_F(RegistryText, OnlyTheMarkOnTheSecondLineMakesACopy) {
  const std::wstring section =
      L"\n[K]\nhex:4:6100:07000000\n\"long\"=\"" + std::wstring(2000, L'x') + L"\"\n";
  EXPECT_TRUE(ImportText(registry, catalog, L"\n\n" + std::wstring(kCopyMark) + section));
  EXPECT_EQ(Dump(L"K").find("a = 7"), std::string::npos);
  EXPECT_EQ(Dump(L"K").find("long"), std::string::npos);
  EXPECT_TRUE(ImportText(registry, catalog, L"\n" + std::wstring(kCopyMark) + section));
  EXPECT_EQ(Stored(L"K", L"a"), 7u);
  EXPECT_NE(Dump(L"K").find("long"), std::string::npos);
}

// ---- Reading

TEST_F(RegistryText, ASurveyFindsTheFirstKeyOutsideTheProducts) {
  const auto outside = [](const std::wstring& text) {
    const std::vector<std::byte> bytes = BytesOf(text);
    TextReader reader(bytes);
    const TextSurvey survey = SurveyRegistryText(reader);
    EXPECT_TRUE(survey.isRegistryText);
    return survey.outsideKey;
  };
  const wchar_t* inside =
      L"\n[Software\\Velmont\\Tidewell]\n\n[SOFTWARE\\velmont\\tideWELL\\Deep\\er]\n\n"
      L"[Software\\\\Velmont\\Tidewell\\]\n\n[::Categories::]\n\n[::Filters::]\n";
  EXPECT_EQ(outside(inside), std::nullopt);
  for (const wchar_t* key :
       {L"", L"Software\\Velmont\\TidewellX", L"Software\\Velmont", L"Software\\Velmont\\",
        L"\\Software\\Velmont\\Tidewell", L"Control Panel", L"::categories::"}) {
    EXPECT_EQ(outside(L"\n[" + kRoot + L"]\n\n[" + key + L"]\n\n[Later]\n"), key) << Utf8(key);
  }
  EXPECT_EQ(outside(L"\n[" + kRoot + L"]\n[In the section]\n"), std::nullopt);
}

TEST_F(RegistryText, ATextThatDoesNotBeginWithAnEmptyLineIsRejected) {
  const std::wstring section = L"[K]\n\"a\"=dword:1\n";
  for (const std::wstring& text : {L""s, section, L"\r\n" + section,
                                   L"\xFEFF\n" + section,                    // a byte-order mark
                                   L"\0\n"s + section, L"\x0A0A\x4B5B"s}) {  // one byte a character
    EXPECT_FALSE(ImportText(registry, catalog, text)) << Utf8(text);
  }
  EXPECT_TRUE(ImportText(registry, catalog, L"\n\n\nnoise"));
  EXPECT_EQ(Dump(L""), "[]\n");
}

// What an import left on a device that held nothing.
std::string Left(MemoryRegistry& registry, CategoryCatalog& catalog) {
  std::string text = DumpTree(registry, kUser, L"").substr(3);  // without the root's own line
  const CategoryRecord& work = *catalog.FindCategory(L"Work");
  if (work.filterFlags != 9 || work.color != 8) {
    text += "Work " + std::to_string(work.filterFlags) + ' ' + std::to_string(work.color) + '\n';
  }
  for (const FilterRecord& filter : catalog.Filters()) {
    if (filter.title == L"Filter " + FormatDecimal(filter.index) && filter.visible) continue;
    text += "filter " + std::to_string(filter.index) + ' ' + Utf8(filter.title) +
            (filter.visible ? " visible" : " hidden") +
            (filter.includeUncategorized ? " all" : "") + '\n';
  }
  return text;
}

TEST_F(RegistryText, AnImportLeavesExactlyWhatTheRulesSay) {
  std::ifstream rules(TIDEWELL_IMPORT_RULES);
  int count = 0;
  for (std::string line; std::getline(rules, line);) {
    if (!line.starts_with("== ")) continue;
    SCOPED_TRACE(line);
    ++count;
    std::wstring text = L"\n";
    while (std::getline(rules, line) && line != "=>") text += Expanded(line);
    std::wstring left;
    while (std::getline(rules, line) && !line.empty()) left += Expanded(line);
    MemoryRegistry empty;
    LoadWith({L"Work"});
    catalog.FindCategory(L"Work")->filterFlags = 9;
    catalog.FindCategory(L"Work")->color = 8;
    EXPECT_TRUE(ImportText(empty, catalog, text));
    EXPECT_EQ(Left(empty, catalog), Utf8(left));
  }
  EXPECT_GT(count, 25);
}

TEST_F(RegistryText, AKeyThatCannotBeCreatedEndsTheImportThere) {
  const std::wstring text = L"\n[A]\n\"x\"=dword:1\n\n[B]\n\"x\"=dword:1\n\n[C]\n";
  recorded.Calls().FailNth(4);  // create, set, create, set: the second section's value is lost
  EXPECT_TRUE(ImportText(recorded, catalog, text));
  EXPECT_EQ(recorded.Count(RegistryCall::kCreate), 3) << "once each";
  EXPECT_EQ(recorded.CountWrites(), 2);
  EXPECT_EQ(Dump(L""), "[]\n[A]\nx = 1\n[B]\n[C]\n");
  Delete(L"C");
  recorded.Calls().Reset();
  recorded.Calls().FailNth(3);
  EXPECT_FALSE(ImportText(recorded, catalog, text));
  EXPECT_EQ(Dump(L""), "[]\n[A]\nx = 1\n[B]\n");
}

}  // namespace
}  // namespace tidewell
