#include "pages/search_bar.h"

#include "resources/text/text_ids.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

// What is stored for a line.
constexpr std::uint32_t kNoBar = 0;
constexpr std::uint32_t kCustomBar = 5;
constexpr std::uint32_t kAllBars = 6;
constexpr std::uint32_t kChooseAlphabets = 7;  // never stored

constexpr struct {
  std::uint32_t alphabet;
  int textId;
  std::uint32_t kind;
} kBuiltInBars[] = {{kLatin, IDS_SEARCH_BAR_LATIN, 1},
                    {kCyrillic, IDS_SEARCH_BAR_CYRILLIC, 2},
                    {kHebrew, IDS_SEARCH_BAR_HEBREW, 3},
                    {kGreek, IDS_SEARCH_BAR_GREEK, 4}};

constexpr std::size_t kNameLength = 255;

}  // namespace

SearchBar::SearchBar(PageContext& context, int labelId, int listId, DwordSetting& kind,
                     StringSetting& name)
    : context_(context),
      alphabets_(context.machine, context.settings.installFolder),
      labelId_(labelId),
      listId_(listId),
      kind_(kind),
      name_(name) {}

Row SearchBar::AsRow() const {
  Row row = FilledByRules(labelId_, listId_, IDS_SEARCH_BAR, name_);
  row.number = &kind_;
  row.choices = {{L"", IDS_SEARCH_BAR_NONE, kNoBar}};
  for (const auto& bar : kBuiltInBars) row.choices.push_back({L"", bar.textId, bar.kind});
  row.choices.push_back({L"", IDS_SEARCH_BAR_CUSTOM, kCustomBar});
  row.choices.push_back({L"", IDS_SEARCH_BAR_ALL, kAllBars});
  return row;
}

void SearchBar::Show(PageView& view) const {
  Choices choices;
  std::size_t selection = 0;
  const auto add = [&](Choice choice, bool isCurrent) {
    if (isCurrent) selection = choices.size();
    choices.push_back(std::move(choice));
  };
  const std::uint32_t active = ActiveAlphabets().Value();
  const std::uint32_t current = kind_.Value();
  add({L"", IDS_SEARCH_BAR_NONE, kNoBar}, false);
  for (const auto& bar : kBuiltInBars) {
    if (active & bar.alphabet) add({L"", bar.textId, bar.kind}, bar.kind == current);
  }
  for (const std::wstring& name : alphabets_.ActiveCustom()) {
    add({name, kCustomBar}, current == kCustomBar && name == name_.Value());
  }
  if (active != 0) add({L"", IDS_SEARCH_BAR_ALL, kAllBars}, current == kAllBars);
  add({L"", IDS_SEARCH_BAR_CHOOSE, kChooseAlphabets}, false);
  view.SetChoices(listId_, choices);
  view.SetState(listId_, ControlState::OfLine(static_cast<int>(selection)));
}

void SearchBar::OnEvent(PageView& view, const PageEvent& event) {
  if (event.id != listId_ || event.kind != PageEventKind::kChosen) return;
  if (view.State(listId_).data != kChooseAlphabets) return;
  if (ChooseAlphabets()) Show(view);
  view.SetState(listId_, ControlState::OfLine(0));
}

bool SearchBar::ChooseAlphabets() {
  if (!context_.dialogs) return false;
  std::vector<Alphabet> offered = alphabets_.Offered(ActiveAlphabets().Value());
  TickRequest request{context_.language.Text(IDS_SEARCH_BAR),
                      L"Select active alphabets",
                      L"Available alphabets",
                      {}};
  for (const Alphabet& alphabet : offered)
    request.lines.push_back({alphabet.name, alphabet.active});
  if (!context_.dialogs->TickLines(request)) return false;
  for (std::size_t i = 0; i < offered.size(); ++i) offered[i].active = request.lines[i].ticked;
  ActiveAlphabets().Set(alphabets_.Activate(offered));
  return true;
}

void SearchBar::Store(const PageView& view) const {
  const ControlState state = view.State(listId_);
  if (state.selection == kNoChoice || state.data == kChooseAlphabets) return;
  kind_.Set(state.data);
  if (state.data == kCustomBar) name_.Set(state.text.substr(0, kNameLength));
}

}  // namespace tidewell
