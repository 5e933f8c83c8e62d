#include "platform/memory/memory_libraries.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"

namespace tidewell {

namespace {

std::wstring Folded(std::wstring path) {
  std::transform(path.begin(), path.end(), path.begin(), FoldCase);
  return path;
}

}  // namespace

class MemoryLibraries::Library final : public ResourceLibrary {
 public:
  Library(std::shared_ptr<const Texts> texts, std::shared_ptr<int> loaded)
      : texts_(std::move(texts)), loaded_(std::move(loaded)) {}

  // A library cannot tell an empty text from an absent one.
  std::optional<std::wstring> FindText(int id) const override {
    const auto found = texts_->find(id);
    if (found == texts_->end() || found->second.empty()) return std::nullopt;
    return found->second;
  }
  void* Handle() const override { return nullptr; }

 private:
  std::shared_ptr<const Texts> texts_;
  std::shared_ptr<int> loaded_;
};

void MemoryLibraries::Put(const std::wstring& path, Texts texts) {
  libraries_[Folded(path)] = std::make_shared<const Texts>(std::move(texts));
}

std::unique_ptr<ResourceLibrary> MemoryLibraries::Load(const std::wstring& path) {
  const auto found = libraries_.find(Folded(path));
  if (found == libraries_.end()) return nullptr;
  return std::make_unique<Library>(found->second, loaded_);
}

}  // namespace tidewell
