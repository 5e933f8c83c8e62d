#include "addons/alphabets.h"

#include <gtest/gtest.h>

#include "tests/support/test_device.h"

namespace tidewell {
namespace {

constexpr const wchar_t* kKey = L"Software\\Velmont\\Tidewell\\Contacts\\Alphabets";
const std::wstring kFolder = L"\\Tidewell\\CustomAlphabets\\";

TEST(AlphabetFiles, AreToldByTheFirstOfThreeCharacters) {
  const std::pair<const wchar_t*, bool> cases[] = {
      {L"Thai.txt", true},  {L"Latvian.txt", false}, {L"latin.txt", true}, {L"T.txt", true},
      {L".txt", false},     {L"A.b.txt", false},     {L"Greek.TXT", true}, {L"Index.txt", false},
      {L"Runes.dat", true}, {L"Runestab", false},    {L"Runetabc", true},  {L"Runes", false},
      {L"", false}};
  for (const auto& [name, isOne] : cases) {
    EXPECT_EQ(IsAlphabetFile(name), isOne) << testing::PrintToString(std::wstring(name));
  }
}

class AlphabetsTest : public testing::Test, protected TestDevice {
 protected:
  AlphabetsTest() {
    for (const wchar_t* name : {L"Latin.txt", L"Runes.txt", L"Latvian.txt", L"Folder.txt\\"}) {
      files.Put(kFolder + name);
    }
  }
  Alphabets alphabets{machine, L"\\Tidewell"};
};

TEST_F(AlphabetsTest, KeepTheCustomOnesInTheirKeyAndOfferThoseThatAreThere) {
  PutBytes(kKey, L"runes", {});  // whatever its type
  Put(kKey, L"Gone", 1);
  std::vector<Alphabet> offered = alphabets.Offered(kCyrillic | kGreek | kCustomAlphabets);
  const std::vector<Alphabet> expected = {
      {L"Latin", kLatin, false},           {L"Cyrillic", kCyrillic, true},
      {L"Hebrew", kHebrew, false},         {L"Greek", kGreek, true},
      {L"Latin", kCustomAlphabets, false}, {L"Runes", kCustomAlphabets, true}};
  EXPECT_EQ(offered, expected);
  EXPECT_EQ(alphabets.ActiveCustom(), std::vector<std::wstring>{L"runes"});

  offered[0].active = offered[4].active = true;
  EXPECT_EQ(alphabets.Activate(offered), kLatin | kCyrillic | kGreek | kCustomAlphabets);
  EXPECT_EQ(Dump(kKey),
            "[Software\\Velmont\\Tidewell\\Contacts\\Alphabets]\nLatin = 1\nrunes = 1\n");
  offered[4].active = offered[5].active = false;
  EXPECT_EQ(alphabets.Activate(offered), kLatin | kCyrillic | kGreek);
  EXPECT_EQ(Dump(kKey), "");
}

}  // namespace
}  // namespace tidewell
