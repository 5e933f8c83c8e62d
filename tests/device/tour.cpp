// Walks through everything there is to see. Each view says "picture NAME" on standard output and
// waits for a line on standard input; the one who started the tour takes the picture in between.
#include <windows.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "driven_program.h"

namespace tidewell::device {

namespace {

using Step = std::function<void(DrivenProgram&)>;

Step Press(WPARAM key, int times = 1) {
  return [=](DrivenProgram& program) { program.Press(key, times); };
}

// A finger in the middle of the list that draws it upwards, and stays.
void DragList(DrivenProgram& program) {
  RECT client;
  GetClientRect(program.Main(), &client);
  const LONG x = client.right / 2;
  program.Drag({x, client.bottom / 2}, {x, client.bottom / 8});
}

void TapRightButton(DrivenProgram& program) {
  program.TapRightButton();
}

void Popup(DrivenProgram& program) {
  program.WaitForPopup();
}

struct View {
  const char* name;
  std::vector<Step> steps;  // from the main list as it opens
  const wchar_t* commandLine = L"";
};

constexpr int kAboutRow = 12;
constexpr int kExitRow = 2;

const View kViews[] = {
    {"main", {}},
    {"main-scrolled", {DragList}},
    {"main-selected", {Press(VK_DOWN, 3)}},
    {"main-last", {Press(VK_DOWN, kAboutRow)}},
    {"tools", {TapRightButton}},
    {"exit-question", {TapRightButton, Press(VK_DOWN, kExitRow), Press(VK_RETURN), Popup}},
    {"about", {Press(VK_DOWN, kAboutRow), Press(VK_RETURN), Popup}},
};

void Say(const char* word, const char* name) {
  std::printf("%s %s\n", word, name);
  std::fflush(stdout);
}

bool Show(const View& view) {
  DrivenProgram program(view.commandLine);
  if (!program.WaitForMainWindow()) return false;
  for (const Step& step : view.steps) step(program);
  Say("picture", view.name);
  char answer[16];
  return std::fgets(answer, sizeof answer, stdin) != nullptr;
}

int TakeTour() {
  for (const View& view : kViews) {
    if (!Show(view)) {
      Say("trouble", view.name);
      return 1;
    }
  }
  Say("end", "of the tour");
  return 0;
}

}  // namespace

}  // namespace tidewell::device

int main() {
  return tidewell::device::TakeTour();
}
