#include "pages/page_context.h"

#include <utility>

namespace tidewell {

TodayPreview PreviewOf(PageContext& context) {
  static NoIcons none;
  const auto nothing = [](const std::wstring&) -> std::unique_ptr<Image> { return nullptr; };
  IconSource& icons = context.icons ? *context.icons : none;
  LoadImageFile loadImage = context.loadImage ? context.loadImage : nothing;
  return {context.settings, context.scale, context.machine.locale,
          context.language, icons,         std::move(loadImage)};
}

}  // namespace tidewell
