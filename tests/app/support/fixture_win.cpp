#include "tests/app/support/fixture_win.h"

namespace drive {

namespace {

const std::string settingsKey = "SOFTWARE\\Zandor Software Development";

bool hasKey(HKEY root, const std::string& key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExA(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

void moveKey(HKEY root, const std::string& from, const std::string& to) {
  HKEY made = nullptr;
  if (!hasKey(root, from) || RegCreateKeyExA(root, to.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                             nullptr, &made, nullptr) != ERROR_SUCCESS)
    return;
  if (RegCopyTreeA(root, from.c_str(), made) == ERROR_SUCCESS) RegDeleteTreeA(root, from.c_str());
  RegCloseKey(made);
}

std::string asideKey(const std::string& key) {
  return key + " (aside for the tests)";
}

// The settings of whoever runs the tests stay.
class KeptSettings : public testing::Environment {
 public:
  void SetUp() override { aside_ = std::make_unique<KeyAside>(HKEY_CURRENT_USER, settingsKey); }
  void TearDown() override { aside_.reset(); }

 private:
  std::unique_ptr<KeyAside> aside_;
};
[[maybe_unused]] const testing::Environment* const keptSettings =
    testing::AddGlobalTestEnvironment(new KeptSettings);

}  // namespace

// What a run that was broken off left aside is the older, and the one to keep.
KeyAside::KeyAside(HKEY root, std::string key) : root_(root), key_(std::move(key)) {
  if (!hasKey(root_, asideKey(key_))) moveKey(root_, key_, asideKey(key_));
  RegDeleteTreeA(root_, key_.c_str());
}

KeyAside::~KeyAside() {
  RegDeleteTreeA(root_, key_.c_str());
  moveKey(root_, asideKey(key_), key_);
}

void AppTest::SetUp() {
  RegDeleteTreeA(HKEY_CURRENT_USER, settingsKey.c_str());
}

void AppTest::TearDown() {
  program_.reset();
}

Program& AppTest::start(const std::string& tail, const std::string& exe) {
  program_.reset();
  program_ = std::make_unique<Program>(tail, exe);
  return *program_;
}

Program& AppTest::startOn(const std::vector<Contact>& contacts) {
  return start(write("list.tly", bytesOf(contacts)));
}

Program& AppTest::adopt(HWND window) {
  program_.reset();
  program_ = std::make_unique<Program>(window);
  return *program_;
}

void AppTest::close() {
  PostMessageA(program().window(), WM_CLOSE, 0, 0);
  program().waitForEnd();
}

void AppTest::expectShown(const Contact& contact) const {
  program().lookAtAllPages();
  for (std::size_t i = 0; i < contact.size(); ++i)
    EXPECT_EQ(program().text(boxOf[i]), contact[i]) << "text " << i + 1 << " of the contact";
}

void AppTest::expectUntitled() const {
  EXPECT_EQ(program().title(), titleOf("Untitled"));
  EXPECT_EQ(program().status(), place(1, 1));
  EXPECT_THAT(program().names(), testing::ElementsAre(" "));
  EXPECT_FALSE(program().modified());
  expectShown(Contact{});
}

std::string AppTest::setting(const std::string& section, const std::string& value) {
  return Registry::text(HKEY_CURRENT_USER, settingsKey + "\\Tellary\\" + section, value);
}

}  // namespace drive
