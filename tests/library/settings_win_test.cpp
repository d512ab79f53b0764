#include <gtest/gtest.h>

#include "library/clsLibrary_win.h"
#include "tests/support/scratch_folder_win.h"
#include "tests/support/scratch_registry_win.h"
#include "windowing/application_win.h"
#include "windowing/runtime_error.h"

namespace library {
namespace {

using test_support::ScratchFolder;
using test_support::ScratchRegistry;

const std::string userRoot = "-2147483647";
const std::string key = "SOFTWARE\\Some Maker\\Thing";

std::string read(const std::string& name, const std::string& root = userRoot) {
  return LIBRARY().REGSTRREAD(root, key, name, "default");
}

// Counted one by one: the system's own count is not answered everywhere.
int openHandles() {
  int count = 0;
  for (LONG_PTR value = 4; value < 0x4000; value += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags)) ++count;
  }
  return count;
}

TEST(Settings, WhatIsWrittenComesBack) {
  const ScratchRegistry registry;
  for (const std::string& text : {std::string("0"), std::string(),
                                  std::string("M\xFCller & \"Co\""), std::string(254, 'y')}) {
    EXPECT_TRUE(LIBRARY().REGSTRWRITE(userRoot, key, "v", text));
    EXPECT_EQ(registry.get(registry.user(), key, "v")->type, DWORD{REG_SZ});
    EXPECT_EQ(read("v"), text);
  }
  EXPECT_TRUE(LIBRARY().REGSTRWRITE("-2147483646", key, "v", "of the machine"));
  EXPECT_TRUE(LIBRARY().REGSTRWRITE("-2147483648", key, "v", "of the classes"));
  EXPECT_EQ(registry.text(registry.machine(), key, "v"), "of the machine");
  EXPECT_EQ(registry.text(registry.classes(), key, "v"), "of the classes");
}

TEST(Settings, KeysWithoutAccessReadAsTheDefaultAndStoreNothing) {
  const ScratchRegistry registry;
  registry.putText(registry.user(), key, "v", "secret");
  {
    const ScratchRegistry::Locked locked(registry.user(), key);
    ASSERT_EQ(locked.result(), ERROR_SUCCESS);
    EXPECT_EQ(read("v"), "default");
    EXPECT_FALSE(LIBRARY().REGSTRWRITE(userRoot, key, "v", "x"));
    EXPECT_FALSE(LIBRARY().REGBINARYREAD(userRoot, key, "v", {1}));
    EXPECT_EQ(LIBRARY().REGDWORDREAD(-2147483647, key, "v", 1), 0);
  }
  EXPECT_EQ(read("v"), "secret");
}

TEST(Settings, HandlesStayOpenOnlyAfterAFailedWrite) {
  const ScratchRegistry registry;
  registry.putText(registry.user(), key, "long", std::string(300, 'x'));
  registry.putText(registry.user(), key, "v", "x");
  const std::string longName(20000, 'n');  // longer than the name of a value may be
  LIBRARY().REGSTRWRITE(userRoot, key, "v", "warm");
  const int before = openHandles();
  for (int i = 0; i < 200; ++i) {
    read("v");
    read("long");
    read("missing");
    LIBRARY().REGSTRWRITE(userRoot, key, "v", "x");
    LIBRARY().REGBINARYREAD(userRoot, key, "b", {1});
    LIBRARY().REGBINARYREAD(userRoot, key, longName, {1});
    LIBRARY().REGDWORDREAD(-2147483647, key, "d", 1);
  }
  EXPECT_EQ(openHandles(), before);
  EXPECT_FALSE(LIBRARY().REGSTRWRITE(userRoot, key, longName, "x"));
  EXPECT_FALSE(LIBRARY().REGSTRWRITE(userRoot, key, longName, "x"));
  EXPECT_EQ(openHandles(), before + 2);
}

TEST(Settings, DocumentsFolder) {
  const ScratchRegistry registry;
  const ScratchFolder folder;
  const std::string product =
      "SOFTWARE\\" + windowing::companyName() + "\\" + windowing::productName();
  const std::string shared = "SOFTWARE\\" + windowing::companyName() + "\\GLOBAL\\frmPPrev\\Items";
  const std::string own = LIBRARY().FILENAMELENCHK(windowing::programFolder());
  const auto recorded = [&] { return registry.text(registry.user(), shared, "Files Location"); };

  EXPECT_EQ(LIBRARY().FILESLOCATION(), own);
  EXPECT_EQ(recorded(), "(none)");
  registry.putText(registry.user(), product + "\\frmPrefs\\Items", "Files Location", folder.path());
  EXPECT_EQ(LIBRARY().FILESLOCATION(), folder.path() + "\\");
  EXPECT_EQ(recorded(), "(none)");

  const std::string gone = folder / "gone";
  registry.putText(registry.user(), product + "\\frmPrefs\\Items", "Files Location", gone);
  EXPECT_EQ(LIBRARY().FILESLOCATION(), own);
  EXPECT_EQ(recorded(), own);
  EXPECT_EQ(registry.text(registry.user(), product + "\\frmPrefs\\Items", "Files Location"), gone);
}

TEST(Settings, WhatIsNoTextOrTooLongReadsAsTheDefault) {
  const ScratchRegistry registry;
  registry.put(registry.user(), key, "v", REG_DWORD, std::string("\1\0\0\0", 4));
  EXPECT_EQ(read("v"), "default");
  registry.putText(registry.user(), key, "v", std::string(255, 'x'));
  EXPECT_EQ(read("v"), "default");
  EXPECT_EQ(read("v", "HKCU"), "");
  EXPECT_FALSE(LIBRARY().REGSTRWRITE("HKCU", key, "v", "y"));
}

TEST(Settings, BytesAndNumbersAreStoredByOperationsNamedForReading) {
  const ScratchRegistry registry;
  EXPECT_TRUE(LIBRARY().REGBINARYREAD(userRoot, key, "bytes", {0, 255, 7}));
  EXPECT_EQ(registry.get(registry.user(), key, "bytes")->type, DWORD{REG_BINARY});
  EXPECT_EQ(registry.get(registry.user(), key, "bytes")->bytes, std::string("\0\xFF\x07", 3));
  EXPECT_EQ(LIBRARY().REGDWORDREAD(-2147483647, key, "number", -2), 0);
  EXPECT_EQ(registry.get(registry.user(), key, "number")->bytes, "\xFE\xFF\xFF\xFF");
}

TEST(Settings, TheOwnerIsTheMachinesAndTheOrganizationTheUsers) {
  const ScratchRegistry registry;
  const std::string windows = "SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION";
  registry.putText(registry.machine(), windows, "RegisteredOwner", "Owner");
  registry.putText(registry.machine(), windows, "RegisteredOrganization", "not looked for here");
  EXPECT_EQ(LIBRARY().GETCOMPANYREG(), "");
  registry.putText(registry.user(), windows, "RegisteredOrganization", "Organization");
  EXPECT_EQ(LIBRARY().GETCOMPANYNAME(), "Owner");
  EXPECT_EQ(LIBRARY().GETCOMPANYREG(), "Organization");
}

}  // namespace
}  // namespace library
