#include "tests/platform/registry_contract.h"

#include <algorithm>
#include <set>

#include "platform/text.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using Bytes = std::vector<std::byte>;

constexpr std::uint32_t kAnyName = 300;  // capacities that hold what these tests store
constexpr std::uint32_t kAnyData = 300;

Bytes BytesFrom(std::initializer_list<int> values) {
  Bytes bytes;
  for (const int value : values) bytes.push_back(static_cast<std::byte>(value));
  return bytes;
}

Bytes Stored(RegistryKey& key, const std::wstring& name, std::uint32_t* type = nullptr) {
  Bytes buffer(100'000);
  ValueInfo info;
  EXPECT_EQ(key.Query(name, buffer, info), kStatusSuccess);
  buffer.resize(std::min<std::size_t>(info.size, buffer.size()));
  if (type) *type = info.type;
  return buffer;
}

bool HasValue(RegistryKey& key, const std::wstring& name) {
  ValueInfo info;
  return key.Query(name, {}, info) == kStatusSuccess;
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

TEST_P(RegistryContract, OpeningAnAbsentKeyFailsAndMakesNothing) {
  EXPECT_EQ(registry_->Open(kRoot, path_), nullptr);
  EXPECT_EQ(registry_->Open(kRoot, Below(L"Deeper")), nullptr);
  EXPECT_EQ(registry_->Open(kRoot, path_), nullptr);
  EXPECT_NE(registry_->Create(kRoot, Below(L"Deeper")), nullptr);
  EXPECT_NE(registry_->Open(kRoot, path_), nullptr);
}

TEST_P(RegistryContract, WithoutARootNothingOpens) {
  EXPECT_EQ(registry_->Open(RegistryRoot::kNone, path_), nullptr);
  EXPECT_EQ(registry_->Create(RegistryRoot::kNone, path_), nullptr);
  EXPECT_EQ(registry_->DeleteTree(RegistryRoot::kNone, path_), kStatusFileNotFound);
}

TEST_P(RegistryContract, AnEmptyPathIsTheRootItselfWhichIsNotDeleted) {
  EXPECT_NE(registry_->Open(kRoot, L""), nullptr);
  EXPECT_NE(registry_->Create(kRoot, L""), nullptr);
  ASSERT_NE(Create(), nullptr);
  EXPECT_EQ(registry_->DeleteTree(kRoot, L""), kStatusFileNotFound);
  EXPECT_NE(registry_->Open(kRoot, path_), nullptr);
}

TEST_P(RegistryContract, BackslashesMayBeDoubledOrTrailButNotLead) {
  ASSERT_NE(registry_->Create(kRoot, Below(L"A\\\\B\\")), nullptr);
  EXPECT_NE(registry_->Open(kRoot, Below(L"A\\B")), nullptr);
  EXPECT_NE(registry_->Open(kRoot, Below(L"A\\\\B\\\\")), nullptr);
  EXPECT_EQ(registry_->Open(kRoot, L'\\' + Below(L"A")), nullptr);
  EXPECT_EQ(registry_->Create(kRoot, L'\\' + Below(L"A")), nullptr);
}

TEST_P(RegistryContract, KeyNamesHoldUpTo255Characters) {
  const std::wstring longest(255, L'k');
  EXPECT_NE(registry_->Create(kRoot, Below(longest)), nullptr);
  EXPECT_NE(registry_->Open(kRoot, Below(longest)), nullptr);
  EXPECT_EQ(registry_->Create(kRoot, Below(std::wstring(300, L'k'))), nullptr);
}

TEST_P(RegistryContract, ValueNamesHoldUpTo16383Characters) {
  const auto key = Create();
  const std::wstring longest(16383, L'v');
  const Bytes data = BytesFrom({1});
  EXPECT_EQ(key->Set(longest, kTypeBinary, data), kStatusSuccess);
  EXPECT_EQ(Stored(*key, longest), data);
  EXPECT_NE(key->Set(longest + L'v', kTypeBinary, data), kStatusSuccess);
  EXPECT_FALSE(HasValue(*key, longest + L'v'));
}

TEST_P(RegistryContract, LetterCaseIsIgnoredAndKeptAsFirstWritten) {
  ASSERT_NE(registry_->Create(kRoot, Below(L"\u00DCber")), nullptr);
  ASSERT_NE(registry_->Create(kRoot, Below(L"\u00FCBER")), nullptr);
  const auto key = Create();
  for (const wchar_t* name : {L"Gr\u00F6\u00DFe", L"GR\u00D6\u00DFE"}) {
    ASSERT_EQ(key->Set(name, kTypeBinary, BytesFrom({1})), kStatusSuccess);
  }
  EXPECT_EQ(
      DumpTree(*registry_, kRoot, path_),
      "[" + Utf8(path_) + "]\nGr\u00F6\u00DFe = binary 01\n[" + Utf8(path_) + "\\\u00DCber]\n");
  EXPECT_EQ(key->DeleteValue(L"gR\u00D6\u00DFE"), kStatusSuccess);
  EXPECT_EQ(registry_->DeleteTree(kRoot, Below(L"\u00FCbEr")), kStatusSuccess);
  EXPECT_EQ(DumpTree(*registry_, kRoot, path_), "[" + Utf8(path_) + "]\n");
}

TEST_P(RegistryContract, TheUnnamedValueIsAValueLikeOthers) {
  const auto key = Create();
  EXPECT_FALSE(HasValue(*key, L""));
  ASSERT_EQ(key->Set(L"", kTypeBinary, BytesFrom({7})), kStatusSuccess);
  EXPECT_EQ(ValueNames(*key), std::vector<std::wstring>{L""});
  EXPECT_EQ(key->DeleteValue(L""), kStatusSuccess);
  EXPECT_FALSE(HasValue(*key, L""));
}

TEST_P(RegistryContract, NamesEndAtTheirFirstZero) {
  const auto key = registry_->Create(kRoot, Below(std::wstring(L"Key\0tail", 8)));
  ASSERT_EQ(key->Set(std::wstring(L"Name\0tail", 9), kTypeBinary, {}), kStatusSuccess);
  EXPECT_EQ(ValueNames(*registry_->Open(kRoot, Below(L"Key"))), std::vector<std::wstring>{L"Name"});
}

TEST_P(RegistryContract, AQueryTellsTypeAndSizeWhateverTheCapacity) {
  struct Case {
    std::size_t stored;
    std::size_t capacity;
    RegistryStatus status;
  };
  const Case cases[] = {
      {4, 0, kStatusSuccess}, {4, 3, kStatusMoreData}, {4, 4, kStatusSuccess},
      {4, 9, kStatusSuccess}, {8, 4, kStatusMoreData}, {3, 4, kStatusSuccess},
      {0, 0, kStatusSuccess}, {0, 4, kStatusSuccess},
  };
  const auto key = Create();
  for (const Case& c : cases) {
    const Bytes data(c.stored, std::byte{0x5A});
    ASSERT_EQ(key->Set(L"Value", 42, data), kStatusSuccess);
    Bytes buffer(c.capacity);
    ValueInfo info;
    EXPECT_EQ(key->Query(L"Value", buffer, info), c.status) << c.stored << " " << c.capacity;
    EXPECT_EQ(info.type, 42u);
    EXPECT_EQ(info.size, c.stored) << c.capacity;
    if (c.status == kStatusSuccess && c.capacity >= c.stored) {
      EXPECT_TRUE(std::equal(data.begin(), data.end(), buffer.begin()));
    }
  }
}

TEST_P(RegistryContract, AbsentValuesAreNotFound) {
  const auto key = Create();
  Bytes buffer(4);
  ValueInfo info;
  EXPECT_EQ(key->Query(L"Absent", buffer, info), kStatusFileNotFound);
  EXPECT_EQ(key->Query(L"Absent", {}, info), kStatusFileNotFound);
  EXPECT_EQ(key->DeleteValue(L"Absent"), kStatusFileNotFound);
}

TEST_P(RegistryContract, DataComesBackAsStoredWhateverItsTypeSays) {
  struct Case {
    std::uint32_t type;
    Bytes data;
  };
  const Case cases[] = {
      {kTypeString, BytesOf(std::wstring(L"ended\0", 6))},
      {kTypeString, BytesOf(L"unended")},
      {kTypeString, BytesOf(std::wstring(L"in\0side\0\0", 9))},
      {kTypeString, BytesFrom({65, 0, 66})},
      {kTypeString, BytesFrom({65})},
      {kTypeString, BytesFrom({0})},
      {kTypeString, {}},
      {kTypeDword, BytesFrom({1, 2, 3})},
      {kTypeDword, BytesFrom({1, 2, 3, 4, 5})},
      {kTypeDword, {}},
      {kTypeBinary, Bytes(70'000, std::byte{9})},
      {0, BytesFrom({1})},
      {7, BytesOf(L"many")},
      {0x12345678, BytesFrom({1, 2})},
  };
  const auto key = Create();
  for (const Case& c : cases) {
    // Zeros in memory behind the data must not be taken for a string's end.
    Bytes memory = c.data;
    memory.resize(c.data.size() + 8);
    ASSERT_EQ(key->Set(L"Value", c.type, std::span(memory).first(c.data.size())), kStatusSuccess);
    std::uint32_t type = 0;
    EXPECT_EQ(Stored(*key, L"Value", &type), c.data) << c.type << " " << c.data.size();
    EXPECT_EQ(type, c.type);
    EnumeratedValue value;
    ASSERT_EQ(key->EnumValue(0, kAnyName, 100'000, value), kStatusSuccess);
    EXPECT_EQ(value.data, c.data) << c.type << " " << c.data.size();
    EXPECT_EQ(value.type, c.type);
  }
}

TEST_P(RegistryContract, EnumeratingValuesObeysBothCapacities) {
  const auto key = Create();
  ASSERT_EQ(key->Set(L"Name", kTypeBinary, BytesFrom({1, 2, 3})), kStatusSuccess);
  EnumeratedValue value;
  EXPECT_EQ(key->EnumValue(0, 5, 0, value), kStatusMoreData);
  EXPECT_EQ(key->EnumValue(0, 5, 2, value), kStatusMoreData);
  EXPECT_EQ(key->EnumValue(0, 4, 3, value), kStatusMoreData);
  ASSERT_EQ(key->EnumValue(0, 5, 3, value), kStatusSuccess);
  EXPECT_EQ(value.name, L"Name");
  EXPECT_EQ(value.data, BytesFrom({1, 2, 3}));
  EXPECT_EQ(key->EnumValue(1, 5, 3, value), kStatusNoMoreItems);
  ASSERT_EQ(key->Set(L"Name", kTypeBinary, {}), kStatusSuccess);
  EXPECT_EQ(key->EnumValue(0, 5, 0, value), kStatusSuccess);
}

TEST_P(RegistryContract, EnumeratingSubkeysObeysTheNamesCapacity) {
  const auto key = Create();
  const std::wstring longest(255, L'k');
  ASSERT_NE(registry_->Create(kRoot, Below(longest)), nullptr);
  std::wstring name;
  EXPECT_EQ(key->EnumSubkey(0, 255, name), kStatusMoreData);
  EXPECT_EQ(key->EnumSubkey(0, 256, name), kStatusSuccess);
  EXPECT_EQ(name, longest);
  EXPECT_EQ(key->EnumSubkey(1, 256, name), kStatusNoMoreItems);
}

TEST_P(RegistryContract, DeletingWhileEnumeratingBringsTheNextToTheSameIndex) {
  const auto key = Create();
  for (const wchar_t* name : {L"c", L"a", L"d", L"b", L"e"}) {
    ASSERT_EQ(key->Set(name, kTypeBinary, {}), kStatusSuccess);
  }
  auto names = ValueNames(*key);
  ASSERT_EQ(names.size(), 5u);
  for (const std::size_t index : {1u, 3u, 0u}) {
    ASSERT_EQ(key->DeleteValue(names[index]), kStatusSuccess);
    names.erase(names.begin() + static_cast<std::ptrdiff_t>(index));
    EXPECT_EQ(ValueNames(*key), names);
  }
}

TEST_P(RegistryContract, DeletingATreeTakesAllBelowAndNothingBeside) {
  for (const wchar_t* name : {L"Tree\\A\\B", L"Tree\\A\\C", L"Tree\\D", L"TreeHouse"}) {
    ASSERT_TRUE(SetDword(*registry_, kRoot, Below(name), L"Number", 1));
  }
  EXPECT_EQ(registry_->DeleteTree(kRoot, Below(L"Tree")), kStatusSuccess);
  EXPECT_EQ(DumpTree(*registry_, kRoot, path_),
            "[" + Utf8(path_) + "]\n[" + Utf8(path_) + "\\TreeHouse]\nNumber = 1\n");
  EXPECT_EQ(registry_->DeleteTree(kRoot, Below(L"Tree")), kStatusFileNotFound);
  EXPECT_EQ(registry_->DeleteTree(kRoot, Below(L"Tree\\A")), kStatusFileNotFound);
}

TEST_P(RegistryContract, AnOpenKeyWhoseTreeWasDeletedFailsAndBringsNothingBack) {
  const auto key = registry_->Create(kRoot, Below(L"Tree\\Leaf"));
  ASSERT_EQ(key->Set(L"Old", kTypeBinary, {}), kStatusSuccess);
  ASSERT_EQ(registry_->DeleteTree(kRoot, Below(L"Tree")), kStatusSuccess);
  ValueInfo info;
  EnumeratedValue value;
  std::wstring name;
  EXPECT_NE(key->Query(L"Old", {}, info), kStatusSuccess);
  EXPECT_NE(key->Set(L"New", kTypeBinary, {}), kStatusSuccess);
  EXPECT_NE(key->DeleteValue(L"Old"), kStatusSuccess);
  EXPECT_NE(key->EnumValue(0, kAnyName, kAnyData, value), kStatusSuccess);
  EXPECT_NE(key->EnumSubkey(0, kAnyName, name), kStatusSuccess);
  key->Flush();

  const auto again = registry_->Create(kRoot, Below(L"Tree\\Leaf"));
  EXPECT_EQ(ValueNames(*again), std::vector<std::wstring>());
  EXPECT_NE(key->Set(L"New", kTypeBinary, {}), kStatusSuccess);
}

TEST_P(RegistryContract, TwoOpenKeysSeeTheSameValues) {
  const auto first = Create();
  const auto second = registry_->Open(kRoot, path_);
  ASSERT_EQ(first->Set(L"Value", kTypeBinary, BytesFrom({1})), kStatusSuccess);
  EXPECT_EQ(Stored(*second, L"Value"), BytesFrom({1}));
  ASSERT_EQ(second->DeleteValue(L"Value"), kStatusSuccess);
  EXPECT_FALSE(HasValue(*first, L"Value"));
}

}  // namespace
}  // namespace tidewell
