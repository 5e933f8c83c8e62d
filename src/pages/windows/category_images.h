// The small pictures of categories. Windows only.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "categories/records.h"
#include "platform/scale.h"

namespace tidewell {

class CategoryImages {
 public:
  explicit CategoryImages(const ScreenScale& scale);
  CategoryImages(const CategoryImages&) = delete;
  CategoryImages& operator=(const CategoryImages&) = delete;
  ~CategoryImages();

  HIMAGELIST Images() const { return images_; }
  // A category without an icon leaves its place free.
  int Add(CategoryIcon* icon);
  void Clear();

 private:
  int side_;    // of an icon
  int margin_;  // above and below it
  int width_;   // of the picture, as the next
  int height_;
  HIMAGELIST images_;
};

}  // namespace tidewell
