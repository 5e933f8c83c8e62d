#include "addons/note_folders.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/text.h"
#include "tests/support/test_device.h"

namespace tidewell {
namespace {

using Paths = std::vector<std::wstring>;
constexpr const wchar_t* kKey = L"Software\\Velmont\\Tidewell\\Notes\\Folders";

class NoteFoldersTest : public testing::Test, protected TestDevice {
 protected:
  NoteFoldersTest() {
    for (const wchar_t* path : {L"\\A\\", L"\\B\\", L"\\C\\"}) files.Put(path);
  }
  // The values "0", "1", "2" ...
  void PutList(const Paths& paths) {
    Delete(kKey);
    for (std::int32_t i = 0; i < std::ssize(paths); ++i) {
      Put(kKey, FormatDecimal(i), paths[static_cast<std::size_t>(i)]);
    }
  }
  Paths Stored() {
    Machine unrecorded = memory.Door();
    return NoteFolders(unrecorded).Paths();
  }
};

TEST_F(NoteFoldersTest, AreListedByTheirNumbersOnceAndOnlyWhereTheyAre) {
  PutList({L"\\B", L"\\gone", L"\\A"});
  Put(kKey, L"10", L"\\C");
  Put(kKey, L"3", L"\\b");
  Put(kKey, L"4", L"\\*");
  Put(kKey, L"5", 5);
  Put(kKey, L"07", L"\\");
  Put(kKey, std::wstring(300, L'n'), L"\\A");
  NoteFolders folders(machine);
  EXPECT_EQ(folders.Paths(), (Paths{L"\\B", L"\\A", L"\\C"}));
  EXPECT_FALSE(folders.Add(L"\\c\\"));
  EXPECT_TRUE(folders.Add(L"\\"));
  folders.Remove(1);
  folders.Save();
  EXPECT_EQ(Dump(kKey),
            "[Software\\Velmont\\Tidewell\\Notes\\Folders]\n0 = \"\\B\"\n1 = \"\\C\"\n");
  folders.Save();
  EXPECT_TRUE(folders.Add(L"\\A\\"));
  folders.Save();
  EXPECT_EQ(Stored(), (Paths{L"\\B", L"\\C", L"\\A"}));
}

// Cut short by a kill or by one refusal, wherever.
TEST_F(NoteFoldersTest, LoseNoneThatStaysHoweverTheSavingEnds) {
  for (const bool isKilled : {true, false}) {
    for (int call = 1; call < 40; ++call) {
      PutList({L"\\A", L"\\B", L"\\gone", L"\\C"});
      recorded.Calls().Reset();
      NoteFolders folders(machine);
      folders.Remove(0);
      folders.Add(L"\\A");  // to the end
      folders.Remove(0);
      recorded.Calls().Reset();
      if (isKilled) {
        recorded.Calls().FailFrom(call);
      } else {
        recorded.Calls().FailNth(call);
      }
      folders.Save();
      ASSERT_LT(recorded.Calls().FailableCount(), 40);
      for (const wchar_t* path : {L"\\C", L"\\A"}) {
        EXPECT_EQ(std::ranges::count(Stored(), path), 1) << call << isKilled;
      }
    }
    EXPECT_EQ(Stored(), (Paths{L"\\C", L"\\A"}));
    recorded.Calls().Reset();
  }
}

// A list that was not read is not written.
TEST_F(NoteFoldersTest, LeaveAKeyAloneThatWasReadInPart) {
  PutList({L"\\A", L"\\B"});
  const std::string before = Dump(kKey);
  for (int call = 1; call <= 4; ++call) {
    recorded.Calls().Reset();
    recorded.Calls().FailNth(call);
    NoteFolders folders(machine);
    recorded.Calls().Reset();
    folders.Add(L"\\C");
    folders.Save();
    EXPECT_EQ(Dump(kKey), before) << call;
  }
}

}  // namespace
}  // namespace tidewell
