#include "backup/registry_text.h"

#include <gtest/gtest.h>

#include "platform/memory/metered_registry.h"
#include "tests/support/catalog_support.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot(kProductKey);

class RegistryText : public testing::Test {
 protected:
  std::string WriteTree(const std::wstring& path, TextLimits limits = kBackupLimits) {
    ByteSink sink;
    TextWriter writer(sink);
    WriteKeyTree(registry, path, writer, limits);
    EXPECT_TRUE(writer.Flush());
    return Utf8(TextOfBytes(sink.bytes));
  }

  std::wstring Export() {
    ByteSink sink;
    TextWriter writer(sink);
    ExportRegistryText(registry, catalog, kRoot, writer);
    EXPECT_TRUE(writer.Flush());
    return TextOfBytes(sink.bytes);
  }

  bool Import(std::wstring_view text) { return Import(text, registry); }
  bool Import(std::wstring_view text, Registry& target) {
    const std::vector<std::byte> bytes = BytesOf(text);
    BytesSource source(bytes);
    TextReader reader(source);
    return ImportRegistryText(target, catalog, reader);
  }

  std::string Dump(const std::wstring& path) { return DumpTree(registry, kUser, path); }

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

  EXPECT_EQ(Utf8(Export()), Utf8(L"\n[Software\\Velmont\\Tidewell]\n"
                                 L"\"SkinPath\"=\"\\My \"Skin\"\"\n"
                                 L"\"Color\"=dword:-1\n"
                                 L"\n[Software\\Velmont\\Tidewell\\B]\n"
                                 L"\"After\"=dword:-2147483648\n"
                                 L"\n[Software\\Velmont\\Tidewell\\B\\Inner]\n"
                                 L"\"Deep\"=dword:1\n"
                                 L"\n[Software\\Velmont\\Tidewell\\A]\n"
                                 L"\"\"=\"unnamed\nwith a break\"\n"
                                 L"\n[::Categories::]\n"
                                 L"\"Category\"=\"caf\x00E9\"\n"
                                 L"\"FiltersFlag\"=dword:0\n"
                                 L"\"Color\"=dword:-1\n"
                                 L"\"Category\"=\"Work\"\n"
                                 L"\"FiltersFlag\"=dword:-2147483647\n"
                                 L"\"Color\"=dword:16744448\n" +
                                 DefaultFiltersSection()));
}

TEST_F(RegistryText, AnAbsentKeyIsCreatedAndWrittenAsAHeaderAlone) {
  EXPECT_EQ(WriteTree(L"Gone"), "\n[Gone]\n");
  EXPECT_EQ(Dump(L"Gone"), "[Gone]\n");
}

TEST_F(RegistryText, AValueThatDoesNotFitEndsTheListOfItsKeyAlone) {
  struct Case {
    const char* what;
    std::wstring name;
    std::uint32_t type;
    std::size_t bytes;
    bool fits;
  };
  const Case cases[] = {
      {"127 units and a zero", L"long", kTypeString, 256, true},
      {"one unit more", L"long", kTypeString, 258, false},
      {"one byte more", L"long", kTypeString, 257, false},
      {"bytes of no written type", L"long", kTypeBinary, 257, false},
      {"a name of 255 units", std::wstring(255, L'n'), kTypeDword, 4, true},
      {"a name of 256 units", std::wstring(256, L'n'), kTypeDword, 4, false},
  };
  for (const Case& c : cases) {
    MemoryRegistry fresh;
    SetDword(fresh, kUser, L"K", L"before", 1);
    SetRaw(fresh, kUser, L"K", c.name, c.type, std::vector<std::byte>(c.bytes));
    SetDword(fresh, kUser, L"K", L"after", 2);
    SetDword(fresh, kUser, L"K\\Sub", L"in", 3);
    ByteSink sink;
    TextWriter writer(sink);
    WriteKeyTree(fresh, L"K", writer);
    writer.Flush();
    const std::wstring text = TextOfBytes(sink.bytes);
    EXPECT_NE(text.find(L"\"before\"=dword:1\n"), std::wstring::npos) << c.what;
    EXPECT_EQ(text.find(L"\"after\"=dword:2\n") != std::wstring::npos, c.fits) << c.what;
    EXPECT_TRUE(text.ends_with(L"\n[K\\Sub]\n\"in\"=dword:3\n")) << c.what;
  }
}

TEST_F(RegistryText, DataIsWrittenAsFarAsItIsText) {
  const std::byte unterminated[] = {std::byte{'a'}, std::byte{}, std::byte{'b'}, std::byte{}};
  SetRaw(registry, kUser, L"K", L"1", kTypeString, unterminated);
  SetRaw(registry, kUser, L"K", L"2", kTypeString, std::span(unterminated).first(3));
  SetRaw(registry, kUser, L"K", L"3", kTypeString, {});
  SetRaw(registry, kUser, L"K", L"4", kTypeString, BytesOf(std::wstring_view(L"x\0y", 3)));
  SetRaw(registry, kUser, L"K", L"5", kTypeDword, std::span(unterminated).first(3));
  SetRaw(registry, kUser, L"K", L"6", kTypeDword, {});
  SetRaw(registry, kUser, L"K", L"7", 2, BytesOf(L"%windir%"));
  EXPECT_EQ(WriteTree(L"K"),
            "\n[K]\n\"1\"=\"ab\"\n\"2\"=\"a\"\n\"3\"=\"\"\n\"4\"=\"x\"\n"
            "\"5\"=dword:6422625\n\"6\"=dword:0\n");
}

TEST_F(RegistryText, WhatDoesNotFitALineIsLeftOutWhole) {
  machine.Start({std::wstring(786, L'c'), std::wstring(787, L'd')});
  catalog.Filters()[0].title = std::wstring(784, L't');
  catalog.Filters()[1].title = std::wstring(785, L'u');
  const std::wstring text = Export();
  EXPECT_NE(text.find(std::wstring(786, L'c')), std::wstring::npos);
  EXPECT_EQ(text.find(L'd', text.find(L"Category\"=\"d")), std::wstring::npos);
  EXPECT_NE(text.find(std::wstring(784, L't')), std::wstring::npos);
  EXPECT_EQ(text.find(L"uuu"), std::wstring::npos);
  EXPECT_EQ(text.find(L"\"Index\"=dword:2\n"), std::wstring::npos);
  EXPECT_NE(text.find(L"\"Index\"=dword:3\n"), std::wstring::npos);

  std::wstring deep = L"K";
  for (int i = 0; i < 10; ++i) deep += L'\\' + std::wstring(99, L'k');
  SetDword(registry, kUser, deep, L"lost", 1);
  const std::string tree = WriteTree(L"K");
  EXPECT_EQ(std::count(tree.begin(), tree.end(), '['), 8);  // 701 units fit, 801 do not
  EXPECT_EQ(tree.find("lost"), std::string::npos);
}

TEST_F(RegistryText, ACopyHasRoomForStringsOf900Units) {
  SetString(registry, kUser, L"K", L"long", std::wstring(900, L'x'));
  SetString(registry, kUser, L"K", std::wstring(200, L'n'), std::wstring(900, L'y'));
  SetDword(registry, kUser, L"K", L"between", 1);
  SetString(registry, kUser, L"K", L"longer", std::wstring(901, L'z'));
  SetDword(registry, kUser, L"K", L"after", 1);
  EXPECT_EQ(WriteTree(L"K"), "\n[K]\n");
  // A line that the reader would split is left out; a string of more than 900 units ends the list.
  EXPECT_EQ(WriteTree(L"K", kCopyLimits),
            "\n[K]\n\"long\"=\"" + std::string(900, 'x') + "\"\n\"between\"=dword:1\n");
}

TEST_F(RegistryText, WritingOpensEveryKeyOnce) {
  SetDword(registry, kUser, L"K\\A\\B", L"x", 1);
  SetDword(registry, kUser, L"K\\C", L"x", 1);
  MeteredRegistry metered(registry);
  ByteSink sink;
  TextWriter writer(sink);
  WriteKeyTree(metered, L"K", writer);
  EXPECT_EQ(metered.Count(RegistryCall::kCreate), 4);
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 4);
  EXPECT_EQ(metered.CountWrites(), 0);
}

// ---- Reading

TEST_F(RegistryText, ATextThatDoesNotBeginWithAnEmptyLineIsRejected) {
  using namespace std::string_literals;
  const std::wstring section = L"[K]\n\"a\"=dword:1\n";
  const std::wstring rejected[] = {
      L"",
      section,
      L" \n" + section,
      L"\r\n" + section,
      L"\xFEFF\n" + section,  // a byte-order mark
      L"\0\n"s + section,
      L"\x0A0A\x4B5B",                    // one byte per character
      L"\x0A00\x5B00\x4B00\x5D00\x0A00",  // big-endian
      L"Windows Registry Editor Version 5.00\r\n\r\n[K]\r\n",
  };
  for (const std::wstring& text : rejected) {
    EXPECT_FALSE(Import(text)) << Utf8(text);
    EXPECT_EQ(Dump(L""), "[]\n") << Utf8(text);
  }
  EXPECT_TRUE(Import(L"\n"));
  EXPECT_TRUE(Import(L"\n\n\nnoise"));
  EXPECT_EQ(Dump(L""), "[]\n");
}

TEST_F(RegistryText, ASourceThatCannotBeRewoundIsRejected) {
  class Stuck final : public TextSource {
   public:
    bool Rewind() override { return false; }
    std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
      buffer[0] = std::byte{'\n'};
      buffer[1] = std::byte{};
      return 2;
    }
  } stuck;
  TextReader reader(stuck);
  EXPECT_FALSE(ImportRegistryText(registry, catalog, reader));
}

TEST_F(RegistryText, TheRegistryHoldsExactlyWhatTheRulesSay) {
  using namespace std::string_literals;
  const std::wstring full(1023, L'x');
  struct Case {
    const char* what;
    std::wstring text;  // after the first, empty line
    std::string tree;   // below K, which is empty before
  };
  const Case cases[] = {
      {"both kinds of values", L"[K]\n\"s\"=\"text\"\n\"d\"=dword:7\n", "d = 7\ns = \"text\"\n"},
      {"-1 is all bits", L"[K]\n\"d\"=dword:-1\n", "d = 4294967295\n"},
      {"numbers out of range stay at the ends",
       L"[K]\n\"a\"=dword:4294967295\n\"b\"=dword:-9999999999\n\"c\"=dword:2147483647\n",
       "a = 2147483647\nb = 2147483648\nc = 2147483647\n"},
      {"no number is 0", L"[K]\n\"a\"=dword:\n\"b\"=dword:zz\n", "a = 0\nb = 0\n"},
      {"an empty string", L"[K]\n\"s\"=\"\"\n\"ab\"=\"\"\n", " = \"\"\nab = \"\"\n"},
      {"the sentinel is deleted",
       L"[K]\n\"s\"=\"old\"\n\"t\"=\"old\"\n\"s\"=\"not_the_same\"\n\"t\"=\"Not_the_same\"\n",
       "t = \"Not_the_same\"\n"},
      {"the later line wins", L"[K]\n\"s\"=\"one\"\n\"S\"=\"two\"\n", "s = \"two\"\n"},
      {"a string line first of all", L"[K]\n\"a\"=\"b\"=dword:5\n", " = \"\"\n"},
      {"a malformed string empties the unnamed value", L"[K]\n\"\"=\"xyz\"\n \"s\"=\"abc\"\n",
       " = \"\"\n"},
      {"quotes and markers in a value", L"[K]\n\"s\"=\"a\"b\"=\"c\"\n", "s = \"a\"b\"=\"c\"\n"},
      {"a percent sign in a name", L"[K]\n\"50%\"=dword:1\n\"%%n\"=dword:2\n\"%n\"=\"text\"\n",
       "%n = \"text\"\n50% = 1\n"},
      {"an equals sign in a number's name", L"[K]\n\"ab=c\"=dword:1\n", "a = 1\n"},
      {"other lines", L"[K]\nnoise\n\"a\"=hex:00\n@=\"x\"\n; \"b\"=1\n\"d\"=dword:1\n", "d = 1\n"},
      {"CR LF inside a section", L"[K]\n\"s\"=\"abcd\"\r\n\"d\"=dword:3\r\n", " = \"\"\nd = 3\n"},
      {"CR LF after a header", L"[K]\r\n\"d\"=dword:3\r\n", "-"},
      {"an empty line ends the section", L"[K]\n\"d\"=dword:1\n\n\"e\"=dword:2\n", "d = 1\n"},
      {"a blank line does not", L"[K]\n\"d\"=dword:1\n \n\"e\"=dword:2\n", "d = 1\ne = 2\n"},
      {"a header within a section is noise", L"[K]\n[L]\n\"d\"=dword:1\n", "d = 1\n"},
      {"an empty section", L"[K]\n\n", ""},
      {"a header without its bracket", L"[K\n\"d\"=dword:1\n", "-"},
      {"a header as the last line", L"[K]", "-"},
      {"a number as the last line", L"[K]\n\"d\"=dword:12", "d = 12\n"},
      {"a number cut off", L"[K]\n\"d\"=dword:", "d = 0\n"},
      {"a string as the last line", L"[K]\n\"s\"=\"abcd\"", " = \"\"\n"},
      {"a subkey's header", L"[K\\L]\n\"d\"=dword:1\n", "[K\\L]\nd = 1\n"},
      {"a zero hides the rest of its line", L"[K]\n\"d\"=dword:1\0002\n\"s\"=\"ab\0cd\"\n"s,
       " = \"\"\nd = 1\n"},
      {"a line of 1023 units", L"[K]\n\"s\"=\"" + full.substr(7) + L"\"\n",
       "s = \"" + std::string(1016, 'x') + "\"\n"},
      {"a longer one is split",
       L"[K]\n\"s\"=\"" + full.substr(5) + L"\"d\"=dword:1\n\"e\"=dword:2\n",
       " = \"\"\nd = 1\ne = 2\n"},
      {"a split right before its end leaves an empty line",
       L"[K]\n\"d\"=dword:1" + full.substr(11) + L"\n\"e\"=dword:2\n", "d = 1\n"},
  };
  for (const Case& c : cases) {
    registry.DeleteTree(kUser, L"K");
    EXPECT_TRUE(Import(L"\n" + c.text)) << c.what;
    const std::string expected = c.tree == "-" ? "" : "[K]\n" + c.tree;
    EXPECT_EQ(Dump(L"K"), expected) << c.what;
    EXPECT_EQ(Dump(L"L"), "") << c.what;
  }
}

TEST_F(RegistryText, TheNameOfANumberEndsAfter127Units) {
  EXPECT_TRUE(Import(L"\n[K]\n\"" + std::wstring(128, L'n') + L"\"=dword:1\n\"" +
                     std::wstring(128, L's') + L"\"=\"text\"\n"));
  EXPECT_EQ(Dump(L"K"),
            "[K]\n" + std::string(127, 'n') + " = 1\n" + std::string(128, 's') + " = \"text\"\n");
}

TEST_F(RegistryText, AnEmptyHeaderNamesTheRootItself) {
  EXPECT_TRUE(Import(L"\n[]\n\"d\"=dword:1\n"));
  EXPECT_EQ(Dump(L""), "[]\nd = 1\n");
}

TEST_F(RegistryText, TheRootSectionReplacesTheTreeAndOthersMerge) {
  const auto prepare = [&] {
    registry.DeleteTree(kUser, kRoot);
    SetDword(registry, kUser, kRoot, L"old", 1);
    SetDword(registry, kUser, kRoot + L"\\Calendar", L"old", 1);
  };
  prepare();
  EXPECT_TRUE(Import(L"\n[Software\\Velmont\\Tidewell\\Calendar]\n\"new\"=dword:2\n"));
  EXPECT_EQ(Dump(kRoot),
            "[Software\\Velmont\\Tidewell]\nold = 1\n"
            "[Software\\Velmont\\Tidewell\\Calendar]\nnew = 2\nold = 1\n");
  prepare();
  EXPECT_TRUE(Import(L"\n[software\\velmont\\tidewell]\n\"new\"=dword:2\n"));
  EXPECT_EQ(Dump(kRoot),
            "[Software\\Velmont\\Tidewell]\nnew = 2\nold = 1\n"
            "[Software\\Velmont\\Tidewell\\Calendar]\nold = 1\n");
  prepare();
  EXPECT_TRUE(Import(L"\n[Software\\Velmont\\Tidewell]\n\"new\"=dword:2\n"));
  EXPECT_EQ(Dump(kRoot), "[Software\\Velmont\\Tidewell]\nnew = 2\n");
}

TEST_F(RegistryText, AKeyThatCannotBeCreatedEndsTheImportThere) {
  MeteredRegistry metered(registry);
  metered.Meter().FailNth(4);  // create, set, create, set: the second section's value is lost
  EXPECT_TRUE(Import(L"\n[A]\n\"x\"=dword:1\n\n[B]\n\"x\"=dword:1\n\n[C]\n", metered));
  EXPECT_EQ(Dump(L"C"), "[C]\n");
  registry.DeleteTree(kUser, L"C");
  metered.Meter().Reset();
  metered.Meter().FailNth(3);
  EXPECT_FALSE(Import(L"\n[A]\n\"x\"=dword:2\n\n[B]\n\"x\"=dword:1\n\n[C]\n", metered));
  EXPECT_EQ(Dump(L""), "[]\n[A]\nx = 2\n[B]\n");
}

TEST_F(RegistryText, CategoriesTakeFlagsAndColourByTheirExactName) {
  struct Case {
    const char* what;
    const wchar_t* text;  // after the section's header
    std::uint32_t flags;
    std::uint32_t color;
  };
  const Case cases[] = {
      {"as written", L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:-1\n\"Color\"=dword:255\n",
       0xFFFFFFFF, 255},
      {"no line end at the last line",
       L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:3\n\"Color\"=dword:25", 3, 25},
      {"another letter case",
       L"\"Category\"=\"work\"\n\"FiltersFlag\"=dword:3\n\"Color\"=dword:2\n", 9, 8},
      {"names of lines do not matter but for the colour's",
       L"\"x\"=\"Work\"\n\"y\"=dword:3\n\"COLOR\"=dword:2\n", 3, 2},
      {"one line more before the colour",
       L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:3\n\"Icon\"=dword:7\n\"Color\"=dword:2\n", 3,
       2},
      {"one line more that is no number",
       L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:3\nnoise\n\"Color\"=dword:2\n", 3, 2},
      {"the record after an unknown one",
       L"\"Category\"=\"Gone\"\n\"FiltersFlag\"=dword:3\n\"Color\"=dword:2\n"
       L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:5\n\"Color\"=dword:4\n",
       5, 4},
      {"the end of the text within a record", L"\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:3\n",
       9, 8},
      {"after the section's end",
       L"\n\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:3\n\"Color\"=dword:2\n", 9, 8},
  };
  for (const Case& c : cases) {
    machine.Start({L"Work"});
    CategoryRecord& work = *catalog.FindCategory(L"Work");
    work.filterFlags = 9;
    work.color = 8;
    EXPECT_TRUE(Import(std::wstring(L"\n[::Categories::]\n") + c.text)) << c.what;
    EXPECT_EQ(work.filterFlags, c.flags) << c.what;
    EXPECT_EQ(work.color, c.color) << c.what;
  }
}

TEST_F(RegistryText, SpecialSectionsAreNamedExactly) {
  machine.Start({L"Work"});
  EXPECT_TRUE(Import(L"\n[::categories::]\n\"Category\"=\"Work\"\n\"FiltersFlag\"=dword:3\n"));
  EXPECT_EQ(catalog.FindCategory(L"Work")->filterFlags, 0u);
  EXPECT_EQ(Dump(L"::categories::"), "[::categories::]\nCategory = \"Work\"\nFiltersFlag = 3\n");
}

TEST_F(RegistryText, FiltersTakeTheirValuesByIndexAndAMalformedLineKeepsTheOneBefore) {
  machine.Start();
  EXPECT_TRUE(
      Import(L"\n[::Filters::]\n"
             L"\"FilterName\"=\"Home\"\n\"Index\"=dword:3\n\"VisibleState\"=dword:0\n"
             L"\"IncludeUncategorized\"=dword:-5\n"
             L"\"FilterName\"=\"Nowhere\"\n\"Index\"=dword:33\n\"VisibleState\"=dword:0\n"
             L"\"IncludeUncategorized\"=dword:1\n"
             L"no name\n\"Index\"=dword:5\nnoise\n\"IncludeUncategorized\"=dword:0\n"
             L"\"FilterName\"=\"Cut off\"\n\"Index\"=dword:6\n\"VisibleState\"=dword:0\n"));
  const auto show = [&](std::size_t index) {
    const FilterRecord& filter = catalog.Filters()[index - 1];
    return Utf8(filter.title) + (filter.visible ? " visible" : " hidden") +
           (filter.includeUncategorized ? " all" : "");
  };
  EXPECT_EQ(show(3), "Home hidden all");
  EXPECT_EQ(show(5), "Nowhere hidden");
  EXPECT_EQ(show(6), "Filter 6 visible");
  EXPECT_EQ(show(32), "Filter 32 visible");
}

TEST_F(RegistryText, WhatABackupCanHoldComesBackTheSame) {
  machine.Start({L"Home", L"Work"});
  registry.DeleteTree(kUser, kRoot);
  SetString(registry, kUser, kRoot, L"a b%", L"100% \"quoted\" =dword: [x]");
  SetString(registry, kUser, kRoot + L"\\Tab [1]\\\x4E2D", L"n", std::wstring(127, L'\x20AC'));
  for (const std::uint32_t number : {0u, 1u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
    SetDword(registry, kUser, kRoot + L"\\N", FormatDecimal(static_cast<std::int32_t>(number)),
             number);
  }
  catalog.FindCategory(L"Home")->color = 5;
  catalog.Filters()[31].title = L"Last";
  catalog.Filters()[31].visible = false;
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

TEST_F(RegistryText, ReadingOpensEveryKeyOnceAndWritesEveryValueOnce) {
  MeteredRegistry metered(registry);
  EXPECT_TRUE(Import(L"\n[A]\n\"x\"=dword:0\n\"y\"=\"\"\n\n[A\\B]\n\"z\"=\"abcd\"\n", metered));
  EXPECT_EQ(metered.Count(RegistryCall::kCreate), 2);
  EXPECT_EQ(metered.CountWrites(), 3);
  EXPECT_EQ(metered.Count(RegistryCall::kQuery), 0);
}

}  // namespace
}  // namespace tidewell
