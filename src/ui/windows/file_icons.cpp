#include "ui/windows/file_icons.h"

#include <aygshell.h>

#include <algorithm>
#include <string_view>

#include "ui/folder_listing.h"

namespace tidewell {

namespace {

constexpr UINT kWanted = SHGFI_ICON | SHGFI_SYSICONINDEX | SHGFI_SMALLICON;

}  // namespace

FileIcons::FileIcons()
    : images_(ImageList_Create(GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON),
                               ILC_COLOR32 | ILC_MASK, 0, 16)) {}

FileIcons::~FileIcons() {
  ImageList_Destroy(images_);
}

int FileIcons::Load(const std::wstring& path, bool isFolder) {
  const std::wstring_view name = NameInPath(path);
  const std::size_t dot = std::min(name.rfind(L'.'), name.size());
  const std::wstring kind = L"\\x" + std::wstring(name.substr(dot));
  const DWORD attributes = isFolder ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
  SHFILEINFOW info{};
  if (!SHGetFileInfo(path.c_str(), 0, &info, sizeof info, kWanted) &&
      !SHGetFileInfo(kind.c_str(), attributes, &info, sizeof info,
                     kWanted | SHGFI_USEFILEATTRIBUTES)) {
    return kNone;
  }
  if (!info.hIcon) return kNone;
  const int image = Add(info.hIcon, info.iIcon);
  DestroyIcon(info.hIcon);
  return image;
}

int FileIcons::Add(HICON icon, int systemIndex) {
  const auto known = std::find(systemIndices_.begin(), systemIndices_.end(), systemIndex);
  if (known != systemIndices_.end()) return static_cast<int>(known - systemIndices_.begin());
  const int image = ImageList_ReplaceIcon(images_, -1, icon);
  if (image != kNone) systemIndices_.push_back(systemIndex);
  return image;
}

void FileIcons::Clear() {
  ImageList_Remove(images_, -1);
  systemIndices_.clear();
}

}  // namespace tidewell
