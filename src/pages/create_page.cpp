#include "pages/create_page.h"

#include "pages/general_page.h"
#include "pages/page_list.h"
#include "pages/pim_page.h"

namespace tidewell {

namespace {

std::unique_ptr<SettingsPage> MakePage(int index, PageContext& context) {
  switch (static_cast<PageIndex>(index)) {
    case PageIndex::kGeneral:
      return std::make_unique<GeneralPage>(context);
    case PageIndex::kPim:
      return std::make_unique<PimPage>(context);
    default: {
      const PageEntry& entry = kPages[static_cast<std::size_t>(index)];
      if (!entry.table) return nullptr;
      return std::make_unique<TablePage>(context, entry.table(context));
    }
  }
}

}  // namespace

std::unique_ptr<HostedPage> CreatePage(int index, HWND host, PageContext& context) {
  if (index < 0 || index >= kPageCount) return nullptr;
  std::unique_ptr<SettingsPage> page = MakePage(index, context);
  const PageEntry& entry = kPages[static_cast<std::size_t>(index)];
  const std::wstring caption =
      TextOf(context.language, static_cast<std::uint32_t>(entry.captionId));
  if (!page || !page->Create(host, entry.className, caption)) return nullptr;
  return page;
}

}  // namespace tidewell
