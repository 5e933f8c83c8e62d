#include "ui/file_icons.h"

#include <aygshell.h>

#include <algorithm>

namespace tidewell {

FileIcons::FileIcons()
    : images_(ImageList_Create(GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON),
                               ILC_COLOR32 | ILC_MASK, 0, 16)) {}

FileIcons::~FileIcons() {
  ImageList_Destroy(images_);
}

int FileIcons::Load(const std::wstring& path) {
  SHFILEINFOW info{};
  if (!SHGetFileInfo(path.c_str(), 0, &info, sizeof info,
                     SHGFI_ICON | SHGFI_SYSICONINDEX | SHGFI_SMALLICON) ||
      !info.hIcon) {
    return kNone;
  }
  const auto known = std::find(systemIndices_.begin(), systemIndices_.end(), info.iIcon);
  int image = static_cast<int>(known - systemIndices_.begin());
  if (known == systemIndices_.end()) {
    image = ImageList_ReplaceIcon(images_, -1, info.hIcon);
    if (image != kNone) systemIndices_.push_back(info.iIcon);
  }
  DestroyIcon(info.hIcon);
  return image;
}

void FileIcons::Clear() {
  ImageList_Remove(images_, -1);
  systemIndices_.clear();
}

}  // namespace tidewell
