// Where the device's own categories come from.
#pragma once

namespace tidewell {

class CategoryCatalog;

class CategorySource {
 public:
  virtual ~CategorySource() = default;
  // Adds every category, in the source's own order.
  virtual void ReadInto(CategoryCatalog& catalog) = 0;
};

}  // namespace tidewell
