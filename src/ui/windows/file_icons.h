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
  // The image of a path, or of its kind when the device finds nothing there (a path too long, a
  // file just gone); kNone without either. Takes some milliseconds, the first time in a process a
  // tenth of a second.
  int Load(const std::wstring& path, bool isFolder);
  void Clear();

 private:
  int Add(HICON icon, int systemIndex);

  HIMAGELIST images_;
  std::vector<int> systemIndices_;  // of each image, so that equal icons are kept once
};

}  // namespace tidewell
