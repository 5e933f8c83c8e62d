#include "pages/windows/create_page.h"

#include "pages/page_list.h"
#include "pages/windows/rules_page.h"

namespace tidewell {

std::unique_ptr<PageWindow> CreatePage(int index, HWND host, PageContext& context) {
  if (index < 0 || index >= kPageCount) return nullptr;
  const PageEntry& entry = kPages[static_cast<std::size_t>(index)];
  auto page = std::make_unique<RulesPage>(context, entry.make(context));
  const std::wstring caption = context.language.Text(entry.captionId);
  if (!page->Create(host, entry.className, caption)) return nullptr;
  return page;
}

}  // namespace tidewell
