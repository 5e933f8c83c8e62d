#include "preview/today_preview.h"

#include <utility>

#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr Color kTodayBlue = Rgb(152, 183, 215);
// The folding type that tasks are shown with, whatever the calendar's is.
constexpr std::uint32_t kTaskFolding = 0;
constexpr int kTextMargin = 10;  // at 96 dots per inch

}  // namespace

TodayPreview::TodayPreview(const SettingsStore& settings, const ScreenScale& scale, Locale& locale,
                           const Language& language, IconSource& icons, LoadImageFile loadImage)
    : settings_(settings),
      scale_(scale),
      locale_(locale),
      icons_(icons),
      loadImage_(std::move(loadImage)),
      appointmentSubject_(language.Text(IDS_SAMPLE_APPOINTMENT)),
      appointmentLocation_(language.Text(IDS_SAMPLE_LOCATION)),
      taskSubject_(language.Text(IDS_SAMPLE_TASK)) {}

void TodayPreview::DrawAppointment(Canvas& page, int width, int y, const FontAndColor* font) {
  DrawItem(page, SampleAppointment(Today(), appointmentSubject_, appointmentLocation_), width, y,
           font);
}

void TodayPreview::DrawTask(Canvas& page, int width, int y, const FontAndColor* font) {
  DrawItem(page, SampleTask(Today(), taskSubject_), width, y, font);
}

// The row stands in the middle of the strip, by the height that it measures.
void TodayPreview::DrawItem(Canvas& page, TodayItem item, int width, int y,
                            const FontAndColor* font) {
  if (width <= 0) return;
  TodayLook look = ReadTodayLook(settings_);
  if (font) look.appointment = look.task = *font;
  const ItemTexts texts = FormatTexts(item, Today(), look, locale_);
  RowStyle style = StyleOf(page, item, look);
  PrepareStrips(page, width);
  const int timeColumn =
      MeasureTimeColumn(page, columnFont_.Get(page, look.columnMeasure.font), look, scale_);
  const RowSetting setting{
      *strip_, icons_, scale_, look, generalFont_.Get(page, look.general.font), timeColumn};
  const auto drawRow = [&](DrawPass pass, int top) {
    const Rect row{0, top, width, scale_.ScaleX(200)};
    style.pass = pass;
    return item.IsTask() ? DrawTaskRow(setting, style, item, texts, row, kTaskFolding)
                         : DrawAppointmentRow(setting, style, item, texts, row);
  };
  const int height = drawRow(DrawPass::kMeasure, 0);
  strip_->Copy(*background_, {0, 0, width, scale_.ScaleY(kTodayPreviewHeight)});
  drawRow(DrawPass::kDraw, scale_.ScaleX(21) - height / 2);
  page.Copy(*strip_, {0, y, width, Height()});
}

void TodayPreview::DrawText(Canvas& page, std::wstring_view text, const FontAndColor& font,
                            int width, int y) {
  if (width <= 0) return;
  PrepareStrips(page, width);
  const TodayLook look = ReadTodayLook(settings_);
  const TextStyle style{rowFont_.Get(page, font.font), font.color, look.shadowStyle,
                        look.shadowColor};
  const int lineHeight = page.LineHeight(style.font);
  const int left = scale_.ScaleX(kTextMargin);
  strip_->Copy(*background_, {0, 0, width, Height()});
  WriteTitle(*strip_, {left, (Height() - lineHeight) / 2, width - 2 * left, lineHeight}, text,
             style);
  page.Copy(*strip_, {0, y, width, Height()});
}

RowStyle TodayPreview::StyleOf(Canvas& page, const TodayItem& item, const TodayLook& look) {
  const FontAndColor& text = item.IsTask() ? look.task : look.appointment;
  const CanvasFont& font = rowFont_.Get(page, text.font);
  if (item.IsTask()) return {font, text.color, look.taskSlots, look.taskIcons};
  return {font, text.color, look.appointmentSlots, look.appointmentIcons};
}

// Made anew only after the screen was turned.
void TodayPreview::PrepareStrips(Canvas& page, int width) {
  if (width == width_) return;
  strip_ = page.MakeOffscreen(width, Height());
  background_ = page.MakeOffscreen(width, scale_.ScaleY(kTodayPreviewHeight));
  PaintBackground(*background_, width);
  width_ = width;
}

void TodayPreview::PaintBackground(Canvas& background, int width) {
  const int height = scale_.ScaleY(kTodayPreviewHeight);
  const int line = scale_.ScaleY(1);
  background.Fill({0, 0, width, height}, kTodayBlue);
  PaintWatermark(background, width);
  background.Fill({0, 0, width, line}, kBlack);
  background.Fill({0, height - line, width, line}, kBlack);
}

// A band of the picture behind the Today screen, where it is large enough for one.
void TodayPreview::PaintWatermark(Canvas& background, int width) {
  std::unique_ptr<Image> image = loadImage_(L"\\Windows\\tdywater.gif");
  if (!image) image = loadImage_(L"\\windows\\stwater.gif");
  const int least = scale_.ScaleY(10);
  const int height = scale_.ScaleY(kTodayPreviewHeight);
  if (!image || image->Height() < least + height || image->Width() < width) return;
  const int fromBottom = image->Height() - scale_.ScaleX(160);
  const int top = fromBottom < 0 ? least : fromBottom;
  background.DrawPart(*image, {0, top, width, height}, 0, 0, kRed);
}

}  // namespace tidewell
