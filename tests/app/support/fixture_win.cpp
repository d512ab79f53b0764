#include "tests/app/support/fixture_win.h"

#include <cstdio>
#include <stdexcept>

#include "tests/app/support/picture_win.h"
#include "tests/support/scratch_folder_win.h"

namespace drive {

namespace id = library::id;

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

// Temporary folder with the letters that the disk has.
std::string temporaryFolder() {
  char brief[MAX_PATH] = {}, whole[MAX_PATH] = {};
  GetTempPathA(MAX_PATH, brief);
  GetLongPathNameA(brief, whole, MAX_PATH);
  std::string folder = whole;
  while (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

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

void storeRegistryText(HKEY root, const std::string& key, const std::string& value,
                       const std::string& text) {
  HKEY made = nullptr;
  if (RegCreateKeyExA(root, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made, nullptr) !=
      ERROR_SUCCESS)
    throw std::runtime_error("cannot write the registry key " + key);
  RegSetValueExA(made, value.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                 static_cast<DWORD>(text.size() + 1));
  RegCloseKey(made);
}

std::optional<std::string> registryText(HKEY root, const std::string& key,
                                        const std::string& value) {
  char text[1024] = {};
  DWORD size = sizeof text - 1, type = 0;
  HKEY opened = nullptr;
  if (RegOpenKeyExA(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return std::nullopt;
  const LONG result =
      RegQueryValueExA(opened, value.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text), &size);
  RegCloseKey(opened);
  if (result != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;
  return std::string(text);
}

void AppTest::SetUp() {
  RegDeleteTreeA(HKEY_CURRENT_USER, settingsKey.c_str());
  const std::string all = temporaryFolder() + "\\Tellary tests";
  CreateDirectoryA(all.c_str(), nullptr);
  folder_ = testing::UnitTest::GetInstance()->current_test_info()->name();
  folder_ = all + "\\" + folder_.substr(folder_.rfind('/') + 1);
  test_support::ScratchFolder::removeTree(folder_);
  if (!CreateDirectoryA(folder_.c_str(), nullptr))
    throw std::runtime_error("no scratch folder " + folder_);
}

void AppTest::TearDown() {
  if (HasFailure() && program_ != nullptr && program_->running()) tellWhatIsThere();
  program_.reset();
  if (!HasFailure()) test_support::ScratchFolder::removeTree(folder_);
}

void AppTest::tellWhatIsThere() const {
  std::printf("The program's windows at the end:\n%s", program_->describe().c_str());
  CreateDirectoryA(picturesFolder().c_str(), nullptr);
  const std::string file = picturesFolder() + folder_.substr(folder_.rfind('\\')) + " failed.bmp";
  if (takePicture(GetDesktopWindow(), file)) std::printf("A picture is in %s\n", file.c_str());
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

std::string AppTest::write(const std::string& name, const std::string& bytes) const {
  const std::string file = path(name);
  std::FILE* const stream = std::fopen(file.c_str(), "wb");
  if (stream == nullptr) throw std::runtime_error("cannot write " + file);
  std::fwrite(bytes.data(), 1, bytes.size(), stream);
  std::fclose(stream);
  return file;
}

std::optional<std::string> AppTest::read(const std::string& file) {
  std::FILE* const stream = std::fopen(file.c_str(), "rb");
  if (stream == nullptr) return std::nullopt;
  std::fseek(stream, 0, SEEK_END);
  std::string bytes(static_cast<std::size_t>(std::ftell(stream)), '\0');
  std::fseek(stream, 0, SEEK_SET);
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), stream));
  std::fclose(stream);
  return bytes;
}

bool AppTest::exists(const std::string& file) {
  return GetFileAttributesA(file.c_str()) != INVALID_FILE_ATTRIBUTES;
}

void AppTest::expectShown(const Contact& contact) const {
  for (std::size_t i = 0; i < contact.size(); ++i)
    EXPECT_EQ(program().text(boxOf[i]), contact[i]) << "text " << i + 1 << " of the contact";
}

void AppTest::expectUntitled() const {
  EXPECT_EQ(program().title(), "Tellary - (Untitled)");
  EXPECT_EQ(program().status(), place(1, 1));
  EXPECT_THAT(program().names(), testing::ElementsAre(" "));
  EXPECT_EQ(program().chosenName(), 0);
  EXPECT_FALSE(program().modified());
  expectShown(Contact{});
}

std::optional<std::string> AppTest::setting(const std::string& section, const std::string& value) {
  return registryText(HKEY_CURRENT_USER, settingsKey + "\\Tellary\\" + section, value);
}

void AppTest::storeSetting(const std::string& section, const std::string& value,
                           const std::string& text) {
  storeRegistryText(HKEY_CURRENT_USER, settingsKey + "\\Tellary\\" + section, value, text);
}

}  // namespace drive
