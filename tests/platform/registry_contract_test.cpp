#include "platform/text.h"
#include "tests/platform/contracts.h"
#include "tests/support/registry_support.h"

namespace tidewell {
namespace {

using namespace std::string_literals;
using Bytes = std::vector<std::byte>;

constexpr RegistryRoot kRoot = RegistryRoot::kCurrentUser;
constexpr std::uint32_t kAnyName = 300;  // capacities that hold what these tests store
constexpr std::uint32_t kAnyData = 100'000;

RegistryStatus Set(RegistryKey& key, const std::wstring& name, std::size_t size = 0) {
  return key.Set(name, kTypeBinary, Bytes(size));
}

RegistryStatus Query(RegistryKey& key, const std::wstring& name) {
  ValueInfo info;
  return key.Query(name, {}, info);
}

std::vector<std::wstring> ValueNames(RegistryKey& key) {
  std::vector<std::wstring> names;
  EnumeratedValue value;
  while (key.EnumValue(static_cast<std::uint32_t>(names.size()), kAnyName, kAnyData, value) ==
         kStatusSuccess) {
    names.push_back(value.name);
  }
  return names;
}

class RegistryContract : public testing::TestWithParam<Answers<Registry>::value_type> {
 protected:
  RegistryContract() { registry_->DeleteTree(kRoot, L"Contract"); }
  ~RegistryContract() override { registry_->DeleteTree(kRoot, L"Contract"); }

  std::shared_ptr<Registry> registry_ = GetParam()();
};

INSTANTIATE_TEST_SUITE_P(All, RegistryContract, testing::ValuesIn(RegistryAnswers()));

TEST_P(RegistryContract, KeysAreThereFromTheirCreationToTheirDeletion) {
  enum Action { kOpen, kCreate, kDelete };
  constexpr RegistryRoot kNone = RegistryRoot::kNone;
  const std::wstring longest = L"Contract\\" + std::wstring(255, L'k');
  const struct {
    Action action;
    RegistryRoot root;
    std::wstring path;
    bool succeeds;
  } steps[] = {
      {kOpen, kRoot, L"Contract", false},
      {kDelete, kRoot, L"Contract", false},
      {kCreate, kNone, L"Contract", false},
      {kCreate, kRoot, L"Contract\\Deeper", true},
      {kOpen, kNone, L"Contract", false},
      {kDelete, kNone, L"Contract", false},
      // An empty path is the root itself, which nobody deletes.
      {kOpen, kRoot, L"", true},
      {kDelete, kRoot, L"", false},
      {kOpen, kRoot, L"Contract\\Deeper", true},
      // Backslashes may be doubled or trail, but not lead.
      {kCreate, kRoot, L"Contract\\\\A\\\\B\\", true},
      {kOpen, kRoot, L"Contract\\A\\B", true},
      {kOpen, kRoot, L"\\Contract\\A", false},
      {kCreate, kRoot, L"\\Contract\\A", false},
      {kCreate, kRoot, longest, true},
      {kCreate, kRoot, longest + std::wstring(45, L'k'), false},
      // A tree goes with all below it and nothing beside it.
      {kCreate, kRoot, L"Contract\\Tree\\A\\B", true},
      {kCreate, kRoot, L"Contract\\Tree\\C", true},
      {kCreate, kRoot, L"Contract\\TreeHouse", true},
      {kDelete, kRoot, L"Contract\\tREE", true},
      {kOpen, kRoot, L"Contract\\Tree\\A", false},
      {kDelete, kRoot, L"Contract\\Tree\\A", false},
      {kOpen, kRoot, L"Contract\\TREEHOUSE", true},
  };
  for (const auto& step : steps) {
    SCOPED_TRACE("step " + std::to_string(&step - steps));
    if (step.action == kDelete) {
      const RegistryStatus wanted = step.succeeds ? kStatusSuccess : kStatusFileNotFound;
      EXPECT_EQ(registry_->DeleteTree(step.root, step.path), wanted);
    } else {
      const auto key = step.action == kOpen ? registry_->Open(step.root, step.path)
                                            : registry_->Create(step.root, step.path);
      EXPECT_EQ(key != nullptr, step.succeeds);
    }
  }
}

TEST_P(RegistryContract, NamesKeepTheirFirstLetterCaseAndEndAtAZero) {
  const auto key = registry_->Create(kRoot, L"Contract");
  for (const std::wstring& name : {L"\u00DCber"s, L"\u00FCBER"s, L"Key\0tail"s}) {
    ASSERT_TRUE(registry_->Create(kRoot, L"Contract\\" + name));
  }
  for (const std::wstring& name :
       {L"Gr\u00F6\u00DFe"s, L"GR\u00D6\u00DFE"s, L"Name\0tail"s, L""s}) {
    ASSERT_EQ(Set(*key, name, 1), kStatusSuccess);
  }
  EXPECT_EQ(DumpTree(*registry_, kRoot, L"Contract"),
            "[Contract]\n = binary 00\nGr\u00F6\u00DFe = binary 00\nName = binary 00\n"
            "[Contract\\Key]\n[Contract\\\u00DCber]\n");
  for (const wchar_t* name : {L"gR\u00D6\u00DFE", L"NAME", L""}) {
    EXPECT_EQ(key->DeleteValue(name), kStatusSuccess);
    EXPECT_EQ(key->DeleteValue(name), kStatusFileNotFound);
    EXPECT_EQ(Query(*key, name), kStatusFileNotFound);
  }
}

TEST_P(RegistryContract, DataComesBackAsStoredWhateverItsTypeSays) {
  const std::pair<std::uint32_t, Bytes> cases[] = {
      {kTypeString, BytesOf(L"ended\0"s)},
      {kTypeString, BytesOf(L"unended")},
      {kTypeString, BytesOf(L"in\0side\0\0"s)},
      {kTypeString, Bytes(3, std::byte{65})},
      {kTypeString, {}},
      {kTypeDword, Bytes(3, std::byte{1})},
      {kTypeBinary, Bytes(70'000, std::byte{9})},
      {0x12345678, Bytes(2)},
  };
  const auto key = registry_->Create(kRoot, L"Contract");
  const auto other = registry_->Open(kRoot, L"Contract");
  for (const auto& [type, data] : cases) {
    SCOPED_TRACE(std::to_string(type) + " " + std::to_string(data.size()));
    // Zeros in memory behind the data must not be taken for a string's end.
    Bytes memory = data;
    memory.resize(data.size() + 8);
    ASSERT_EQ(key->Set(L"Value", type, std::span(memory).first(data.size())), kStatusSuccess);
    Bytes queried(data.size() + 1);
    ValueInfo info;
    EXPECT_EQ(other->Query(L"Value", queried, info), kStatusSuccess);
    EXPECT_EQ(info.type, type);
    queried.resize(info.size);
    EXPECT_EQ(queried, data);
    EXPECT_EQ(other->Query(L"Value", std::span(memory).first(1), info),
              data.size() > 1 ? kStatusMoreData : kStatusSuccess);
    EXPECT_EQ(info.size, data.size());
    EnumeratedValue value;
    ASSERT_EQ(key->EnumValue(0, kAnyName, kAnyData, value), kStatusSuccess);
    EXPECT_EQ(value.data, data);
    EXPECT_EQ(value.type, type);
  }
}

TEST_P(RegistryContract, EnumeratingObeysTheCapacities) {
  const auto key = registry_->Create(kRoot, L"Contract");
  ASSERT_EQ(Set(*key, L"Name", 3), kStatusSuccess);
  EnumeratedValue value;
  EXPECT_EQ(key->EnumValue(0, 5, 0, value), kStatusMoreData);
  EXPECT_EQ(key->EnumValue(0, 5, 2, value), kStatusMoreData);
  EXPECT_EQ(key->EnumValue(0, 4, 3, value), kStatusMoreData);
  EXPECT_EQ(key->EnumValue(0, 5, 3, value), kStatusSuccess);
  EXPECT_EQ(key->EnumValue(1, 5, 3, value), kStatusNoMoreItems);

  ASSERT_TRUE(registry_->Create(kRoot, L"Contract\\" + std::wstring(255, L'k')));
  std::wstring name;
  EXPECT_EQ(key->EnumSubkey(0, 255, name), kStatusMoreData);
  EXPECT_EQ(key->EnumSubkey(0, 256, name), kStatusSuccess);
  EXPECT_EQ(name.size(), 255u);
  EXPECT_EQ(key->EnumSubkey(1, 256, name), kStatusNoMoreItems);
}

TEST_P(RegistryContract, DeletingWhileEnumeratingBringsTheNextToTheSameIndex) {
  const auto key = registry_->Create(kRoot, L"Contract");
  for (const wchar_t* name : {L"c", L"a", L"d", L"b", L"e"}) Set(*key, name);
  auto names = ValueNames(*key);
  ASSERT_EQ(names.size(), 5u);
  for (const std::size_t index : {1u, 3u, 0u}) {
    ASSERT_EQ(key->DeleteValue(names[index]), kStatusSuccess);
    names.erase(names.begin() + static_cast<std::ptrdiff_t>(index));
    EXPECT_EQ(ValueNames(*key), names);
  }
}

TEST_P(RegistryContract, AnOpenKeyWhoseTreeWasDeletedFailsAndBringsNothingBack) {
  const auto key = registry_->Create(kRoot, L"Contract\\Tree\\Leaf");
  ASSERT_EQ(Set(*key, L"Old"), kStatusSuccess);
  ASSERT_EQ(registry_->DeleteTree(kRoot, L"Contract\\Tree"), kStatusSuccess);
  const auto again = registry_->Create(kRoot, L"Contract\\Tree\\Leaf");
  EXPECT_NE(Query(*key, L"Old"), kStatusSuccess);
  EXPECT_NE(Set(*key, L"New"), kStatusSuccess);
  EXPECT_NE(key->DeleteValue(L"Old"), kStatusSuccess);
  EXPECT_TRUE(ValueNames(*key).empty());
  EXPECT_TRUE(ValueNames(*again).empty());
}

}  // namespace
}  // namespace tidewell
