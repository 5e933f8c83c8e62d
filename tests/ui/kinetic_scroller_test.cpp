#include "ui/kinetic_scroller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
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
  void BeginStrip(int distance) override { Note("strip", distance); }
  void EndStrip() override { Note("whole"); }
  void Update() override { Note("update"); }
  void Wait(unsigned milliseconds) override { Note("wait", milliseconds); }

  int Paint(int, void* surface, void* context, int offset, int, int) override {
    EXPECT_EQ(surface, this);
    if (context) Note("context");
    Note("paint", offset);
    return contentHeight;
  }
  bool Highlight(int, int x, int contentY) override {
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
  std::ostringstream notes;
};

struct Gesture {
  std::string name;
  int contentHeight = 0;
  int offset = 0;
  int dpi = 96;
  std::string transcript;
};

// gestures.txt: a heading "NAME HEIGHT OFFSET [DPI]" and a transcript, then an empty line.
std::vector<Gesture> ReadGestures() {
  std::vector<Gesture> gestures;
  std::ifstream file(TIDEWELL_GESTURES);
  bool inGesture = false;
  for (std::string line; std::getline(file, line); inGesture = !line.empty()) {
    line.erase(std::min(line.find(line[0] == '#' ? "#" : "  #"), line.size()));
    if (inGesture && !line.empty()) {
      gestures.back().transcript.append(line).append("\n");
    } else if (!line.empty()) {
      Gesture& gesture = gestures.emplace_back();
      std::istringstream(line) >> gesture.name >> gesture.contentHeight >> gesture.offset >>
          gesture.dpi;
    }
  }
  return gestures;
}

class Gestures : public testing::TestWithParam<Gesture> {
 protected:
  void Initialise() {
    const ScreenScale scale(GetParam().dpi, GetParam().dpi, false);
    scroller_.Initialise(7, recorder_, &recorder_, scale, {10, 20, 200, 100});
  }

  std::string Perform(const std::string& input) {
    std::istringstream words(input);
    std::string verb;
    int first = 0, second = 0;
    words >> verb >> first >> second;
    const auto at = input.find('@');
    const std::uint32_t now =
        at < input.size() ? static_cast<std::uint32_t>(std::stoul(input.substr(at + 1))) : 0;
    const std::map<std::string, std::function<bool()>> steps{
        {"down", [&] { return scroller_.PointerDown(first, second, now); }},
        {"move", [&] { return scroller_.PointerMove(first, now); }},
        {"up", [&] { return scroller_.PointerUp(first); }},
        {"lost", [&] { return scroller_.PointerLost(); }},
        {"timer", [&] { return scroller_.Timer(static_cast<unsigned>(first)); }},
        {"resize", [&] { return scroller_.Resize(200, first); }},
        {"context", [&] { return scroller_.SetPaintContext(first ? this : nullptr, second); }},
        {"show", [&] { return scroller_.BringIntoView(first, second); }},
        {"grow", [&] { return recorder_.contentHeight = first; }},
        {"unmarked", [&] { return !(recorder_.repaintHighlight = false); }},
        {"refilling", [&] {
           recorder_.onActivate = [this] { Initialise(); };
           return true;
         }}};
    if (verb == "run") return Run();
    const bool consumed = steps.at(verb)();
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

INSTANTIATE_TEST_SUITE_P(Every, Gestures, testing::ValuesIn(ReadGestures()),
                         [](const auto& which) { return which.param.name; });

TEST_P(Gestures, FollowTheRules) {
  recorder_.contentHeight = GetParam().contentHeight;
  Initialise();
  scroller_.BringIntoView(-GetParam().offset, -GetParam().offset + 100);
  recorder_.TakeNotes();
  std::istringstream lines(GetParam().transcript);
  std::string actual;
  for (std::string line; std::getline(lines, line);) {
    const std::string input = line.substr(0, line.find(" >"));
    const std::string answer = Perform(input);
    actual.append(input).append(answer.empty() ? " >" : " > ").append(answer).append("\n");
  }
  EXPECT_EQ(actual, GetParam().transcript);
}

}  // namespace
}  // namespace tidewell
