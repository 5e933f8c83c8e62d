// The strip above a page's controls: a sample item as the Today screen would show it with the
// settings as they stand.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/language.h"
#include "platform/locale.h"
#include "platform/scale.h"
#include "preview/canvas.h"
#include "preview/font_holder.h"
#include "preview/icons.h"
#include "preview/today_row.h"
#include "settings/settings_store.h"

namespace tidewell {

inline constexpr int kTodayPreviewHeight = 42;  // at 96 dots per inch

// One per page. All that it is given by reference outlives it.
class TodayPreview {
 public:
  // `language` may be null.
  TodayPreview(const SettingsStore& settings, const ScreenScale& scale, Locale& locale,
               const Language& language, IconSource& icons, LoadImageFile loadImage);

  // In pixels; `width` is that of the strip, which begins at the page's left edge. `font` takes the
  // place of the settings' own; null does not.
  void DrawAppointment(Canvas& page, int width, int y, const FontAndColor* font = nullptr);
  void DrawTask(Canvas& page, int width, int y, const FontAndColor* font = nullptr);
  // Any other item, as it is seen today.
  void DrawItem(Canvas& page, TodayItem item, int width, int y, const FontAndColor* font = nullptr);
  // A line of text that belongs to no item.
  void DrawText(Canvas& page, std::wstring_view text, const FontAndColor& font, int width, int y);
  int Height() const { return scale_.ScaleX(kTodayPreviewHeight); }

 private:
  int Today() { return DayNumber(locale_.Now()); }
  RowStyle StyleOf(Canvas& page, const TodayItem& item, const TodayLook& look);
  void PrepareStrips(Canvas& page, int width);
  void PaintBackground(Canvas& background, int width);
  void PaintWatermark(Canvas& background, int width);

  const SettingsStore& settings_;
  ScreenScale scale_;
  Locale& locale_;
  IconSource& icons_;
  LoadImageFile loadImage_;
  std::wstring appointmentSubject_;
  std::wstring appointmentLocation_;
  std::wstring taskSubject_;

  FontHolder generalFont_;
  FontHolder columnFont_;
  FontHolder rowFont_;
  int width_ = 0;                       // of both below
  std::unique_ptr<Canvas> background_;  // the Today screen without items
  std::unique_ptr<Canvas> strip_;
};

}  // namespace tidewell
