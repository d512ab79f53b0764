// What the program and the rest of Windows hand each other: the document type, mail and web
// addresses.
#include <windows.h>

#include <shellapi.h>

#include "tests/app/support/fixture_win.h"

namespace {

using drive::bytesOf;
using drive::Contact;
using drive::fullContacts;
using drive::KeyAside;
using drive::place;
using drive::Program;
using drive::registryText;
using drive::storeRegistryText;
namespace id = library::id;

constexpr char explorerKey[] =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.tly";

class Shell : public drive::AppTest {
 protected:
  /// Opens a document as a double click does, and expects it to arrive.
  void expectOpens(const std::string& file, const std::string& exe) {
    ASSERT_GT(reinterpret_cast<INT_PTR>(
                  ShellExecuteA(nullptr, "open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL)),
              32);
    const Program& program = adopt(drive::waitForMainWindow());
    EXPECT_EQ(program.title(), "Tellary - (" + file + ")");
    EXPECT_EQ(program.status(), place(1, 2));
    program.command(id::NEXT);
    expectShown(fullContacts(2)[1]);
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, program.processId());
    char image[MAX_PATH] = {};
    DWORD length = MAX_PATH;
    QueryFullProcessImageNameA(process, 0, image, &length);
    CloseHandle(process);
    EXPECT_EQ(image, exe);
    close();
  }

  KeyAside type_{HKEY_CLASSES_ROOT, "Tellary.Document"};
  KeyAside extension_{HKEY_CLASSES_ROOT, ".tly"};
  KeyAside application_{HKEY_CLASSES_ROOT, "Applications\\Tellary.exe"};
  KeyAside explorer_{HKEY_CURRENT_USER, explorerKey};
};

TEST_F(Shell, ADoubleClickOpensADocumentFromAPathWithBlanks) {
  ASSERT_TRUE(CreateDirectoryA(path("my  caf\xE9 -x").c_str(), nullptr));
  const std::string file = write("my  caf\xE9 -x\\old friends.tly", bytesOf(fullContacts(2)));
  start();
  close();
  expectOpens(file, drive::programUnderTest());
}

TEST_F(Shell, AProgramThatMovedTakesItsDocumentsAlong) {
  const KeyAside type(HKEY_CLASSES_ROOT, "My contacts 2.0.Document");
  const KeyAside application(HKEY_CLASSES_ROOT, "Applications\\My contacts 2.0.exe");
  ASSERT_TRUE(CreateDirectoryA(path("other place").c_str(), nullptr));
  const std::string exe = path("other place\\My contacts 2.0.exe");
  ASSERT_TRUE(CopyFileA(drive::programUnderTest().c_str(), exe.c_str(), TRUE));
  const std::string file = write("old friends.tly", bytesOf(fullContacts(2)));
  start();
  start("", exe);
  close();
  expectOpens(file, exe);
}

class Links : public drive::AppTest {
 protected:
  void SetUp() override {
    AppTest::SetUp();
    for (const char* scheme : {"mailto", "http"}) {
      storeRegistryText(HKEY_CLASSES_ROOT, scheme, "URL Protocol", "");
      storeRegistryText(HKEY_CLASSES_ROOT, std::string(scheme) + "\\shell\\open\\command", "",
                        "cmd.exe /c echo %1> \"" + path(scheme) + "\"");
    }
  }

  /// What the handler of `scheme` was asked to open.
  [[nodiscard]] std::string opened(const std::string& scheme) const {
    std::string line;
    drive::waitFor("the handler of " + scheme, [&] {
      line = read(path(scheme)).value_or("");
      return line.ends_with("\r\n") && DeleteFileA(path(scheme).c_str());
    });
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r' || line.back() == ' '))
      line.pop_back();
    return line;
  }

  /// Presses the button at the right end of a link box with the mouse.
  void pressButton(int box) const {
    const HWND window = program().control(box);
    RECT area{};
    GetWindowRect(window, &area);
    const LPARAM at = MAKELPARAM(area.right - 8, (area.top + area.bottom) / 2);
    PostMessageA(window, WM_NCLBUTTONDOWN, HTBORDER, at);
    POINT inside{area.right - 8, (area.top + area.bottom) / 2};
    ScreenToClient(window, &inside);
    PostMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(inside.x, inside.y));
    program().settle();
  }

 private:
  KeyAside mail_{HKEY_CLASSES_ROOT, "mailto"};
  KeyAside web_{HKEY_CLASSES_ROOT, "http"};
};

TEST_F(Links, ButtonsOpenWhatTheBoxesHold) {
  const Program& program = startOn(fullContacts(1));
  const struct {
    int page, box;
    const char* text;
    const char* scheme;
    const char* opens;
  } rows[] = {{1, id::CBOPEMAIL, "zoe@example.com", "mailto", "mailto:zoe@example.com"},
              {1, id::CBOPWEBSITE, "www.example.org/a", "http", "http://www.example.org/a"},
              {2, id::CBOPWORKEMAIL, "w@example.com", "mailto", "mailto:w@example.com"},
              {2, id::CBOPWORKWEBSITE, "notepad.exe", "http", "http://notepad.exe"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    program.clickTab(row.page);
    program.enter(row.box, row.text);
    EXPECT_TRUE(program.modified());
    pressButton(row.box);
    EXPECT_EQ(opened(row.scheme), row.opens);
    // The same from the keyboard; what the web check added is on screen now.
    if (row.scheme == std::string("http")) {
      EXPECT_EQ(program.text(row.box), row.opens);
    }
    program.focusOn(row.box);
    program.key(VK_F4);
    EXPECT_EQ(opened(row.scheme), row.opens);
  }
}

TEST_F(Links, TheMenuOpensTheMakersSite) {
  start().command(id::WEBSITE);
  EXPECT_TRUE(opened("http").starts_with("http://"));
}

}  // namespace
