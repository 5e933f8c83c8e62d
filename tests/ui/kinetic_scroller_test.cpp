#include "ui/kinetic_scroller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

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

template <typename... Columns>
using Table = const std::vector<std::tuple<Columns...>>;

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
    std::string verb;
    words >> verb;
    if (verb == "run") return Run();
    int first = 0, second = 0;
    words >> first >> second;
    const auto at = input.find('@');
    const std::uint32_t now =
        at < input.size() ? static_cast<std::uint32_t>(std::stoul(input.substr(at + 1))) : 0;
    const bool consumed = verb == "down"   ? scroller_.PointerDown(first, second, now)
                          : verb == "move" ? scroller_.PointerMove(first, now)
                          : verb == "up"   ? scroller_.PointerUp(first)
                          : verb == "lost" ? scroller_.PointerLost()
                                           : scroller_.Timer(static_cast<unsigned>(first));
    return (consumed ? "" : "ignored") + recorder_.TakeNotes();
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
  std::string name;
  int contentHeight = 0;
  int offset = 0;
  std::string transcript;
};

// gestures.txt: a heading "NAME HEIGHT OFFSET" and a transcript, then an empty line.
std::vector<Gesture> ReadGestures() {
  std::vector<Gesture> gestures;
  std::ifstream file(TIDEWELL_GESTURES);
  bool inGesture = false;
  for (std::string line; std::getline(file, line); inGesture = !line.empty()) {
    line.erase(std::min(line.find("  #"), line.size()));
    if (line.empty() || line[0] == '#') {
      line.clear();
    } else if (inGesture) {
      gestures.back().transcript.append(line).append("\n");
    } else {
      Gesture& gesture = gestures.emplace_back();
      std::istringstream(line) >> gesture.name >> gesture.contentHeight >> gesture.offset;
    }
  }
  return gestures;
}

class Gestures : public Scroller, public testing::WithParamInterface<Gesture> {};
INSTANTIATE_TEST_SUITE_P(Every, Gestures, testing::ValuesIn(ReadGestures()),
                         [](const auto& which) { return which.param.name; });

TEST_P(Gestures, FollowTheRules) {
  Start(GetParam().contentHeight, GetParam().offset);
  Expect(GetParam().transcript);
}

TEST(GestureFile, IsRead) {
  EXPECT_GE(ReadGestures().size(), 25u);
}

TEST_F(Scroller, ThePressMustHitTheViewEdgesIncluded) {
  Table<int, int, bool> cases{{10, 20, true},  {210, 120, true}, {9, 20, false},
                              {10, 19, false}, {211, 60, false}, {50, 121, false}};
  for (const auto& [x, y, isHit] : cases) {
    Start(400, 0);
    EXPECT_EQ(scroller_.PointerDown(x, y, 0), isHit) << x << "," << y;
  }
}

TEST_F(Scroller, TheDeadZoneGrowsWithTheResolution) {
  Table<int, int, bool> cases{{96, 11, false},  {96, 12, true},  {96, -11, false}, {96, -12, true},
                              {131, 15, false}, {131, 16, true}, {192, 23, false}, {192, 24, true}};
  for (const auto& [dpi, distance, drags] : cases) {
    Start(400, -100, dpi);
    scroller_.PointerDown(50, 60, 0);
    scroller_.PointerMove(60 + distance, 10);
    EXPECT_EQ(scroller_.Moving(), drags) << dpi << " " << distance;
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
  Table<int, int, std::string> cases{{-300, 150, "surface 200 150, paint -300, paint -250, update"},
                                     {-300, 60, "surface 200 60, paint -300"},
                                     {-300, 500, "surface 200 500, paint -300, paint 0, update"},
                                     {0, 500, "surface 200 500, paint 0"}};
  for (const auto& [offset, height, notes] : cases) {
    Start(400, offset);
    EXPECT_FALSE(scroller_.Resize(200, 100));
    EXPECT_TRUE(scroller_.Resize(200, height));
    EXPECT_EQ(recorder_.TakeNotes(), notes);
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
  Table<int, int, int, int> cases{{-100, 100, 134, -100}, {-100, 90, 124, -90},
                                  {-100, 170, 204, -104}, {-100, 0, 34, 0},
                                  {0, 366, 400, -300},    {0, 50, 250, -50}};
  for (const auto& [from, top, bottom, offset] : cases) {
    Start(400, from);
    scroller_.BringIntoView(top, bottom);
    EXPECT_EQ(scroller_.Offset(), offset) << from << " " << top;
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
