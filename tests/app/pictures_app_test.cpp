// Pictures of the program for people to look at, where there is a screen to take them from.
#include <string>
#include <utility>

#include "tests/app/support/fixture_win.h"
#include "tests/app/support/picture_win.h"

namespace {

using drive::Program;
namespace id = library::id;

class Pictures : public drive::AppTest {
 protected:
  static bool take(const Program& program, const std::string& name) {
    program.settle();
    return drive::takePicture(program.window(), drive::picturesFolder() + "\\" + name + ".bmp");
  }
};

TEST_F(Pictures, OfTheMainWindow) {
  CreateDirectoryA(drive::picturesFolder().c_str(), nullptr);
  const Program& program =
      start(drive::windowsPath(drive::environment("TELLARY_SAMPLES")) + "\\friends.tly");
  program.bringToFront();
  program.pointAway();
  if (!drive::screenShows(program.window())) GTEST_SKIP() << "the screen shows nothing here";
  EXPECT_TRUE(take(program, "general"));
  program.clickTab(1);
  EXPECT_TRUE(take(program, "home-address"));
  program.clickTab(2);
  EXPECT_TRUE(take(program, "work-address"));
  program.clickTab(0);
  const std::pair<char, const char*> menus[] = {
      {'F', "file"}, {'E', "edit"}, {'V', "view"}, {'G', "go-to"}, {'H', "help"}};
  for (const auto& [key, name] : menus) {
    program.key(static_cast<WORD>(key), VK_MENU);
    EXPECT_TRUE(take(program, std::string(name) + "-menu"));
    program.key(VK_ESCAPE);
    program.key(VK_ESCAPE);
  }
  program.command(id::NEW);
  program.command(id::REMOVE);
  EXPECT_TRUE(take(program, "no-contacts"));
}

}  // namespace
