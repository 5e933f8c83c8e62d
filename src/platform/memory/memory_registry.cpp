#include "platform/memory/memory_registry.h"

#include <algorithm>
#include <string_view>
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

const std::wstring& NameOf(const Value& value) {
  return value.name;
}

template <typename NodePointer>
const std::wstring& NameOf(const NodePointer& node) {
  return node->name;
}

template <typename Item>
auto FindByName(std::vector<Item>& items, std::wstring_view name) {
  return std::find_if(items.begin(), items.end(),
                      [&](const Item& item) { return EqualIgnoringCase(NameOf(item), name); });
}

template <typename Item>
Item& Insert(std::vector<Item>& items, Item item, MemoryRegistry::Order order) {
  auto place = items.end();
  if (order == MemoryRegistry::Order::kSorted) {
    place = std::find_if(items.begin(), items.end(), [&](const Item& other) {
      return CompareFolded(NameOf(item), NameOf(other)) < 0;
    });
  }
  return *items.insert(place, std::move(item));
}

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
  std::vector<Value> values;
  std::vector<std::shared_ptr<Node>> subkeys;

  // The node at the end of `path`, null when a key on the way is absent.
  static std::shared_ptr<Node> Walk(std::shared_ptr<Node> node, std::wstring_view path);
  void MarkDeleted();
};

std::shared_ptr<MemoryRegistry::Node> MemoryRegistry::Node::Walk(std::shared_ptr<Node> node,
                                                                 std::wstring_view path) {
  while (node && !path.empty()) {
    const auto found = FindByName(node->subkeys, TakeName(path));
    node = found == node->subkeys.end() ? nullptr : *found;
  }
  return node;
}

void MemoryRegistry::Node::MarkDeleted() {
  isDeleted = true;
  for (const auto& subkey : subkeys) subkey->MarkDeleted();
}

// An open key outlives the deletion of what it stands for; every operation then fails.
class MemoryRegistry::OpenKey final : public RegistryKey {
 public:
  OpenKey(std::shared_ptr<Node> node, Order order) : node_(std::move(node)), order_(order) {}

  RegistryStatus Query(const std::wstring& name, std::span<std::byte> buffer,
                       ValueInfo& info) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    const auto found = FindByName(node_->values, UpToZero(name));
    if (found == node_->values.end()) return kStatusFileNotFound;
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
    const auto found = FindByName(node_->values, key);
    Value& value = found != node_->values.end()
                       ? *found
                       : Insert(node_->values, Value{std::wstring(key), type, {}}, order_);
    value.type = type;
    value.data.assign(data.begin(), data.end());
    return kStatusSuccess;
  }

  RegistryStatus DeleteValue(const std::wstring& name) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    const auto found = FindByName(node_->values, UpToZero(name));
    if (found == node_->values.end()) return kStatusFileNotFound;
    node_->values.erase(found);
    return kStatusSuccess;
  }

  RegistryStatus EnumValue(std::uint32_t index, std::uint32_t nameCapacity,
                           std::uint32_t dataCapacity, EnumeratedValue& value) override {
    if (node_->isDeleted) return kStatusKeyDeleted;
    if (index >= node_->values.size()) return kStatusNoMoreItems;
    const Value& found = node_->values[index];
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
    if (index >= node_->subkeys.size()) return kStatusNoMoreItems;
    const std::wstring& found = node_->subkeys[index]->name;
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
    const auto found = FindByName(node->subkeys, name);
    if (found != node->subkeys.end()) {
      node = *found;
    } else {
      const auto subkey = std::make_shared<Node>();
      subkey->name = name;
      node = Insert(node->subkeys, subkey, order_);
    }
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
  const auto found = FindByName(parent->subkeys, isNested ? whole.substr(split + 1) : whole);
  if (found == parent->subkeys.end()) return kStatusFileNotFound;
  (*found)->MarkDeleted();
  parent->subkeys.erase(found);
  return kStatusSuccess;
}

}  // namespace tidewell
