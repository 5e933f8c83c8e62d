#include "platform/memory/memory_registry.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/text.h"

namespace tidewell {

namespace {

constexpr RegistryStatus kStatusInvalidParameter = 87;
constexpr RegistryStatus kStatusKeyDeleted = 1018;
constexpr std::size_t kLongestKeyName = 255;
constexpr std::size_t kLongestValueName = 16383;

struct Value {
  std::wstring name;
  std::uint32_t type = 0;
  std::vector<std::byte> data;
};

struct FoldedHash {
  std::size_t operator()(std::wstring_view name) const {
    std::size_t hash = 0;
    for (const wchar_t unit : name) hash = hash * 31 + static_cast<std::size_t>(FoldCase(unit));
    return hash;
  }
};

struct FoldedEqual {
  bool operator()(std::wstring_view left, std::wstring_view right) const {
    return EqualIgnoringCase(left, right);
  }
};

// Values or subkeys in their order of enumeration, found by name however many there are.
template <typename Pointer>
class NamedItems {
 public:
  std::size_t Size() const { return items_.size(); }
  const Pointer& At(std::size_t index) const { return items_[index]; }
  Pointer Find(std::wstring_view name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
  }
  void Insert(const Pointer& item, MemoryRegistry::Order order) {
    auto place = items_.end();
    if (order == MemoryRegistry::Order::kSorted) {
      place = std::upper_bound(items_.begin(), items_.end(), item,
                               [](const Pointer& left, const Pointer& right) {
                                 return CompareFolded(left->name, right->name) < 0;
                               });
    }
    items_.insert(place, item);
    byName_.emplace(item->name, item);
  }
  void Erase(const Pointer& item) {
    byName_.erase(item->name);
    items_.erase(std::find(items_.begin(), items_.end(), item));
  }

 private:
  std::vector<Pointer> items_;
  std::unordered_map<std::wstring_view, Pointer, FoldedHash, FoldedEqual> byName_;
};

// The system takes names up to their first zero.
std::wstring_view UpToZero(std::wstring_view name) {
  return name.substr(0, name.find(L'\0'));
}

// Takes the next name off `path`, over any number of backslashes.
std::wstring_view TakeName(std::wstring_view& path) {
  const std::size_t end = std::min(path.find(L'\\'), path.size());
  const std::wstring_view name = path.substr(0, end);
  path.remove_prefix(std::min(path.find_first_not_of(L'\\', end), path.size()));
  return name;
}

}  // namespace

struct MemoryRegistry::Node {
  std::wstring name;
  bool isDeleted = false;
  NamedItems<std::shared_ptr<Value>> values;
  NamedItems<std::shared_ptr<Node>> subkeys;

  // The node at the end of `path`, null when a key on the way is absent.
  static std::shared_ptr<Node> Walk(std::shared_ptr<Node> node, std::wstring_view path);
  void MarkDeleted();
};

std::shared_ptr<MemoryRegistry::Node> MemoryRegistry::Node::Walk(std::shared_ptr<Node> node,
                                                                 std::wstring_view path) {
  while (node && !path.empty()) {
    node = node->subkeys.Find(TakeName(path));
  }
  return node;
}

void MemoryRegistry::Node::MarkDeleted() {
  isDeleted = true;
  for (std::size_t i = 0; i < subkeys.Size(); ++i) subkeys.At(i)->MarkDeleted();
}

// An open key outlives the deletion of what it stands for; every operation then fails.
class MemoryRegistry::OpenKey final : public RegistryKey {
 public:
  OpenKey(std::shared_ptr<Node> node, Order order) : node_(std::move(node)), order_(order) {}

  RegistryStatus Query(const std::wstring& name, std::span<std::byte> buffer,
                       ValueInfo& info) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    const auto found = node_->values.Find(UpToZero(name));
    if (!found) return kStatusFileNotFound;
    info = {found->type, static_cast<std::uint32_t>(found->data.size())};
    if (buffer.empty()) return kStatusSuccess;
    if (buffer.size() < found->data.size()) return kStatusMoreData;
    std::copy(found->data.begin(), found->data.end(), buffer.begin());
    return kStatusSuccess;
  }

  RegistryStatus Set(const std::wstring& name, std::uint32_t type,
                     std::span<const std::byte> data) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    const std::wstring_view key = UpToZero(name);
    if (key.size() > kLongestValueName) return kStatusInvalidParameter;
    auto value = node_->values.Find(key);
    if (!value) {
      value = std::make_shared<Value>();
      value->name = key;
      node_->values.Insert(value, order_);
    }
    value->type = type;
    value->data.assign(data.begin(), data.end());
    return kStatusSuccess;
  }

  RegistryStatus DeleteValue(const std::wstring& name) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    const auto found = node_->values.Find(UpToZero(name));
    if (!found) return kStatusFileNotFound;
    node_->values.Erase(found);
    return kStatusSuccess;
  }

  RegistryStatus CountValues(ValueCounts& counts) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    counts = {static_cast<std::uint32_t>(node_->values.Size())};
    for (std::size_t i = 0; i < node_->values.Size(); ++i) {
      const Value& value = *node_->values.At(i);
      counts.longestName =
          std::max(counts.longestName, static_cast<std::uint32_t>(value.name.size()));
      counts.longestData =
          std::max(counts.longestData, static_cast<std::uint32_t>(value.data.size()));
    }
    return kStatusSuccess;
  }

  RegistryStatus EnumValue(std::uint32_t index, std::uint32_t nameCapacity,
                           std::uint32_t dataCapacity, EnumeratedValue& value) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    if (index >= node_->values.Size()) return kStatusNoMoreItems;
    const Value& found = *node_->values.At(index);
    if (found.name.size() >= nameCapacity || found.data.size() > dataCapacity) {
      return kStatusMoreData;
    }
    value.name = found.name;
    value.type = found.type;
    value.data = found.data;
    return kStatusSuccess;
  }

  RegistryStatus EnumSubkey(std::uint32_t index, std::uint32_t nameCapacity,
                            std::wstring& name) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    if (index >= node_->subkeys.Size()) return kStatusNoMoreItems;
    const std::wstring& found = node_->subkeys.At(index)->name;
    if (found.size() >= nameCapacity) return kStatusMoreData;
    name = found;
    return kStatusSuccess;
  }

  void Flush() override {}

 private:
  std::shared_ptr<Node> node_;
  Order order_;
};

MemoryRegistry::MemoryRegistry(Order order)
    : order_(order),
      currentUser_(std::make_shared<Node>()),
      localMachine_(std::make_shared<Node>()) {}

MemoryRegistry::~MemoryRegistry() = default;

std::shared_ptr<MemoryRegistry::Node> MemoryRegistry::RootOf(RegistryRoot root) const {
  if (root == RegistryRoot::kCurrentUser) return currentUser_;
  return root == RegistryRoot::kLocalMachine ? localMachine_ : nullptr;
}

std::unique_ptr<RegistryKey> MemoryRegistry::Open(RegistryRoot root, const std::wstring& path) {
  const auto node = Node::Walk(RootOf(root), UpToZero(path));
  return node ? std::make_unique<OpenKey>(node, order_) : nullptr;
}

std::unique_ptr<RegistryKey> MemoryRegistry::Create(RegistryRoot root, const std::wstring& path) {
  std::shared_ptr<Node> node = RootOf(root);
  std::wstring_view rest = UpToZero(path);
  while (node && !rest.empty()) {
    const std::wstring_view name = TakeName(rest);
    if (name.empty() || name.size() > kLongestKeyName) return nullptr;
    auto subkey = node->subkeys.Find(name);
    if (!subkey) {
      subkey = std::make_shared<Node>();
      subkey->name = name;
      node->subkeys.Insert(subkey, order_);
    }
    node = std::move(subkey);
  }
  return node ? std::make_unique<OpenKey>(node, order_) : nullptr;
}

RegistryStatus MemoryRegistry::DeleteTree(RegistryRoot root, const std::wstring& path) {
  std::wstring_view whole = UpToZero(path);
  while (!whole.empty() && whole.back() == L'\\') whole.remove_suffix(1);
  const std::size_t split = whole.rfind(L'\\');
  const bool isNested = split != std::wstring_view::npos;
  const auto parent = Node::Walk(RootOf(root), isNested ? whole.substr(0, split) : L"");
  if (!parent) return kStatusFileNotFound;
  const auto found = parent->subkeys.Find(isNested ? whole.substr(split + 1) : whole);
  if (!found) return kStatusFileNotFound;
  found->MarkDeleted();
  parent->subkeys.Erase(found);
  return kStatusSuccess;
}

}  // namespace tidewell
