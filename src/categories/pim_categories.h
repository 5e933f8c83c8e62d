// The device's own categories with their icons.
#pragma once

#include <windows.h>

#include <string>

#include "categories/category_catalog.h"
#include "categories/pim_database.h"

namespace tidewell {

// The icon of every category that the shell made.
class BitmapIcon final : public CategoryIcon {
 public:
  explicit BitmapIcon(HBITMAP bitmap) : bitmap_(bitmap) {}
  ~BitmapIcon() override { DeleteObject(bitmap_); }
  HBITMAP Bitmap() const { return bitmap_; }

 private:
  HBITMAP bitmap_;
};

// Adds what the device's database holds, icons from `iconsFolder` included. No volume, no database
// or no record adds nothing.
void ReadPimCategories(PimDatabase& database, const std::wstring& iconsFolder,
                       CategoryCatalog& catalog);

// Keeps the database open from the reading to the end of its own life.
class PimCategorySource final : public CategorySource {
 public:
  explicit PimCategorySource(std::wstring iconsFolder) : iconsFolder_(std::move(iconsFolder)) {}
  void ReadInto(CategoryCatalog& catalog) override {
    ReadPimCategories(database_, iconsFolder_, catalog);
  }

 private:
  std::wstring iconsFolder_;
  PimDatabase database_;
};

}  // namespace tidewell
