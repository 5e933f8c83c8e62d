// The device's own small icons of files and folders, gathered in an image list. Windows only.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace tidewell {

class FileIcons {
 public:
  static constexpr int kNone = -1;

  FileIcons();
  FileIcons(const FileIcons&) = delete;
  FileIcons& operator=(const FileIcons&) = delete;
  ~FileIcons();

  HIMAGELIST Images() const { return images_; }
  // The image of a path, kNone when the device has none for it. Takes some milliseconds, the first
  // time in a process a tenth of a second.
  int Load(const std::wstring& path);
  void Clear();

 private:
  HIMAGELIST images_;
  std::vector<int> systemIndices_;  // of each image, so that equal icons are kept once
};

}  // namespace tidewell
