#include "settings/settings_store.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>

#include "platform/text.h"
#include "settings/read_ahead.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kProgramFolder = L"\\Velmont\\Tidewell";
constexpr const wchar_t* kEnglishLibrary = L"\\LangRes\\TWEngRc.dll";

bool ShowsTwelveHours(const std::wstring& timeStyle) {
  // "49" counts as a 24-hour clock too, as the Today item has it.
  return !timeStyle.starts_with(L"1") && !timeStyle.starts_with(L"49");
}

class ValueCounter final : public SettingVisitor {
 public:
  void Visit(DwordSetting&) override { ++count; }
  void Visit(StringSetting&) override { ++count; }
  void Visit(FlagArraySetting&) override { ++count; }
  using SettingVisitor::Visit;

  std::size_t count = 0;
};

void LoadGroup(RegistryKey* key, SettingGroup& group, const LoadContext& context) {
  ValueCounter counter;
  group.Accept(counter);
  ReadAhead values(key, counter.count);
  group.Load(&values, context);
}

void LoadGroup(Registry& registry, SettingGroup& group, const LoadContext& context) {
  const FlushedKey key = CreateSettingKey(registry, group.Key());
  LoadGroup(key.Get(), group, context);
}

void SaveGroup(Registry& registry, SettingGroup& group) {
  const FlushedKey key = CreateSettingKey(registry, group.Key());
  group.Save(key.Get());
}

// A write-back of something that may well be the same: only a difference makes it a change, so
// that a save without one writes nothing.
void SetIfDifferent(DwordSetting& setting, std::uint32_t value) {
  if (setting.Value() != value) setting.Set(value);
}

// What only looks wrong because a part of it was refused is put right for this run, and not saved.
void Repair(DwordSetting& setting, std::uint32_t value, bool isRead) {
  if (isRead) {
    setting.Set(value);
  } else {
    setting.Replace(value);
  }
}

bool AreRead(std::span<const DwordSetting* const> settings) {
  return std::ranges::none_of(settings,
                              [](const DwordSetting* setting) { return setting->WasRefused(); });
}

bool IsPermutation(std::span<DwordSetting* const> settings) {
  std::uint32_t seen = 0;
  for (const DwordSetting* setting : settings) {
    if (setting->Value() < settings.size()) seen |= 1u << setting->Value();
  }
  return seen == (1u << settings.size()) - 1;
}

}  // namespace

SettingsStore::SettingsStore() = default;
SettingsStore::~SettingsStore() = default;

std::array<SettingGroup*, 16> SettingsStore::Groups() {
  return {&today,     &pocketInformant, &agendaFusion, &root,          &calendar, &tasks,
          &notes,     &contacts,        &messages,     &specialEvents, &fonts,    &colors,
          &customPim, &tabSettings,     &categories,   &iconSet};
}

void SettingsStore::Load(const Machine& machine, const ScreenScale& scale, Language& language) {
  isLoaded_ = false;
  Registry& registry = machine.registry;
  LoadContext context;
  context.scale = scale;
  context.firstDayOfWeek =
      static_cast<std::uint32_t>(ParseNumber(machine.locale.FirstDayOfWeek(), 10));

  twelveHourClock = ShowsTwelveHours(machine.locale.TimeStyle());
  LoadInstallPaths(registry, context);
  LoadGroup(registry, pocketInformant, context);
  LoadGroup(registry, agendaFusion, context);
  themeColors = ReadThemeColors(registry, machine.system.Version());
  LoadGroup(registry, root, context);

  language.Load(machine.libraries, root.SelectedLangResFile.Value(),
                installFolder + kEnglishLibrary);

  LoadGroup(registry, calendar, context);
  RepairCalendar();
  LoadGroup(registry, tasks, context);
  LoadGroup(registry, notes, context);
  LoadGroup(registry, contacts, context);
  LoadGroup(registry, messages, context);
  LoadGroup(registry, specialEvents, context);
  LoadGroup(registry, fonts, context);
  LoadGroup(registry, colors, context);
  LoadGroup(registry, customPim, context);
  LoadTabs(registry, context, language);
  ChooseActiveTab();
  LoadGroup(registry, categories, context);
  LoadGroup(registry, iconSet, context);
  isLoaded_ = true;
}

void SettingsStore::LoadInstallPaths(Registry& registry, LoadContext& context) {
  // This key belongs to the Today screen and is never created.
  const FlushedKey key = OpenSettingKey(registry, today.Key());
  today.Load(key.Get(), context);
  installFolder = today.ProgramFiles.Value() + kProgramFolder;
  todayItemFolder = today.InstallPath.Value() + kProgramFolder;
  context.installFolder = installFolder;
}

void SettingsStore::RepairCalendar() {
  const std::int64_t start = calendar.TimelinesStart.Signed();
  if (start + calendar.TimelinesLength.Signed() + 6 > 24) {
    const std::array<const DwordSetting*, 2> parts = {&calendar.TimelinesStart,
                                                      &calendar.TimelinesLength};
    Repair(calendar.TimelinesLength, static_cast<std::uint32_t>(18 - start), AreRead(parts));
  }

  const std::array<DwordSetting*, 6> titles = {
      &calendar.CalTitlesOrder0, &calendar.CalTitlesOrder1, &calendar.CalTitlesOrder2,
      &calendar.CalTitlesOrder3, &calendar.CalTitlesOrder4, &calendar.CalTitlesOrder5};
  if (IsPermutation(titles)) return;
  const bool isRead = AreRead(titles);
  for (std::uint32_t i = 0; i < titles.size(); ++i) Repair(*titles[i], i, isRead);
}

void SettingsStore::LoadTabs(Registry& registry, const LoadContext& context,
                             const Language& language) {
  tabs.clear();
  const FlushedKey key = CreateSettingKey(registry, tabSettings.Key());
  LoadGroup(key.Get(), tabSettings, context);
  for (const BuiltInTab& tab : tabSettings.builtInTabs) {
    TabEntry entry;
    entry.type = tab.type;
    entry.order = tab.order.Signed();
    entry.enabled = tab.enabled.Value();
    entry.caption = language.Text(tab.captionId);
    InsertByOrder(tabs, std::move(entry));
  }
  bool isWhole = hostedPlugins_.Read(registry, key.Get(), tabs);
  Renumber(tabs);
  for (const BuiltInTab& tab : tabSettings.builtInTabs) {
    isWhole = isWhole && !tab.enabled.WasRefused() && !tab.order.WasRefused();
  }
  partOfTheTabs_.reset();
  if (!isWhole) partOfTheTabs_ = tabs;
}

void SettingsStore::ChooseActiveTab() {
  const TabEntry* active = FindByOrder(tabs, root.ActiveTab.Signed());
  const bool usable = active && active->enabled == 1 && active->type != TabType::kHosted;
  if (!usable) root.ActiveTab.Set(1);

  const std::uint32_t chosen = tabSettings.DfltTab.Value();
  if (tabSettings.DfltTabOnStartup.Value() != 1 || chosen >= tabSettings.builtInTabs.size()) return;
  const TabEntry* entry = FindByType(tabs, tabSettings.builtInTabs[chosen].type);
  if (entry) root.ActiveTab.Set(static_cast<std::uint32_t>(entry->order));
}

void SettingsStore::Save(Registry& registry, const ScreenScale& scale) {
  if (!isLoaded_) return;
  SaveGroup(registry, root);

  // A pinned month needs the room.
  const bool low = root.dHeightLimit.Signed() < scale.ScaleX(200) &&
                   (!root.dHeightLimit.WasRefused() || root.dHeightLimit.IsChanged());
  if (calendar.PinnedMonthlyClr.Value() == 1 && low) calendar.PinnedMonthlyClr.Set(0);
  SaveGroup(registry, calendar);

  SaveGroup(registry, tasks);
  SaveGroup(registry, notes);
  SaveGroup(registry, contacts);
  SaveGroup(registry, messages);
  SaveGroup(registry, specialEvents);
  SaveGroup(registry, fonts);
  SaveGroup(registry, colors);
  SaveGroup(registry, customPim);
  SaveTabs(registry);
  SaveGroup(registry, categories);
  SaveGroup(registry, iconSet);
}

void SettingsStore::SaveTabs(Registry& registry) {
  const FlushedKey key = CreateSettingKey(registry, tabSettings.Key());
  // The places in a list with gaps are not the user's, unless he has edited it.
  const bool isKept = partOfTheTabs_ == tabs;
  if (!isKept) WriteBackBuiltInTabs();
  tabSettings.Save(key.Get());
  if (!isKept) hostedPlugins_.Save(registry, tabs);
}

void SettingsStore::WriteBackBuiltInTabs() {
  for (const BuiltInTab& tab : tabSettings.builtInTabs) {
    const TabEntry* entry = FindByType(tabs, tab.type);
    if (!entry) continue;
    SetIfDifferent(tab.enabled, entry->enabled);
    SetIfDifferent(tab.order, static_cast<std::uint32_t>(entry->order));
  }
}

}  // namespace tidewell
