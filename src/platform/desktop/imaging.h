// COM and its imaging factory for the length of a scope.
#pragma once

#include <unknwn.h>

namespace tidewell {

class Imaging {
 public:
  Imaging();
  Imaging(const Imaging&) = delete;
  Imaging& operator=(const Imaging&) = delete;
  ~Imaging();

  // The system's imaging factory, which decodes pictures; null where there is none. A desktop's is
  // an IWICImagingFactory; it is created when first asked for, because loading it takes a sixth of
  // the program's start.
  IUnknown* Factory();

 private:
  bool started_;
  IUnknown* factory_ = nullptr;
};

}  // namespace tidewell
