// Answers in the user's place, and keeps what was shown.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/text.h"
#include "ui/user_dialogs.h"

namespace tidewell {

class FakeDialogs final : public UserDialogs {
 public:
  void ShowMessage(const std::wstring& text, const std::wstring& caption) override {
    shown.push_back(caption + L": " + text);
  }
  bool Ask(const std::wstring& question, const std::wstring& caption, bool byDefault) override {
    shown.push_back(caption + L": " + question + (byDefault ? L" [yes]" : L" [no]"));
    return agrees;
  }
  std::optional<std::wstring> ChooseFolder(const std::wstring& title,
                                           const std::wstring& present) override {
    shown.push_back(title + L": " + present);
    return answer;
  }
  std::optional<std::wstring> ChooseFile(const std::wstring& title, const std::wstring& present,
                                         const std::wstring& pattern) override {
    shown.push_back(title + L": " + present + L", " + pattern);
    return answer;
  }
  bool ChooseFileName(FileNameRequest& request) override {
    named = request;
    if (answer) request.resultPath = *answer;
    return answer.has_value();
  }
  std::optional<Color> ChooseColor(Color present, bool allowsDefault) override {
    shown.push_back(L"color " + FormatDecimal(static_cast<std::int32_t>(present)) +
                    (allowsDefault ? L" or none" : L""));
    return chosenColor;
  }
  bool ChooseFont(LogFont& font, Color& color) override {
    shown.push_back(L"font " + FormatDecimal(font.height));
    return editFont && editFont(font, color);
  }
  // Confirms the chosen line, once; the user cancels a dialog that stays open.
  std::optional<std::size_t> ChooseLine(const LineRequest& request) override {
    lines = request.lines;
    if (!confirms) return std::nullopt;
    return request.confirm(chosenLine, *this) == Verdict::kTake ? chosenLine : std::nullopt;
  }
  // Turns the ticks of those lines.
  bool TickLines(TickRequest& request) override {
    for (const TickedLine& line : request.lines) {
      shown.push_back((line.ticked ? L"+" : L"-") + line.text);
    }
    for (const std::size_t line : turned) request.lines[line].ticked = !request.lines[line].ticked;
    return confirms;
  }
  // Types the answer; the user cancels a dialog that refuses it.
  std::optional<std::wstring> EnterText(const TextRequest& request) override {
    shown.push_back(request.label + L": " + request.text);
    return answer && request.refusal(*answer).empty() ? answer : std::nullopt;
  }

  std::vector<std::wstring> shown;
  bool agrees = false;
  std::optional<std::wstring> answer;  // nothing cancels
  FileNameRequest named;
  std::optional<std::uint32_t> chosenColor;                   // nothing cancels
  std::function<bool(LogFont& font, Color& color)> editFont;  // empty cancels
  bool confirms = true;
  std::vector<std::wstring> lines;
  std::optional<std::size_t> chosenLine = 0;
  std::vector<std::size_t> turned;
};

}  // namespace tidewell
