// The choice of the search bar, an alphabet to jump to a letter with, which contacts and notes have
// alike. Its last line lets the user choose which alphabets are offered, on both pages.
#pragma once

#include "addons/alphabets.h"
#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

class SearchBar {
 public:
  // `kind` and the custom alphabet's `name` are the view's own.
  SearchBar(PageContext& context, int labelId, int listId, DwordSetting& kind, StringSetting& name);

  Row AsRow() const;
  // Fills the list and selects what is stored, else the first line.
  void Show(PageView& view) const;
  void OnEvent(PageView& view, const PageEvent& event);
  void Store(const PageView& view) const;

 private:
  DwordSetting& ActiveAlphabets() const { return context_.settings.contacts.CntctsActiveLanguages; }
  // Stored as soon as it is confirmed. False when cancelled.
  bool ChooseAlphabets();

  PageContext& context_;
  Alphabets alphabets_;
  int labelId_;
  int listId_;
  DwordSetting& kind_;
  StringSetting& name_;
};

}  // namespace tidewell
