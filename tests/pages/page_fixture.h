// A device in memory with everything that pages ask for, and its settings.
#pragma once

#include <gtest/gtest.h>

#include "pages/page_context.h"
#include "platform/memory/memory_machine.h"

namespace tidewell {

class PageFixture : public testing::Test {
 protected:
  // A VGA device, which has every row.
  PageFixture() {
    UseScreen(480, 640, 192);
    for (const wchar_t* name : {L"Business", L"Family"}) categories.Add({name, 1});
  }
  void UseScreen(int width, int height, int dpi) {
    machine.system.screen = {width, height, dpi, dpi};
    context.scale = ScreenScale(dpi, dpi, false);
    Language loaded;  // the pages have one of their own
    store.Load(door, context.scale, loaded);
  }
  void Install(const wchar_t* key, const wchar_t* value,
               RegistryRoot root = RegistryRoot::kCurrentUser) {
    machine.registry.Create(root, key)->Set(value, kTypeString, {});
  }
  void InstallCompanion() { Install(L"SOFTWARE\\Velmont Calendar", L"ExecutablePath"); }
  void InstallOtherPrograms() {
    Install(L"Software\\WebIS\\PocketInformant", L"version");
    Install(L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath");
    Install(L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion", L"VerMajor",
            RegistryRoot::kLocalMachine);
  }

  MemoryMachine machine;
  Machine door = machine.Door();
  SettingsStore store;
  CategoryCatalog categories{door, store};
  Language language;
  PageContext context{door, store, categories, language, {}};
};

}  // namespace tidewell
