#include "platform/desktop/imaging.h"

#include <gtest/gtest.h>
#include <wincodec.h>

namespace tidewell {

namespace {

TEST(Imaging, OffersTheSystemsFactoryOnceAskedFor) {
  Imaging imaging;
  IUnknown* factory = imaging.Factory();
  ASSERT_NE(factory, nullptr);
  EXPECT_EQ(imaging.Factory(), factory);
  IUnknown* asked = nullptr;
  ASSERT_EQ(factory->QueryInterface(IID_IWICImagingFactory, reinterpret_cast<void**>(&asked)),
            S_OK);
  asked->Release();
}

}  // namespace

}  // namespace tidewell
