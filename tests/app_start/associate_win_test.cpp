#include "app/modAssociate_win.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_registry_win.h"
#include "windowing/application_win.h"

namespace app {
namespace {

using test_support::ScratchRegistry;

const std::string fileExtensions =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.tly";

TEST(Associate, WritesEveryKeyAndRepairsForeignChanges) {
  const ScratchRegistry registry;
  const std::string exe = windowing::programName();
  const std::string program = windowing::programFolder() + "\\" + exe + ".exe";
  const std::string document = exe + ".Document";
  const struct {
    HKEY root;
    std::string key, name, text;
  } rows[] = {
      {registry.classes(), ".tly", "", document},
      {registry.classes(), document, "", "Tellary Document"},
      {registry.classes(), document + "\\shell\\open\\command", "", program + " %1"},
      {registry.classes(), document + "\\DefaultIcon", "", program + ",2"},
      {registry.user(), fileExtensions, "Application", exe + ".exe"},
      {registry.classes(), "Applications\\" + exe + ".exe\\shell\\open\\command", "",
       program + " %1"},
  };
  for (int start = 0; start < 2; ++start) {
    Associate("tly", "Tellary Document", "2");
    for (const auto& row : rows) {
      EXPECT_EQ(ScratchRegistry::text(row.root, row.key, row.name), row.text) << row.key;
      ScratchRegistry::putText(row.root, row.key, row.name, "changed by another program");
    }
    const auto flags = ScratchRegistry::get(registry.classes(), document, "EDITFLAGS");
    ASSERT_TRUE(flags);
    EXPECT_EQ(flags->type, DWORD{REG_DWORD});
    EXPECT_EQ(flags->bytes, std::string(4, '\0'));
    ScratchRegistry::put(registry.classes(), document, "EDITFLAGS", REG_SZ, "x");
  }
}

TEST(Associate, GoesOnWithoutAccess) {
  const ScratchRegistry registry;
  const std::string document = windowing::programName() + ".Document";
  ScratchRegistry::putText(registry.classes(), ".tly", "", "someone else's");
  ScratchRegistry::putText(registry.classes(), document, "", "someone else's");
  {
    const ScratchRegistry::Locked extension(registry.classes(), ".tly");
    const ScratchRegistry::Locked type(registry.classes(), document);
    ASSERT_EQ(extension.result() + type.result(), ERROR_SUCCESS);
    EXPECT_NO_THROW(Associate("tly", "Tellary Document", "2"));
  }
  EXPECT_EQ(ScratchRegistry::text(registry.classes(), ".tly", ""), "someone else's");
  EXPECT_EQ(ScratchRegistry::text(registry.classes(), document, ""), "someone else's");
  EXPECT_EQ(ScratchRegistry::text(registry.user(), fileExtensions, "Application"),
            windowing::programName() + ".exe");
}

}  // namespace
}  // namespace app
