#include "app/single_instance.h"

#include "program_fixture.h"

namespace tidewell {

namespace {

TEST_F(ProgramTest, ARunningInstanceIsFoundAlsoWhileAPageHasTakenItsCaption) {
  EXPECT_FALSE(BringRunningInstanceForward());
  hasPages = true;
  Start();
  EXPECT_TRUE(BringRunningInstanceForward());
  RunRow(0);
  ASSERT_EQ(CaptionOf(Window()), L"");
  EXPECT_TRUE(BringRunningInstanceForward());
}

// Waits for its turn on a thread of its own, as a second process would.
DWORD WINAPI TryToStart(void* started) {
  StartTurn turn;
  SetEvent(static_cast<HANDLE>(started));
  return 0;
}

TEST(StartTurn, StartsGoOneAfterTheOther) {
  const HANDLE started = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  StartTurn first;
  ASSERT_TRUE(first.IsOurs());
  const HANDLE thread = CreateThread(nullptr, 0, TryToStart, started, 0, nullptr);
  EXPECT_EQ(WaitForSingleObject(started, 20), static_cast<DWORD>(WAIT_TIMEOUT));
  first.End();
  EXPECT_EQ(WaitForSingleObject(started, 5000), WAIT_OBJECT_0);
  WaitForSingleObject(thread, 5000);
  CloseHandle(thread);
  CloseHandle(started);
}

}  // namespace

}  // namespace tidewell
