// A row of a settings page as data: what it shows of its setting, and what it stores. One builder
// and one saver walk every row.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/language.h"
#include "settings/setting.h"
#include "ui/icon_marker_model.h"

namespace tidewell {

// One line of a drop-down list.
struct Choice {
  Choice(int id) : textId(id) {}                     // a text of the language library
  Choice(const wchar_t* literal) : text(literal) {}  // the same in every language
  Choice(std::wstring words, std::uint32_t number) : text(std::move(words)), data(number) {}
  Choice(std::wstring words, int id, std::uint32_t number)
      : text(std::move(words)), textId(id), data(number) {}
  explicit Choice(std::wstring words) : text(std::move(words)) {}

  std::wstring TextIn(const Language& language) const { return text + language.Text(textId); }

  std::wstring text;       // stands before the library's text
  int textId = 0;          // 0 is none
  std::uint32_t data = 0;  // what is stored, where that is not the position
};
using Choices = std::vector<Choice>;

enum class RowKind : std::uint8_t {
  kCheck,   // a caption and a box
  kList,    // a caption and a drop-down list
  kNumber,  // the same with a number that can be typed too
  kPath,    // a caption, a path that can be read, and two buttons below
  kText,    // a text that can be typed; in an option's editor with a button that clears it
  kOrder,   // lines to be put into order; in an option's editor alone
  kIcon,    // a caption and a strip that shows one icon; of an icon picker, as is the next
  kIcons,   // the same with a set of icons
  kNotice,  // a text by itself; in a column alone
};

// What a path's second button lets the user choose, under a title that is the same in every
// language. `pattern` is of files ("*.exe"); null asks for a folder.
struct Browse {
  const wchar_t* title = nullptr;
  const wchar_t* pattern = nullptr;
};

enum class Stored : std::uint8_t {
  kState,     // a check box's 1 or 0
  kPosition,  // the chosen line, from 0; -1 for none
  kData,      // the chosen line's data
  kName,      // the chosen line's text; none for the first line
  kNumber,    // the typed text as a number
  kText,
  kOrder,    // each of the settings has the data of the line in its place
  kByRules,  // the page's rules fill and store the row
  kNothing,  // the row only steers others
  kCodes,    // an icon's code or those of a set, as soon as they are chosen
};

inline constexpr int kNoChoice = -1;

struct Row {
  // Less room below the row than its kind has, at 96 dots per inch.
  Row ReducedSpacing(int length) && {
    reducedSpacing = length;
    return std::move(*this);
  }
  // Left out altogether on a device that does not fulfil a condition.
  Row When(bool condition) && {
    present = condition;
    return std::move(*this);
  }

  // Whether its choices are stored as their data, rather than as their positions.
  bool HoldsData() const { return stored == Stored::kData || stored == Stored::kByRules; }

  RowKind kind = RowKind::kCheck;
  Stored stored = Stored::kNothing;
  int labelId = 0;
  int controlId = 0;
  int clearId = 0;
  int browseId = 0;
  int textId = 0;
  DwordSetting* number = nullptr;
  StringSetting* text = nullptr;
  std::vector<DwordSetting*> order;
  Choices choices;  // of kByRules: what its numbers stand for, of which the rules show what fits
  std::span<const MarkerChoice> icons;
  int otherwise = kNoChoice;       // the line shown when none has the stored data
  std::uint32_t ofNoChoice = ~0u;  // the data stored when no line is chosen
  Browse browse;
  int reducedSpacing = 0;
  bool present = true;
};

Row Check(int id, int textId, DwordSetting& setting);
Row List(int labelId, int listId, int textId, DwordSetting& setting, Choices choices);
Row DataList(int labelId, int listId, int textId, DwordSetting& setting, Choices choices,
             int otherwise = kNoChoice, std::uint32_t ofNoChoice = ~0u);
// The first line stands for no name; the others are literal.
Row NameList(int labelId, int listId, int textId, StringSetting& setting, Choices choices);
Row Number(int labelId, int listId, int textId, DwordSetting& setting, Choices choices);
Row Path(int labelId, int editId, int clearId, int browseId, int textId, StringSetting& setting,
         Browse browse);
// Begins at its first line and is not stored.
Row Selector(int labelId, int listId, int textId, Choices choices);
Row FilledByRules(int labelId, int listId, int textId, StringSetting& setting);
// A box that shows what is no setting.
Row CheckByRules(int id, int textId);
// A box that shows some bits of its setting.
Row CheckBits(int id, int textId, DwordSetting& setting, std::uint32_t bits);
// Of an icon picker. What is offered outlives the row; of a set the codes that are not offered stay
// as they are stored.
Row Icon(int labelId, int stripId, int textId, DwordSetting& setting,
         std::span<const MarkerChoice> offered);
Row Icons(int labelId, int stripId, int textId, DwordSetting& setting,
          std::span<const MarkerChoice> offered);
Row Text(int labelId, int editId, int textId, StringSetting& setting);
// A setting for each place, and the lines that are put there, their data being their number from 0.
Row Order(std::vector<DwordSetting*> settings, Choices lines);
Row Notice(int labelId, int textId);

// "80", "100", ... "600" is Numbers(80, 600, 20); each line's data is its number.
Choices Numbers(int first, int last, int step);

// What a row's control shows, and what is left in it when the page closes.
struct ControlState {
  static ControlState OfLine(int line) {
    ControlState state;
    state.selection = line;
    return state;
  }
  static ControlState OfText(std::wstring text) {
    ControlState state;
    state.text = std::move(text);
    return state;
  }

  bool checked = false;
  int selection = kNoChoice;
  std::uint32_t data = 0;            // of the selected line, or the codes of a strip
  std::wstring text;                 // typed or, of a drop-down list, the selected line's
  std::vector<std::uint32_t> order;  // the lines' data

  bool operator==(const ControlState&) const = default;
};

// A value that no line stands for shows none; in an order it is that of its place. The text of a
// line is the control's to know.
ControlState StateOf(const Row& row);
// Sets the row's setting, whether or not it differs.
void Store(const Row& row, const ControlState& state);

// A control and whether it can be used now.
struct Enabling {
  int id;
  bool enabled;

  bool operator==(const Enabling&) const = default;
};

}  // namespace tidewell
