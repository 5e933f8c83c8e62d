#include "pages/page_tabs.h"

#include <algorithm>
#include <iterator>

namespace tidewell {

namespace {

struct IdCollector {
  void operator()(const RowColumn& column) { Collect(column.rows); }
  void operator()(const IconPickers& tab) {
    for (const TwoRowPicker& picker : tab.pickers) {
      Collect(picker.upper);
      Collect(picker.lower);
    }
  }
  void Collect(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      ids.insert({row.labelId, row.controlId, row.clearId, row.browseId});
    }
  }
  void operator()(const OptionList& list) { ids.insert(list.listId); }
  void operator()(const ItemList& list) {
    ids.insert(list.listId);
    for (const ItemButton& button : list.buttons) ids.insert(button.id);
    for (const ItemButton& label : list.labels) ids.insert(label.id);
    for (const ItemField& field : list.fields) ids.insert({field.id, field.button.id});
    Collect(list.rows.rows);
  }

  std::set<int> ids;
};

// A font's are its six numbers.
class PartCollector final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;
  explicit PartCollector(std::set<const Setting*>& parts) : parts_(parts) {}
  void Visit(DwordSetting& setting) override { parts_.insert(&setting); }
  void Visit(StringSetting& setting) override { parts_.insert(&setting); }
  void Visit(FlagArraySetting& setting) override { parts_.insert(&setting); }

 private:
  std::set<const Setting*>& parts_;
};

struct RowCollector {
  void operator()(const RowColumn& column) { Collect(column.rows); }
  void operator()(const IconPickers& tab) {
    for (const TwoRowPicker& picker : tab.pickers) {
      Collect(picker.upper);
      Collect(picker.lower);
    }
  }
  void operator()(const OptionList& list) {
    for (const Option& option : list.options) rows.push_back(&option.editor);
  }
  void operator()(const ItemList& list) { Collect(list.rows.rows); }
  void Collect(const std::vector<Row>& more) {
    for (const Row& row : more) rows.push_back(&row);
  }

  std::vector<const Row*> rows;
};

}  // namespace

Option CheckOption(int lineTextId, int captionId, int tipTextId, DwordSetting& setting) {
  return {lineTextId, tipTextId, Check(0, captionId, setting)};
}

Option ListOption(int lineTextId, int labelTextId, int tipTextId, DwordSetting& setting,
                  Choices choices) {
  return {lineTextId, tipTextId, List(0, 0, labelTextId, setting, std::move(choices))};
}

Option DataOption(int lineTextId, int labelTextId, int tipTextId, DwordSetting& setting,
                  Choices choices, int otherwise, std::uint32_t ofNoChoice) {
  return {lineTextId, tipTextId,
          DataList(0, 0, labelTextId, setting, std::move(choices), otherwise, ofNoChoice)};
}

Option PathOption(int lineTextId, int tipTextId, StringSetting& setting, Browse browse) {
  return {lineTextId, tipTextId, Path(0, 0, 0, 0, 0, setting, browse)};
}

Option TextOption(int lineTextId, int tipTextId, StringSetting& setting) {
  return {lineTextId, tipTextId, Text(0, 0, 0, setting)};
}

std::wstring SettingLine::TextIn(const Language& language) const {
  const std::wstring text = language.Text(textId);
  return groupId ? language.Text(groupId) + L": " + text : text;
}

std::vector<int> PageTab::ControlIds() const {
  IdCollector collector;
  std::visit(std::ref(collector), body);
  collector.ids.erase(0);
  return {collector.ids.begin(), collector.ids.end()};
}

std::vector<const Row*> PageTab::Rows() const {
  RowCollector collector;
  std::visit(std::ref(collector), body);
  return collector.rows;
}

std::set<const Setting*> PageTab::Settings() const {
  std::set<const Setting*> settings;
  for (const Row* row : Rows()) {
    settings.insert({row->number, row->text});
    settings.insert(row->order.begin(), row->order.end());
  }
  if (const auto* list = std::get_if<ItemList>(&body)) {
    settings.insert(list->settings.begin(), list->settings.end());
    PartCollector collector(settings);
    for (const SettingLine& line : list->lines) line.setting->Accept(collector);
  }
  settings.erase(nullptr);
  return settings;
}

PageTab RowTab(int titleId, std::initializer_list<Row> rows) {
  RowColumn column;
  std::copy_if(rows.begin(), rows.end(), std::back_inserter(column.rows),
               [](const Row& row) { return row.present; });
  return {titleId, std::move(column)};
}

}  // namespace tidewell
