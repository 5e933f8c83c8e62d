#include "categories/windows/pim_categories.h"

#include <array>
#include <utility>

#include "platform/pim_properties.h"
#include "win32/bitmaps.h"

namespace tidewell {

namespace {

// A buffer that the database fills and enlarges.
class RecordBuffer {
 public:
  RecordBuffer() = default;
  ~RecordBuffer() { Release(); }
  RecordBuffer(const RecordBuffer&) = delete;
  RecordBuffer& operator=(const RecordBuffer&) = delete;

  void Release() {
    if (bytes_) LocalFree(bytes_);
    bytes_ = nullptr;
    capacity_ = 0;
  }
  LPBYTE* Bytes() { return &bytes_; }
  DWORD* Capacity() { return &capacity_; }
  const CEPROPVAL* Values() const { return reinterpret_cast<const CEPROPVAL*>(bytes_); }

 private:
  LPBYTE bytes_ = nullptr;
  DWORD capacity_ = 0;
};

bool Has(const CEPROPVAL& value, CEPROPID id) {
  return value.propid == id && (value.wFlags & CEDB_PROPNOTFOUND) == 0;
}

}  // namespace

HBITMAP BitmapIcon::Handle() {
  if (!bitmap_) bitmap_ = LoadBitmapFile(files_, path_);
  return bitmap_->Get();
}

void ReadPimCategories(PimDatabase& database, const std::wstring& volumePath, Files& files,
                       const std::wstring& iconsFolder, CategoryCatalog& catalog) {
  if (!database.Open(kCategoryDatabase, true, nullptr, nullptr, volumePath)) return;
  if (database.Seek(CEDB_SEEK_BEGINNING, 0) == 0) return;

  std::array<CEPROPID, 3> ids = {kPimIdProperty, kPimNameProperty, kPimFlagProperty};
  RecordBuffer buffer;
  for (;;) {
    WORD count = ids.size();
    if (CeReadRecordPropsEx(database.Handle(), CEDB_ALLOWREALLOC, &count, ids.data(),
                            buffer.Bytes(), buffer.Capacity(), nullptr) == 0) {
      return;
    }
    PimCategory category;
    if (count == ids.size() && buffer.Values()) {
      const CEPROPVAL* values = buffer.Values();
      if (Has(values[0], ids[0])) category.id = LOWORD(values[0].val.ulVal);
      if (Has(values[1], ids[1])) category.name = values[1].val.lpwstr;
      category.flag = Has(values[2], ids[2]) && values[2].val.lVal == 1;
    }
    if (CategoryRecord* record = catalog.Add(category)) {
      record->bitmap =
          std::make_unique<BitmapIcon>(files, iconsFolder + L"\\" + record->name + L".bmp");
    }
    buffer.Release();
  }
}

}  // namespace tidewell
