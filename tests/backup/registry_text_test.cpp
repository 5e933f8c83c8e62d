#include "backup/registry_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "platform/memory/metered_registry.h"
#include "tests/backup/rules_file.h"
#include "tests/support/catalog_support.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using namespace std::string_literals;

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot(kProductKey);

class RegistryText : public testing::Test {
 protected:
  static std::string WriteTree(Registry& from, TextLimits limits = kBackupLimits) {
    ByteSink sink;
    TextWriter writer(sink);
    WriteKeyTree(from, L"K", writer, limits);
    EXPECT_TRUE(writer.Flush());
    return Utf8(TextOfBytes(sink.bytes));
  }
  std::wstring Export() { return ExportText(registry, catalog); }
  bool Import(std::wstring_view text) { return ImportText(registry, catalog, text); }
  std::string Dump(const std::wstring& path) { return DumpTree(registry, kUser, path); }
  void Put(const wchar_t* name, std::uint32_t type, std::span<const std::byte> data) {
    SetRaw(registry, kUser, L"K", name, type, data);
  }

  CatalogMachine machine;
  MemoryRegistry& registry = machine.memory.registry;
  CategoryCatalog& catalog = machine.catalog;
};

// ---- Writing

TEST_F(RegistryText, ABackupHoldsTheTreeDepthFirstThenCategoriesThenFilters) {
  machine.Start({L"Work", L"caf\x00E9"});
  registry.DeleteTree(kUser, kRoot);
  SetString(registry, kUser, kRoot, L"SkinPath", L"\\My \"Skin\"");
  SetDword(registry, kUser, kRoot, L"Color", 0xFFFFFFFF);
  SetDword(registry, kUser, kRoot + L"\\B\\Inner", L"Deep", 1);
  SetBinary(registry, kUser, kRoot + L"\\B", L"State", {1, 2});
  SetDword(registry, kUser, kRoot + L"\\B", L"After", 0x80000000);
  SetString(registry, kUser, kRoot + L"\\A", L"", L"unnamed\nwith a break");
  catalog.FindCategory(L"Work")->filterFlags = 0x80000001;
  catalog.FindCategory(L"Work")->color = 0x00FF8000;
  catalog.Filters()[31] = {L"Last", 3, false, true, 32};

  std::string expected =
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
      "\n[::Filters::]\n";
  for (int i = 1; i <= 31; ++i) {
    const std::string number = std::to_string(i);
    expected += "\"FilterName\"=\"Filter " + number + "\"\n\"Index\"=dword:" + number +
                "\n\"VisibleState\"=dword:1\n\"IncludeUncategorized\"=dword:0\n";
  }
  expected +=
      "\"FilterName\"=\"Last\"\n\"Index\"=dword:32\n"
      "\"VisibleState\"=dword:0\n\"IncludeUncategorized\"=dword:1\n";
  EXPECT_EQ(Utf8(Export()), expected);
}

TEST_F(RegistryText, AnAbsentKeyIsCreatedAndWrittenAsAHeaderAlone) {
  EXPECT_EQ(WriteTree(registry), "\n[K]\n");
  EXPECT_EQ(Dump(L"K"), "[K]\n");
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
    registry.DeleteTree(kUser, L"K");
    SetDword(registry, kUser, L"K", L"before", 1);
    Put(std::wstring(c.nameUnits, L'n').c_str(), c.type, std::vector<std::byte>(c.bytes));
    SetDword(registry, kUser, L"K", L"after", 2);
    SetDword(registry, kUser, L"K\\Sub", L"in", 3);
    const std::string text = WriteTree(registry);
    EXPECT_TRUE(text.starts_with("\n[K]\n\"before\"=dword:1\n")) << c.bytes;
    EXPECT_EQ(text.find("\"after\"=dword:2\n") != std::string::npos, c.fits) << c.bytes;
    EXPECT_TRUE(text.ends_with("\n[K\\Sub]\n\"in\"=dword:3\n")) << c.bytes;
  }
}

TEST_F(RegistryText, DataIsWrittenAsFarAsItIsText) {
  const std::vector<std::byte> ab = BytesOf(L"ab");
  Put(L"1", kTypeString, ab);
  Put(L"2", kTypeString, std::span(ab).first(3));
  Put(L"3", kTypeString, {});
  Put(L"4", kTypeString, BytesOf(L"x\0y"s));
  Put(L"5", kTypeDword, std::span(ab).first(3));
  Put(L"6", kTypeDword, {});
  Put(L"7", 2, BytesOf(L"%windir%"));
  EXPECT_EQ(WriteTree(registry),
            "\n[K]\n\"1\"=\"ab\"\n\"2\"=\"a\"\n\"3\"=\"\"\n\"4\"=\"x\"\n"
            "\"5\"=dword:6422625\n\"6\"=dword:0\n");
}

TEST_F(RegistryText, WhatDoesNotFitALineIsLeftOutWhole) {
  machine.Start({std::wstring(786, L'c'), std::wstring(787, L'd')});
  catalog.Filters()[0].title = std::wstring(784, L't');
  catalog.Filters()[1].title = std::wstring(785, L'u');
  const std::wstring text = Export();
  EXPECT_NE(text.find(std::wstring(786, L'c')), std::wstring::npos);
  EXPECT_EQ(text.find(L"ddd"), std::wstring::npos);
  EXPECT_NE(text.find(std::wstring(784, L't')), std::wstring::npos);
  EXPECT_EQ(text.find(L"uuu"), std::wstring::npos);
  EXPECT_EQ(text.find(L"\"Index\"=dword:2\n"), std::wstring::npos);
  EXPECT_NE(text.find(L"\"Index\"=dword:3\n"), std::wstring::npos);

  std::wstring deep = L"K";
  for (int i = 0; i < 10; ++i) deep += L'\\' + std::wstring(99, L'k');
  SetDword(registry, kUser, deep, L"lost", 1);
  const std::string tree = WriteTree(registry);
  EXPECT_EQ(std::count(tree.begin(), tree.end(), '['), 8);  // 701 units fit, 801 do not
  EXPECT_EQ(tree.find("lost"), std::string::npos);
}

TEST_F(RegistryText, ACopyHasRoomForStringsOf900Units) {
  SetString(registry, kUser, L"K", L"long", std::wstring(900, L'x'));
  SetString(registry, kUser, L"K", std::wstring(200, L'n'), std::wstring(900, L'y'));
  SetDword(registry, kUser, L"K", L"between", 1);
  SetString(registry, kUser, L"K", L"longer", std::wstring(901, L'z'));
  SetDword(registry, kUser, L"K", L"after", 1);
  EXPECT_EQ(WriteTree(registry), "\n[K]\n");
  // A line that the reader would split is left out; a string of more than 900 units ends the list.
  EXPECT_EQ(WriteTree(registry, kCopyLimits),
            "\n[K]\n\"long\"=\"" + std::string(900, 'x') + "\"\n\"between\"=dword:1\n");
}

// ---- Reading

TEST_F(RegistryText, ATextThatDoesNotBeginWithAnEmptyLineIsRejected) {
  const std::wstring section = L"[K]\n\"a\"=dword:1\n";
  for (const std::wstring& text : {L""s, section, L" \n" + section, L"\r\n" + section,
                                   L"\xFEFF\n" + section,                 // a byte-order mark
                                   L"\0\n"s + section, L"\x0A0A\x4B5B"s,  // one byte per character
                                   L"\x0A00\x5B00\x4B00\x5D00\x0A00"s,    // big-endian
                                   L"Windows Registry Editor Version 5.00\r\n\r\n[K]\r\n"s}) {
    EXPECT_FALSE(Import(text)) << Utf8(text);
  }
  EXPECT_TRUE(Import(L"\n"));
  EXPECT_TRUE(Import(L"\n\n\nnoise"));
  EXPECT_EQ(Dump(L""), "[]\n");

  class Stuck final : public TextSource {
   public:
    bool Rewind() override { return false; }
    std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
      buffer[0] = std::byte('\n');
      buffer[1] = std::byte();
      return 2;
    }
  } stuck;
  TextReader reader(stuck);
  EXPECT_FALSE(ImportRegistryText(registry, catalog, reader));
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
  std::string line;
  while (std::getline(rules, line) && !line.starts_with("== ")) {
  }
  int count = 0;
  for (; rules; ++count) {
    SCOPED_TRACE(line);
    std::wstring text = L"\n";
    while (std::getline(rules, line) && line != "=>") text += Expanded(line);
    std::wstring left;
    while (std::getline(rules, line) && !line.starts_with("== ")) {
      if (!line.empty()) left += Expanded(line);
    }
    MemoryRegistry empty;
    machine.Start({L"Work"});
    catalog.FindCategory(L"Work")->filterFlags = 9;
    catalog.FindCategory(L"Work")->color = 8;
    EXPECT_TRUE(ImportText(empty, catalog, text));
    EXPECT_EQ(Left(empty, catalog), Utf8(left));
  }
  EXPECT_GT(count, 25);
}

TEST_F(RegistryText, AKeyThatCannotBeCreatedEndsTheImportThere) {
  MeteredRegistry metered(registry);
  const std::wstring text = L"\n[A]\n\"x\"=dword:1\n\n[B]\n\"x\"=dword:1\n\n[C]\n";
  metered.Meter().FailNth(4);  // create, set, create, set: the second section's value is lost
  EXPECT_TRUE(ImportText(metered, catalog, text));
  EXPECT_EQ(Dump(L""), "[]\n[A]\nx = 1\n[B]\n[C]\n");
  registry.DeleteTree(kUser, L"C");
  metered.Meter().Reset();
  metered.Meter().FailNth(3);
  EXPECT_FALSE(ImportText(metered, catalog, text));
  EXPECT_EQ(Dump(L""), "[]\n[A]\nx = 1\n[B]\n");
}

TEST_F(RegistryText, WhatABackupCanHoldComesBackTheSame) {
  machine.Start({L"Home", L"Work"});
  SetString(registry, kUser, kRoot, L"a b%", L"100% \"quoted\" =dword: [\x0100]");
  SetString(registry, kUser, kRoot + L"\\Tab [1]\\\x4E2D", L"n", std::wstring(127, L'\x20AC'));
  for (const std::int32_t number : {0, 1, INT32_MAX, INT32_MIN, -1}) {
    SetDword(registry, kUser, kRoot + L"\\N", FormatDecimal(number),
             static_cast<std::uint32_t>(number));
  }
  catalog.FindCategory(L"Home")->color = 5;
  catalog.Filters()[31].title = L"Last";
  const std::string tree = Dump(kRoot);
  const std::wstring text = Export();

  SetDword(registry, kUser, kRoot + L"\\Later", L"x", 1);
  catalog.FindCategory(L"Home")->color = 6;
  catalog.ResetFilters();
  ASSERT_TRUE(Import(text));
  EXPECT_EQ(Dump(kRoot), tree);
  EXPECT_EQ(Utf8(Export()), Utf8(text));
}

TEST_F(RegistryText, AHundredThousandLinesAndAMegabyteInOneAreReadToTheirEnd) {
  std::wstring text = L"\n";
  for (int section = 0; section < 1000; ++section) {
    text += L"[K\\" + FormatDecimal(section) + L"]\n";
    for (int i = 0; i < 100; ++i) text += L"\"" + FormatDecimal(i) + L"\"=dword:1\n";
    text += L"\n";
  }
  text += L"[K\\Last]\n" + std::wstring(1 << 20, L'=') + L"\n\"end\"=dword:1\n";
  EXPECT_TRUE(Import(text));
  EXPECT_EQ(FindDword(registry, kUser, L"K\\999", L"99"), 1u);
  EXPECT_EQ(Dump(L"K\\Last"), "[K\\Last]\nend = 1\n");
}

TEST_F(RegistryText, EveryKeyIsOpenedOnceAndEveryValueWrittenOnce) {
  MeteredRegistry metered(registry);
  const std::wstring text = L"\n[K]\n\"x\"=dword:0\n\"y\"=\"\"\n\n[K\\B]\n\"z\"=\"abcd\"\n";
  EXPECT_TRUE(ImportText(metered, catalog, text));
  EXPECT_EQ(metered.Count(RegistryCall::kCreate), 2);
  EXPECT_EQ(metered.Count(RegistryCall::kFlush), 0);
  EXPECT_EQ(metered.CountWrites(), 3);
  EXPECT_EQ(metered.Count(RegistryCall::kQuery), 0);
  metered.Meter().Reset();
  WriteTree(metered);
  EXPECT_EQ(metered.Count(RegistryCall::kCreate), 2);
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 2);
  EXPECT_EQ(metered.CountWrites(), 0);
}

}  // namespace
}  // namespace tidewell
