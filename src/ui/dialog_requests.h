// What the dialogs that choose, tick and type are asked with. Knows no windows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tidewell {

class UserDialogs;

// What becomes of a dialog whose user says OK.
enum class Verdict : std::uint8_t { kStay, kCancel, kTake };

// One of several lines; the first is selected when the dialog opens.
struct LineRequest {
  std::wstring title;
  std::wstring introduction;
  std::wstring label;
  std::vector<std::wstring> lines;
  // Whether the selected line, if there is one, is taken; what is asked or told stands over the
  // dialog.
  std::function<Verdict(std::optional<std::size_t> line, UserDialogs& over)> confirm;
};

struct TickedLine {
  std::wstring text;
  bool ticked = false;
};

struct TickRequest {
  std::wstring title;
  std::wstring label;
  std::wstring columnTitle;
  std::vector<TickedLine> lines;
};

// One line of text.
struct TextRequest {
  std::wstring title;
  std::wstring label;
  std::wstring text;  // at first
  std::size_t longest = 0;
  // Why a text is not taken, in words for the user; empty for one that is.
  std::function<std::wstring(const std::wstring& text)> refusal;
  std::wstring refusalCaption;
};

}  // namespace tidewell
