// Pictures of the program for people to look at, where there is a screen to take them from.
#include "tests/app/support/fixture_win.h"
#include "tests/app/support/picture_win.h"

namespace {

namespace id = mainwindow::id;

class Pictures : public drive::AppTest {
 protected:
  void take(const std::string& name) const {
    program().settle();
    const std::string file = drive::picturesFolder() + "\\" + name + ".bmp";
    EXPECT_TRUE(drive::takePicture(program().window(), file)) << name;
  }
};

TEST_F(Pictures, OfTheMainWindow) {
  CreateDirectoryA(drive::picturesFolder().c_str(), nullptr);
  const drive::Program& program = start(sample());
  program.bringToFront();
  program.pointAway();
  const char* pages[] = {"general", "home-address", "work-address"};
  for (const int page : {2, 1, 0}) {
    program.clickTab(page);
    take(pages[page]);
  }
  const std::pair<char, const char*> menus[] = {
      {'F', "file"}, {'E', "edit"}, {'V', "view"}, {'G', "go-to"}, {'H', "help"}};
  for (const auto& [key, name] : menus) {
    program.key(static_cast<WORD>(key), VK_MENU);
    take(std::string(name) + "-menu");
    program.key(VK_ESCAPE);
    program.key(VK_ESCAPE);
  }
  program.command(id::NEW);
  program.command(id::REMOVE);
  take("no-contacts");
}

}  // namespace
