// Loading all icons of a set, beside decoding the same files with nothing around it.
#include <windows.h>

#include <objbase.h>
#include <wincodec.h>

#include <string>
#include <vector>

#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "platform/windows/imaging.h"
#include "platform/windows/windows_files.h"
#include "preview/icons.h"
#include "preview/windows/decode_image.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 200;
constexpr double kAim = 1.1;
constexpr wchar_t kFolder[] = L"\\Program Files\\Velmont\\Tidewell\\IconSets\\Mono\\24";

std::wstring PathOf(std::size_t symbol) {
  return std::wstring(kFolder) + L"\\" + SymbolName(static_cast<IconSymbol>(symbol)) + L".png";
}

// The system's own decoder straight into a bitmap.
class BareDecoder {
 public:
  BareDecoder() {
    CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                     factory_.PutVoid());
  }

  Bitmap Decode(const std::wstring& path) const {
    ComPointer<IWICBitmapDecoder> decoder;
    ComPointer<IWICBitmapFrameDecode> frame;
    ComPointer<IWICFormatConverter> converter;
    factory_->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                        WICDecodeMetadataCacheOnDemand, decoder.Put());
    decoder->GetFrame(0, frame.Put());
    factory_->CreateFormatConverter(converter.Put());
    converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                          nullptr, 0, WICBitmapPaletteTypeCustom);
    UINT width = 0, height = 0;
    converter->GetSize(&width, &height);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader,
                      static_cast<LONG>(width),
                      -static_cast<LONG>(height),
                      1,
                      32,
                      BI_RGB,
                      0,
                      0,
                      0,
                      0,
                      0};
    void* points = nullptr;
    Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &points, nullptr, 0));
    converter->CopyPixels(nullptr, width * 4, width * height * 4, static_cast<BYTE*>(points));
    return bitmap;
  }

 private:
  ComPointer<IWICImagingFactory> factory_;
};

void Run() {
  const Imaging imaging;
  WindowsFiles files;
  IconSetSettings settings;
  settings.InstallPath24.Set(kFolder);
  const BareDecoder bare;
  const auto decode = [&](const std::wstring& path) {
    return DecodeImage(files, imaging.Factory(), path);
  };
  Comparison loading;
  for (int round = 0; round < kRounds; ++round) {
    const Stopwatch watch;
    IconCache cache(settings, ScreenScale(192, 192, false), decode,
                    [](IconSymbol) { return nullptr; });
    for (std::size_t symbol = 0; symbol < kIconSymbolCount; ++symbol) {
      if (!cache.Find(static_cast<IconSymbol>(symbol))) return;
    }
    const double ours = watch.Milliseconds();
    const Stopwatch bareWatch;
    std::vector<Bitmap> bitmaps;
    for (std::size_t symbol = 0; symbol < kIconSymbolCount; ++symbol) {
      bitmaps.push_back(bare.Decode(PathOf(symbol)));
    }
    loading.Add(ours, bareWatch.Milliseconds());
  }
  PrintRatio("load the 16 icons of a set", loading, kAim, "ms");
}

}  // namespace

}  // namespace tidewell::bench

int main() {
  SetCurrentDirectoryW(L"C:\\");
  tidewell::bench::Run();
}
