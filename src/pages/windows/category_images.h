// The small pictures of categories, each its icon and a swatch of its colour. Windows only.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "categories/records.h"
#include "platform/scale.h"
#include "preview/color.h"

namespace tidewell {

class CategoryImages {
 public:
  explicit CategoryImages(const ScreenScale& scale);
  CategoryImages(const CategoryImages&) = delete;
  CategoryImages& operator=(const CategoryImages&) = delete;
  ~CategoryImages();

  HIMAGELIST Images() const { return images_; }
  // A category without an icon leaves its place free, one without a colour has an empty frame.
  int Add(CategoryIcon* icon, Color color);
  void Clear();

 private:
  int side_;         // of an icon, which is as high as the picture
  int swatchWidth_;  // with its frame
  int gap_;
  HIMAGELIST images_;
};

}  // namespace tidewell
