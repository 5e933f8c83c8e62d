// COM and its imaging factory for the length of a scope.
#pragma once

#include <imaging.h>

#include "win32/com.h"

namespace tidewell {

class Imaging {
 public:
  Imaging();
  Imaging(const Imaging&) = delete;
  Imaging& operator=(const Imaging&) = delete;
  ~Imaging();

  // Decodes pictures; null where there is none.
  IImagingFactory* Factory() const { return factory_.Get(); }

 private:
  bool started_;
  ComPointer<IImagingFactory> factory_;
};

}  // namespace tidewell
