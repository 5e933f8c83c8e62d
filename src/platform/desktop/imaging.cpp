#include "platform/desktop/imaging.h"

#include <objbase.h>
#include <wincodec.h>

namespace tidewell {

Imaging::Imaging() : started_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

Imaging::~Imaging() {
  if (factory_) factory_->Release();
  if (started_) CoUninitialize();
}

IUnknown* Imaging::Factory() {
  if (started_ && !factory_) {
    void* created = nullptr;
    if (SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                   IID_IWICImagingFactory, &created))) {
      factory_ = static_cast<IUnknown*>(created);
    }
  }
  return factory_;
}

}  // namespace tidewell
