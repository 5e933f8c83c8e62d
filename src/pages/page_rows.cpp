#include "pages/page_rows.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"

namespace tidewell {

namespace {

// As much as a control gives away.
constexpr std::size_t kPathCapacity = 260;
constexpr std::size_t kNumberCapacity = 256;

Row ListRow(int labelId, int listId, int textId, Stored stored, Choices choices) {
  Row row;
  row.kind = RowKind::kList;
  row.stored = stored;
  row.labelId = labelId;
  row.controlId = listId;
  row.textId = textId;
  row.choices = std::move(choices);
  return row;
}

Row IconRow(RowKind kind, int labelId, int stripId, int textId, DwordSetting& setting,
            std::span<const MarkerChoice> offered) {
  Row row = ListRow(labelId, stripId, textId, Stored::kCodes, {});
  row.kind = kind;
  row.number = &setting;
  row.icons = offered;
  return row;
}

// The codes of a set that its strip does not offer.
std::uint32_t OtherCodes(const Row& row) {
  if (row.kind == RowKind::kIcon) return 0;
  std::uint32_t codes = row.number->Value();
  for (const MarkerChoice& icon : row.icons) codes &= ~icon.value;
  return codes;
}

int PositionOfData(const Row& row) {
  const auto found =
      std::find_if(row.choices.begin(), row.choices.end(),
                   [&](const Choice& choice) { return choice.data == row.number->Value(); });
  if (found == row.choices.end()) return row.otherwise;
  return static_cast<int>(found - row.choices.begin());
}

int PositionOfName(const Row& row) {
  const auto found =
      std::find_if(row.choices.begin(), row.choices.end(), [&](const Choice& choice) {
        return !choice.textId && EqualIgnoringCase(choice.text, row.text->Value());
      });
  return found == row.choices.end() ? 0 : static_cast<int>(found - row.choices.begin());
}

std::vector<std::uint32_t> OrderOf(const Row& row) {
  std::vector<std::uint32_t> lines;
  for (const DwordSetting* setting : row.order) {
    const bool known = setting->Value() < row.order.size();
    lines.push_back(known ? setting->Value() : static_cast<std::uint32_t>(lines.size()));
  }
  return lines;
}

}  // namespace

Row Check(int id, int textId, DwordSetting& setting) {
  Row row;
  row.stored = Stored::kState;
  row.controlId = id;
  row.textId = textId;
  row.number = &setting;
  return row;
}

Row List(int labelId, int listId, int textId, DwordSetting& setting, Choices choices) {
  Row row = ListRow(labelId, listId, textId, Stored::kPosition, std::move(choices));
  row.number = &setting;
  return row;
}

Row DataList(int labelId, int listId, int textId, DwordSetting& setting, Choices choices,
             int otherwise, std::uint32_t ofNoChoice) {
  Row row = ListRow(labelId, listId, textId, Stored::kData, std::move(choices));
  row.number = &setting;
  row.otherwise = otherwise;
  row.ofNoChoice = ofNoChoice;
  return row;
}

Row NameList(int labelId, int listId, int textId, StringSetting& setting, Choices choices) {
  Row row = ListRow(labelId, listId, textId, Stored::kName, std::move(choices));
  row.text = &setting;
  return row;
}

Row Number(int labelId, int listId, int textId, DwordSetting& setting, Choices choices) {
  Row row = ListRow(labelId, listId, textId, Stored::kNumber, std::move(choices));
  row.kind = RowKind::kNumber;
  row.number = &setting;
  return row;
}

Row Path(int labelId, int editId, int clearId, int browseId, int textId, StringSetting& setting,
         Browse browse) {
  Row row = Text(labelId, editId, textId, setting);
  row.kind = RowKind::kPath;
  row.clearId = clearId;
  row.browseId = browseId;
  row.browse = browse;
  return row;
}

Row Selector(int labelId, int listId, int textId, Choices choices) {
  return ListRow(labelId, listId, textId, Stored::kNothing, std::move(choices));
}

Row FilledByRules(int labelId, int listId, int textId, StringSetting& setting) {
  Row row = ListRow(labelId, listId, textId, Stored::kByRules, {});
  row.text = &setting;
  return row;
}

Row CheckByRules(int id, int textId) {
  Row row;
  row.stored = Stored::kByRules;
  row.controlId = id;
  row.textId = textId;
  return row;
}

Row CheckBits(int id, int textId, DwordSetting& setting, std::uint32_t bits) {
  Row row = CheckByRules(id, textId);
  row.number = &setting;
  row.choices = {{L"", textId, bits}};
  return row;
}

Row Icon(int labelId, int stripId, int textId, DwordSetting& setting,
         std::span<const MarkerChoice> offered) {
  return IconRow(RowKind::kIcon, labelId, stripId, textId, setting, offered);
}

Row Icons(int labelId, int stripId, int textId, DwordSetting& setting,
          std::span<const MarkerChoice> offered) {
  return IconRow(RowKind::kIcons, labelId, stripId, textId, setting, offered);
}

Row Text(int labelId, int editId, int textId, StringSetting& setting) {
  Row row;
  row.kind = RowKind::kText;
  row.stored = Stored::kText;
  row.labelId = labelId;
  row.controlId = editId;
  row.textId = textId;
  row.text = &setting;
  return row;
}

Row Order(std::vector<DwordSetting*> settings, Choices lines) {
  Row row;
  row.kind = RowKind::kOrder;
  row.stored = Stored::kOrder;
  row.order = std::move(settings);
  row.choices = std::move(lines);
  return row;
}

Row Notice(int labelId, int textId) {
  Row row;
  row.kind = RowKind::kNotice;
  row.labelId = labelId;
  row.textId = textId;
  return row;
}

Choices Numbers(int first, int last, int step) {
  Choices choices;
  for (int number = first; number <= last; number += step) {
    choices.emplace_back(FormatDecimal(number), static_cast<std::uint32_t>(number));
  }
  return choices;
}

ControlState StateOf(const Row& row) {
  ControlState state;
  switch (row.stored) {
    case Stored::kState:
      state.checked = row.number->Value() != 0;
      break;
    case Stored::kPosition:
      state.selection = row.number->Signed();
      break;
    case Stored::kData:
      state.selection = PositionOfData(row);
      break;
    case Stored::kName:
      state.selection = PositionOfName(row);
      break;
    case Stored::kNumber:
      state.text = FormatDecimal(row.number->Signed());
      break;
    case Stored::kText:
      state.text = row.text->Value();
      break;
    case Stored::kOrder:
      state.order = OrderOf(row);
      break;
    case Stored::kNothing:
      state.selection = 0;
      break;
    case Stored::kCodes:
      state.data = row.number->Value();
      break;
    case Stored::kByRules:
      break;
  }
  if (state.selection < 0 || state.selection >= std::ssize(row.choices)) {
    state.selection = kNoChoice;
  } else {
    state.data = row.choices[static_cast<std::size_t>(state.selection)].data;
  }
  return state;
}

void Store(const Row& row, const ControlState& state) {
  switch (row.stored) {
    case Stored::kState:
      row.number->Set(state.checked ? 1 : 0);
      break;
    case Stored::kPosition:
      row.number->Set(static_cast<std::uint32_t>(state.selection));
      break;
    case Stored::kData:
      row.number->Set(state.selection < 0 ? row.ofNoChoice : state.data);
      break;
    case Stored::kName:
      row.text->Set(state.selection > 0 ? state.text : std::wstring());
      break;
    case Stored::kNumber:
      row.number->Set(
          static_cast<std::uint32_t>(ParseNumber(state.text.substr(0, kNumberCapacity), 0)));
      break;
    case Stored::kText:
      row.text->Set(state.text.substr(0, kPathCapacity));
      break;
    case Stored::kCodes:
      row.number->Set(OtherCodes(row) | state.data);
      break;
    case Stored::kOrder:
      for (std::size_t i = 0; i < row.order.size() && i < state.order.size(); ++i) {
        row.order[i]->Set(state.order[i]);
      }
      break;
    case Stored::kByRules:
    case Stored::kNothing:
      break;
  }
}

}  // namespace tidewell
