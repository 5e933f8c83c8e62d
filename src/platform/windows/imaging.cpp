#include "platform/windows/imaging.h"

#include <objbase.h>

namespace tidewell {

Imaging::Imaging() : started_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
  if (!started_) return;
  CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IImagingFactory,
                   factory_.PutVoid());
}

Imaging::~Imaging() {
  factory_ = {};
  if (started_) CoUninitialize();
}

}  // namespace tidewell
