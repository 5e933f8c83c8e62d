#include "ui/kinetic_scroller.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>

namespace tidewell {
namespace {

// Host and client in one: notes down, in order, what the scroller asks of it.
class Recorder : public ScrollerHost, public ScrollerClient {
 public:
  void StartTimer(unsigned id, unsigned milliseconds) override {
    Note("start", id, milliseconds);
    if (id == kFlingTimer || id == kBounceTimer) running = id;
  }
  void StopTimer(unsigned id) override {
    Note("stop", id);
    if (running == id) running = 0;
  }
  void CapturePointer() override { Note("capture"); }
  void ReleasePointer() override { Note("release"); }
  void* CreateSurface(int width, int height) override {
    Note("surface", width, height);
    return this;
  }
  void Update() override { Note("update"); }
  void Wait(unsigned milliseconds) override { Note("wait", milliseconds); }

  int Paint(int clientId, void* surface, void* context, int offset, int, int) override {
    EXPECT_EQ(clientId, 7);
    EXPECT_EQ(surface, this);
    lastContext = context;
    Note("paint", offset);
    return contentHeight;
  }
  bool Highlight(int clientId, int x, int contentY) override {
    EXPECT_EQ(clientId, 7);
    Note("highlight", x, contentY);
    return repaintHighlight;
  }
  void DragStarted(int) override { Note("drag"); }
  void Activate(int, int x, int contentY) override {
    Note("activate", x, contentY);
    if (onActivate) onActivate();
  }

  template <typename... Numbers>
  void Note(const char* what, Numbers... numbers) {
    notes << (notes.tellp() > 0 ? ", " : "") << what;
    ((notes << ' ' << numbers), ...);
  }
  std::string TakeNotes() {
    std::string taken = notes.str();
    notes.str("");
    return taken;
  }

  int contentHeight = 400;
  bool repaintHighlight = true;
  std::function<void()> onActivate;
  unsigned running = 0;
  void* lastContext = nullptr;
  std::ostringstream notes;
};

constexpr ScrollView kView{10, 20, 200, 100};

class Scroller : public testing::Test {
 protected:
  void Start(int contentHeight, int offset, int dpi = 96) {
    recorder_.contentHeight = contentHeight;
    scroller_.Initialise(7, recorder_, &recorder_, ScreenScale(dpi, dpi, false), kView);
    scroller_.BringIntoView(-offset, -offset + kView.height);
    recorder_.TakeNotes();
  }

  // Each line is an input, " > " and what must follow from it. Inputs: "down X Y @TICKS",
  // "move Y @TICKS", "up Y", "lost", "timer ID", and "run" for a timer's messages until it stops,
  // which gives the offsets alone.
  void Expect(const std::string& transcript) {
    std::istringstream lines(transcript);
    std::string line, actual;
    while (std::getline(lines, line)) {
      const std::string input = line.substr(0, line.find(" >"));
      const std::string answer = Perform(input);
      actual.append(input).append(answer.empty() ? " >" : " > ").append(answer).append("\n");
    }
    EXPECT_EQ(actual, transcript);
  }

  std::string Perform(const std::string& input) {
    std::istringstream words(input);
    std::string verb, at;
    words >> verb;
    if (verb == "run") return Run();
    int first = 0, second = 0;
    bool consumed = false;
    const auto ticks = [&at] { return static_cast<std::uint32_t>(std::stoul(at.substr(1))); };
    if (verb == "down") {
      words >> first >> second >> at;
      consumed = scroller_.PointerDown(first, second, ticks());
    } else if (verb == "move") {
      words >> first >> at;
      consumed = scroller_.PointerMove(first, ticks());
    } else if (verb == "up") {
      words >> first;
      consumed = scroller_.PointerUp(first);
    } else if (verb == "lost") {
      consumed = scroller_.PointerLost();
    } else if (verb == "timer") {
      words >> first;
      consumed = scroller_.Timer(static_cast<unsigned>(first));
    } else {
      ADD_FAILURE() << "unknown input: " << input;
    }
    return consumed ? recorder_.TakeNotes() : "ignored" + recorder_.TakeNotes();
  }

  std::string Run() {
    std::string offsets;
    const unsigned id = recorder_.running;
    for (int step = 0; id != 0 && recorder_.running == id && step < 200; ++step) {
      scroller_.Timer(id);
      offsets += (step ? " " : "") + std::to_string(scroller_.Offset());
    }
    recorder_.TakeNotes();
    return offsets;
  }

  Recorder recorder_;
  KineticScroller scroller_;
};

struct Gesture {
  const char* name;
  int contentHeight;
  int offset;
  const char* transcript;
};

class Gestures : public Scroller, public testing::WithParamInterface<Gesture> {};

TEST_P(Gestures, FollowTheRules) {
  Start(GetParam().contentHeight, GetParam().offset);
  Expect(GetParam().transcript);
}

const Gesture kPresses[] = {
    {"Tap", 400, -100,
     "down 50 80 @1000 > capture, start 1031 100\n"
     "move 91 @1040 >\n"
     "up 85 > release, stop 1031, highlight 50 160, paint -100, update, wait 50, activate 50 "
     "160\n"},
    {"HoldThenTap", 400, -100,
     "down 50 80 @1000 > capture, start 1031 100\n"
     "timer 1031 > stop 1031, highlight 50 160, paint -100, update\n"
     "timer 1031 >\n"
     "up 80 > release, stop 1031, activate 50 160\n"},
    {"HoldThenDrag", 400, -100,
     "down 50 80 @1000 > capture, start 1031 100\n"
     "timer 1031 > stop 1031, highlight 50 160, paint -100, update\n"
     "move 92 @1200 > stop 1031, drag, paint -88, update\n"
     "timer 1031 >\n"},
    {"PressTakenAwayFromAHold", 400, 0,
     "down 50 80 @1000 > capture, start 1031 100\n"
     "timer 1031 > stop 1031, highlight 50 60, paint 0, update\n"
     "lost > release, stop 1031, drag, paint 0, update\n"
     "up 80 > ignored\n"},
    {"PressTakenAwayFromADrag", 400, 0,
     "down 50 80 @1000 > capture, start 1031 100\n"
     "move 100 @1010 > stop 1031, drag, paint 20, update\n"
     "lost > release, start 1032 50\n"
     "run > 10 4 0 0\n"},
    {"NothingPressed", 400, 0,
     "move 50 @1 > ignored\n"
     "up 50 > ignored\n"
     "lost > ignored\n"
     "timer 1030 >\n"
     "timer 1031 >\n"
     "timer 1032 >\n"
     "timer 1033 > ignored\n"},
};

const Gesture kDrags[] = {
    {"ReleaseWithSixPixelsOverTwoMovesRests", 400, -100,
     "down 50 80 @1000 > capture, start 1031 100\n"
     "move 92 @1030 > stop 1031, drag, paint -88, update\n"
     "move 94 @1050 > paint -86, update\n"
     "move 95 @1075 > paint -85, update\n"
     "up 98 > release\n"
     "down 50 80 @2000 > capture, start 1031 100\n"},
    {"ReleaseWithSevenFlings", 400, -200,  // 45 / 45 * 7 = 7
     "down 50 80 @1000 > capture, start 1031 100\n"
     "move 92 @1030 > stop 1031, drag, paint -188, update\n"
     "move 94 @1050 > paint -186, update\n"
     "move 95 @1075 > paint -185, update\n"
     "up 99 > release, start 1030 70\n"
     "run > -178 -171 -165 -159 -153 -148 -143 -138 -133 -129 -125 -121 -117 -114 -111 -108 -105 "
     "-102 -99 -96 -94\n"},
    {"UpwardsTheCeilingRunsShorter", 400, -100,  // v = -7
     "down 50 80 @1000 > capture, start 1031 100\n"
     "move 68 @1030 > stop 1031, drag, paint -112, update\n"
     "move 66 @1050 > paint -114, update\n"
     "move 65 @1075 > paint -115, update\n"
     "up 61 > release, start 1030 70\n"
     "run > -121 -127 -132 -137 -142 -146 -150 -154 -158 -161 -164 -167 -170 -172 -174 -176 -178 "
     "-180 -182 -184 -185\n"},
    {"FlingFrom150SlowsInThreeBands", 4000, -2000,  // 45 / 30 * 100 = 150
     "down 50 20 @1000 > capture, start 1031 100\n"
     "move 120 @1030 > stop 1031, drag, paint -1900, update\n"
     "up 120 > release, start 1030 70\n"
     "timer 1030 > paint -1780, update\n"         // 120
     "timer 1030 > paint -1684, update\n"         // 96
     "timer 1030 > paint -1597, update\n"         // 86.4
     "timer 1030 > paint -1519, update\n"         // 77.76
     "timer 1030 > paint -1449, update\n"         // 69.984
     "timer 1030 > paint -1386, update\n"         // 62.9856
     "timer 1030 > paint -1329, update\n"         // 56.687
     "timer 1030 > paint -1277, update\n"         // 51.018
     "timer 1030 > paint -1231, update\n"         // 45.916
     "timer 1030 > paint -1189, update\n"         // 41.325
     "timer 1030 > paint -1151, update\n"         // 37.192
     "timer 1030 > paint -1116, update\n"},       // 34.961
    {"AVelocityOf200IsNotAbove200", 4000, -2000,  // 45 / 45 * 200
     "down 50 20 @1000 > capture, start 1031 100\n"
     "move 220 @1045 > stop 1031, drag, paint -1800, update\n"
     "up 220 > release, start 1030 70\n"
     "timer 1030 > paint -1640, update\n"         // 160
     "timer 1030 > paint -1512, update\n"},       // 128
    {"AVelocityOf100IsNotAbove100", 4000, -2000,  // 45 / 45 * -100
     "down 50 120 @1000 > capture, start 1031 100\n"
     "move 20 @1045 > stop 1031, drag, paint -2100, update\n"
     "up 20 > release, start 1030 70\n"
     "timer 1030 > paint -2190, update\n"              // -90
     "timer 1030 > paint -2271, update\n"},            // -81
    {"OneTickCountCountsAsAMillisecond", 4000, -2000,  // 45 / 1 * 7 = 315
     "down 50 80 @1000 > capture, start 1031 100\n"
     "move 92 @1010 > stop 1031, drag, paint -1988, update\n"
     "move 93 @1010 > paint -1987, update\n"
     "move 94 @1010 > paint -1986, update\n"
     "up 99 > release, start 1030 70\n"
     "timer 1030 > paint -1765, update\n"    // 220.5
     "timer 1030 > paint -1610, update\n"    // 154.35
     "timer 1030 > paint -1486, update\n"},  // 123.48
    {"TicksWrapAround", 4000, -2000,         // 45 / (29 - -16) * 30 = 30
     "down 50 50 @4294967280 > capture, start 1031 100\n"
     "move 80 @29 > stop 1031, drag, paint -1970, update\n"
     "up 80 > release, start 1030 70\n"
     "timer 1030 > paint -1941, update\n"},       // 28.2
    {"TooSlowToMoveAFlingEndsAtOnce", 400, -100,  // 45 / 1000 * 12 = 0.54
     "down 50 80 @1000 > capture, start 1031 100\n"
     "move 92 @2000 > stop 1031, drag, paint -88, update\n"
     "up 92 > release, start 1030 70\n"
     "timer 1030 > paint -88, update, stop 1030\n"
     "down 50 80 @3000 > capture, start 1031 100\n"},
};

const Gesture kBounces[] = {
    {"BeyondTheTop", 400, 0,
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 85 @1010 > stop 1031, drag, paint 25, update\n"
     "move 85 @1020 > paint 25, update\n"
     "move 85 @1030 > paint 25, update\n"
     "up 85 > release, start 1032 50\n"
     "timer 1032 > paint 12, update\n"
     "timer 1032 > paint 4, update\n"
     "timer 1032 > paint 0, update\n"
     "timer 1032 > stop 1032, paint 0, update\n"
     "down 50 60 @2000 > capture, start 1031 100\n"},
    {"OnePixelBeyondTheTop", 400, -11,
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 72 @1010 > stop 1031, drag, paint 1, update\n"
     "move 72 @1020 > paint 1, update\n"
     "move 72 @1030 > paint 1, update\n"
     "up 72 > release, start 1032 50\n"
     "run > 0 0 0 0\n"},
    {"BeyondTheBottom", 400, -300,
     "down 50 100 @1000 > capture, start 1031 100\n"
     "move 55 @1010 > stop 1031, drag, paint -345, update\n"
     "move 55 @1020 > paint -345, update\n"
     "move 55 @1030 > paint -345, update\n"
     "up 55 > release, start 1032 50\n"
     "run > -323 -319 -319 -300\n"},
    {"ShortContentPulledDown", 60, 0,
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 90 @1010 > stop 1031, drag, paint 30, update\n"
     "move 90 @1020 > paint 30, update\n"
     "move 90 @1030 > paint 30, update\n"
     "up 90 > release, start 1032 50\n"
     "run > 15 6 1 0\n"},
    {"ShortContentPushedUp", 60, 0,
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 30 @1010 > stop 1031, drag, paint -30, update\n"
     "move 30 @1020 > paint -30, update\n"
     "move 30 @1030 > paint -30, update\n"
     "up 30 > release, start 1032 50\n"
     "run > -15 -6 -1 0\n"},
    {"FlingIntoTheEnd", 400, -20,  // 45 / 45 * 50 = 50, then 45
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 110 @1045 > stop 1031, drag, paint 30, update\n"
     "up 110 > release, start 1030 70\n"
     "timer 1030 > paint 75, update, start 1032 50, stop 1030\n"
     "run > 37 14 2 0\n"
     "down 50 60 @2000 > capture, start 1031 100\n"},
};

const Gesture kCatches[] = {
    {"CatchingAFlingSelectsNothingAndTheNextTapDoes", 400, -200,
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 100 @1045 > stop 1031, drag, paint -160, update\n"
     "up 100 > release, start 1030 70\n"
     "timer 1030 > paint -122, update\n"  // 37.6
     "down 50 60 @1200 > capture, stop 1030\n"
     "timer 1030 >\n"
     "timer 1031 >\n"
     "up 60 > release\n"
     "down 50 60 @1300 > capture, start 1031 100\n"
     "up 60 > release, stop 1031, highlight 50 162, paint -122, update, wait 50, activate 50 "
     "162\n"},
    {"CatchingABounceSnaps", 400, 0,
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 100 @1010 > stop 1031, drag, paint 40, update\n"
     "move 100 @1020 > paint 40, update\n"
     "move 100 @1030 > paint 40, update\n"
     "up 100 > release, start 1032 50\n"
     "timer 1032 > paint 20, update\n"
     "down 50 60 @1200 > capture, stop 1032, paint 0, update\n"
     "timer 1032 >\n"
     "up 60 > release\n"},
    {"CatchingTheBounceOfASlowFling", 400, -25,  // 45 / 600 * 27 = 2.025, then 1.88
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 85 @1600 > stop 1031, drag, paint 0, update\n"
     "up 87 > release, start 1030 70\n"
     "timer 1030 > paint 2, update, start 1032 50, stop 1030\n"
     "down 50 60 @2000 > capture, stop 1032, paint 0, update\n"
     "up 60 > release\n"},
    {"ACaughtListDragsOnAndLeavesNoTrace", 400, -200,
     "down 50 60 @1000 > capture, start 1031 100\n"
     "move 100 @1045 > stop 1031, drag, paint -160, update\n"
     "up 100 > release, start 1030 70\n"
     "down 50 60 @1100 > capture, stop 1030\n"
     "move 72 @1110 > stop 1031, drag, paint -148, update\n"
     "move 72 @1120 > paint -148, update\n"
     "move 72 @1130 > paint -148, update\n"
     "up 72 > release\n"
     "down 50 60 @2000 > capture, start 1031 100\n"
     "up 60 > release, stop 1031, highlight 50 188, paint -148, update, wait 50, activate 50 "
     "188\n"},
};

std::string NameOf(const testing::TestParamInfo<Gesture>& info) {
  return info.param.name;
}
INSTANTIATE_TEST_SUITE_P(Presses, Gestures, testing::ValuesIn(kPresses), NameOf);
INSTANTIATE_TEST_SUITE_P(Drags, Gestures, testing::ValuesIn(kDrags), NameOf);
INSTANTIATE_TEST_SUITE_P(Bounces, Gestures, testing::ValuesIn(kBounces), NameOf);
INSTANTIATE_TEST_SUITE_P(Catches, Gestures, testing::ValuesIn(kCatches), NameOf);

TEST_F(Scroller, ThePressMustHitTheViewEdgesIncluded) {
  struct Case {
    int x, y;
    bool hit;
  };
  const Case cases[] = {{10, 20, true},  {210, 120, true}, {9, 20, false},
                        {10, 19, false}, {211, 60, false}, {50, 121, false}};
  for (const Case& c : cases) {
    Start(400, 0);
    EXPECT_EQ(scroller_.PointerDown(c.x, c.y, 0), c.hit) << c.x << "," << c.y;
  }
}

TEST_F(Scroller, TheDeadZoneGrowsWithTheResolution) {
  struct Case {
    int dpi, distance;
    bool drags;
  };
  const Case cases[] = {{96, 11, false},  {96, 12, true},  {96, -11, false}, {96, -12, true},
                        {131, 15, false}, {131, 16, true}, {192, 23, false}, {192, 24, true}};
  for (const Case& c : cases) {
    Start(400, -100, c.dpi);
    scroller_.PointerDown(50, 60, 0);
    scroller_.PointerMove(60 + c.distance, 10);
    EXPECT_EQ(scroller_.Moving(), c.drags) << c.dpi << " " << c.distance;
  }
}

TEST_F(Scroller, AHighlightThatChangesNothingIsNotRepainted) {
  Start(400, 0);
  recorder_.repaintHighlight = false;
  Expect(
      "down 50 60 @1000 > capture, start 1031 100\n"
      "timer 1031 > stop 1031, highlight 50 40\n");
}

TEST_F(Scroller, ContentThatGrowsDuringABounceEndsItWhereItIs) {
  Start(400, -300);
  Expect(
      "down 50 100 @1000 > capture, start 1031 100\n"
      "move 55 @1010 > stop 1031, drag, paint -345, update\n"
      "move 55 @1020 > paint -345, update\n"
      "move 55 @1030 > paint -345, update\n"
      "up 55 > release, start 1032 50\n"
      "timer 1032 > paint -323, update\n");
  recorder_.contentHeight = 800;
  Expect("run > -319 -319 -319\n");
  EXPECT_FALSE(scroller_.Moving());
}

TEST_F(Scroller, BeginsAtTheTopAndAgainWheneverItIsInitialised) {
  Start(400, -100);
  scroller_.PointerDown(50, 60, 0);
  scroller_.PointerMove(100, 10);
  recorder_.TakeNotes();
  scroller_.Initialise(7, recorder_, &recorder_, ScreenScale(), kView);
  EXPECT_EQ(recorder_.TakeNotes(), "stop 1031, release, surface 200 100, paint 0");
  EXPECT_FALSE(scroller_.Moving());
  EXPECT_EQ(scroller_.ContentHeight(), 400);
}

TEST_F(Scroller, AnActivationMayFillTheListAnew) {
  Start(400, -100);
  recorder_.onActivate = [this] {
    scroller_.Initialise(7, recorder_, &recorder_, ScreenScale(), kView);
  };
  scroller_.PointerDown(50, 60, 0);
  scroller_.PointerUp(60);
  EXPECT_EQ(scroller_.Offset(), 0);
  EXPECT_FALSE(scroller_.PointerUp(60));
}

TEST_F(Scroller, ResizingMakesOneBitmapAndStaysWithinTheEnds) {
  struct Case {
    int offset, height;
    const char* notes;
  };
  const Case cases[] = {{-300, 150, "surface 200 150, paint -300, paint -250, update"},
                        {-300, 60, "surface 200 60, paint -300"},
                        {-300, 500, "surface 200 500, paint -300, paint 0, update"},
                        {0, 500, "surface 200 500, paint 0"}};
  for (const Case& c : cases) {
    Start(400, c.offset);
    EXPECT_FALSE(scroller_.Resize(200, 100));
    EXPECT_TRUE(scroller_.Resize(200, c.height));
    EXPECT_EQ(recorder_.TakeNotes(), c.notes);
  }
}

TEST_F(Scroller, APaintContextIsHandedOnAndAnUnchangedOneCostsNothing) {
  Start(400, 0);
  int context = 0;
  EXPECT_TRUE(scroller_.SetPaintContext(&context, true));
  EXPECT_EQ(recorder_.TakeNotes(), "paint 0, update");
  EXPECT_EQ(recorder_.lastContext, &context);
  EXPECT_FALSE(scroller_.SetPaintContext(&context, true));
  EXPECT_TRUE(scroller_.SetPaintContext(nullptr, false));
  EXPECT_EQ(recorder_.TakeNotes(), "");
}

TEST_F(Scroller, BringsARowIntoViewAndScrollsNoFurther) {
  struct Case {
    int from, top, bottom, offset;
  };
  const Case cases[] = {{-100, 100, 134, -100}, {-100, 90, 124, -90}, {-100, 170, 204, -104},
                        {-100, 0, 34, 0},       {0, 366, 400, -300},  {0, 50, 250, -50}};
  for (const Case& c : cases) {
    Start(400, c.from);
    scroller_.BringIntoView(c.top, c.bottom);
    EXPECT_EQ(scroller_.Offset(), c.offset) << c.from << " " << c.top;
  }
}

TEST_F(Scroller, WorksWithoutAClient) {
  scroller_.Initialise(7, recorder_, nullptr, ScreenScale(), kView);
  EXPECT_EQ(recorder_.TakeNotes(), "surface 200 100");
  Expect(
      "down 50 60 @1000 > capture, start 1031 100\n"
      "timer 1031 > stop 1031\n"
      "move 80 @1010 > stop 1031, update\n"
      "up 80 > release, start 1030 70\n"
      "down 50 60 @1100 > capture, stop 1030, update\n"
      "up 60 > release\n"
      "down 50 60 @1200 > capture, start 1031 100\n"
      "up 60 > release, stop 1031\n");
}

}  // namespace
}  // namespace tidewell
