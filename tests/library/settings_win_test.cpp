#include <gtest/gtest.h>

#include "library/clsLibrary_win.h"
#include "library/stored_settings_win.h"
#include "tests/support/scratch_folder_win.h"
#include "tests/support/scratch_registry_win.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"

namespace library {
namespace {

using test_support::RawValue;
using test_support::ScratchFolder;
using test_support::ScratchRegistry;

const std::string userRoot = "-2147483647";
const std::string key = "SOFTWARE\\Some Maker\\Thing";

std::string read(const std::string& name, const std::string& root = userRoot) {
  return LIBRARY().REGSTRREAD(root, key, name, "default");
}

class Settings : public testing::Test {
 protected:
  ScratchRegistry registry;
};

TEST_F(Settings, WhatIsWrittenComesBack) {
  for (const std::string& text : {std::string("0"), std::string(),
                                  std::string("M\xFCller & \"Co\""), std::string(254, 'y')}) {
    EXPECT_TRUE(LIBRARY().REGSTRWRITE(userRoot, key, "v", text));
    EXPECT_EQ(ScratchRegistry::get(registry.user(), key, "v")->type, DWORD{REG_SZ});
    EXPECT_EQ(read("v"), text);
  }
  EXPECT_TRUE(LIBRARY().REGSTRWRITE("-2147483646", key, "v", "of the machine"));
  EXPECT_TRUE(LIBRARY().REGSTRWRITE("-2147483648", key, "v", "of the classes"));
  EXPECT_EQ(ScratchRegistry::text(registry.machine(), key, "v"), "of the machine");
  EXPECT_EQ(ScratchRegistry::text(registry.classes(), key, "v"), "of the classes");
  // Two operations that are named for reading write.
  EXPECT_TRUE(LIBRARY().REGBINARYREAD(userRoot, key, "bytes", {0, 255, 7}));
  EXPECT_EQ(ScratchRegistry::get(registry.user(), key, "bytes")->bytes,
            std::string("\0\xFF\x07", 3));
  EXPECT_EQ(LIBRARY().REGDWORDREAD(-2147483647, key, "number", -2), 0);
  EXPECT_EQ(ScratchRegistry::get(registry.user(), key, "number")->bytes, "\xFE\xFF\xFF\xFF");
}

TEST_F(Settings, WhatCannotBeReadIsTheDefault) {
  ScratchRegistry::put(registry.user(), key, "v", REG_DWORD, std::string("\1\0\0\0", 4));
  EXPECT_EQ(read("v"), "default");
  ScratchRegistry::putText(registry.user(), key, "v", std::string(255, 'x'));
  EXPECT_EQ(read("v"), "default");
  EXPECT_EQ(read("v", "HKCU"), "") << "no such root";
  EXPECT_FALSE(LIBRARY().REGSTRWRITE("HKCU", key, "v", "y"));

  ScratchRegistry::putText(registry.user(), key, "v", "secret");
  {
    const ScratchRegistry::Locked locked(registry.user(), key);
    ASSERT_EQ(locked.result(), ERROR_SUCCESS);
    EXPECT_EQ(read("v"), "default");
    EXPECT_FALSE(LIBRARY().REGSTRWRITE(userRoot, key, "v", "x"));
    EXPECT_FALSE(LIBRARY().REGBINARYREAD(userRoot, key, "v", {1}));
  }
  EXPECT_EQ(read("v"), "secret");
}

// Whatever lies there, a reader answers as the kind of the setting has it.
TEST_F(Settings, HostileValuesFallBack) {
  struct Hostile {
    RawValue value;
    std::string asText;  ///< "default" where it is not read as a text at all
    double asNumber;     ///< 0 where it is none
  };
  const Hostile hostile[] = {{{REG_DWORD, "\1\2\3\4"}, "default", 1},
                             {{REG_BINARY, "7"}, "default", 1},
                             {{REG_SZ, std::string(70000, '9')}, "default", 1},
                             {{REG_SZ, std::string(1, '\0')}, "", 0},
                             {{REG_SZ, std::string("banana\0", 7)}, "banana", 0},
                             {{REG_SZ, std::string("-1440\0", 6)}, "-1440", -1440},
                             {{REG_SZ, std::string("99999\0", 6)}, "99999", 99999}};
  for (const SettingRow& row : settings)
    for (const Hostile& stored : hostile) {
      SCOPED_TRACE(std::string(row.name) + " " + stored.asText);
      ScratchRegistry::put(registry.rootOf(row.setting), keyOf(row.setting), row.name,
                           stored.value.type, stored.value.bytes);
      EXPECT_EQ(readText(row.setting, "default"), stored.asText);
      if (row.kind == SettingKind::truth) {
        EXPECT_TRUE(readTruth(row.setting));
      }
      if (row.kind != SettingKind::inches) continue;
      if (stored.asNumber != 0)
        EXPECT_EQ(readNumber(row.setting), stored.asNumber);
      else
        EXPECT_THROW((void)readNumber(row.setting), values::RuntimeError);
    }
}

TEST_F(Settings, DocumentsFolder) {
  const ScratchFolder folder;
  const std::string own = LIBRARY().FILENAMELENCHK(windowing::programFolder());
  const auto recorded = [&] { return registry.stored(Setting::missingFilesLocation); };
  EXPECT_EQ(LIBRARY().FILESLOCATION(), own);
  registry.store(Setting::filesLocation, folder.path());
  EXPECT_EQ(LIBRARY().FILESLOCATION(), folder.path() + "\\");
  EXPECT_EQ(recorded(), "(none)");

  registry.store(Setting::filesLocation, folder / "gone");
  EXPECT_EQ(LIBRARY().FILESLOCATION(), own);
  EXPECT_EQ(recorded(), own);
  EXPECT_EQ(registry.stored(Setting::filesLocation), folder / "gone");
}

}  // namespace
}  // namespace library
