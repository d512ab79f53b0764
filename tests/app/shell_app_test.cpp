// What the program and the rest of Windows hand each other: the document type, mail and web
// addresses.
#include <windows.h>

#include <shellapi.h>

#include "tests/app/support/fixture_win.h"

namespace {

using drive::fullContacts;
using drive::KeyAside;
using drive::Program;
namespace id = mainwindow::id;

class Shell : public drive::AppTest {
 protected:
  /// Opens a new document as a double click does, and expects it to arrive in the program `exe`.
  void expectOpens(const std::string& name, const std::string& exe) {
    const std::string file = write(name, drive::bytesOf(fullContacts(2)));
    const auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteA(nullptr, "open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    ASSERT_GT(result, 32);
    const Program& program = adopt(drive::waitForMainWindow());
    EXPECT_EQ(program.title(), titleOf(file));
    expectShown(fullContacts(1)[0]);
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, program.processId());
    char image[MAX_PATH] = {};
    DWORD length = MAX_PATH;
    QueryFullProcessImageNameA(process, 0, image, &length);
    CloseHandle(process);
    EXPECT_EQ(image, exe);
    close();
  }

 private:
  KeyAside type_{HKEY_CLASSES_ROOT, "Tellary.Document"};
  KeyAside extension_{HKEY_CLASSES_ROOT, ".tly"};
  KeyAside application_{HKEY_CLASSES_ROOT, "Applications\\Tellary.exe"};
  KeyAside explorer_{HKEY_CURRENT_USER,
                     "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.tly"};
};

TEST_F(Shell, ADoubleClickOpensADocumentEvenAfterTheProgramMoved) {
  const KeyAside type(HKEY_CLASSES_ROOT, "My contacts 2.0.Document");
  const KeyAside application(HKEY_CLASSES_ROOT, "Applications\\My contacts 2.0.exe");
  ASSERT_TRUE(CreateDirectoryA(path("my  caf\xE9 -x").c_str(), nullptr));
  start();
  close();
  EXPECT_EQ(Registry::text(HKEY_CLASSES_ROOT, "Tellary.Document\\DefaultIcon", ""),
            drive::programUnderTest() + ",2");
  expectOpens("my  caf\xE9 -x\\old friends.tly", drive::programUnderTest());

  ASSERT_TRUE(CreateDirectoryA(path("other place").c_str(), nullptr));
  const std::string moved = path("other place\\My contacts 2.0.exe");
  ASSERT_TRUE(CopyFileA(drive::programUnderTest().c_str(), moved.c_str(), TRUE));
  start("", moved);
  close();
  expectOpens("new friends.tly", moved);
}

class Links : public drive::AppTest {
 protected:
  void SetUp() override {
    AppTest::SetUp();
    for (const std::string scheme : {"mailto", "http"}) {
      Registry::putText(HKEY_CLASSES_ROOT, scheme, "URL Protocol", "");
      Registry::putText(HKEY_CLASSES_ROOT, scheme + "\\shell\\open\\command", "",
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
    return line.substr(0, line.find_last_not_of(" \r\n") + 1);
  }

  /// Presses the button at the right end of a link box with the mouse.
  void pressButton(int box) const {
    const HWND window = program().control(box);
    RECT area{};
    GetWindowRect(window, &area);
    POINT at{area.right - 8, (area.top + area.bottom) / 2};
    PostMessageA(window, WM_NCLBUTTONDOWN, HTBORDER, MAKELPARAM(at.x, at.y));
    ScreenToClient(window, &at);
    PostMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    program().settle();
  }

 private:
  KeyAside mail_{HKEY_CLASSES_ROOT, "mailto"};
  KeyAside web_{HKEY_CLASSES_ROOT, "http"};
};

TEST_F(Links, ButtonsAndMenuOpenWhatTheyStandFor) {
  const Program& program = startOn(fullContacts(1));
  const struct {
    int page, box;
    const char *text, *scheme, *opens;
  } rows[] = {{1, id::CBOPEMAIL, "zoe@example.com", "mailto", "mailto:zoe@example.com"},
              {1, id::CBOPWEBSITE, "www.example.org/a", "http", "http://www.example.org/a"},
              {2, id::CBOPWORKEMAIL, "w@example.com", "mailto", "mailto:w@example.com"},
              {2, id::CBOPWORKWEBSITE, "notepad.exe", "http", "http://notepad.exe"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    program.clickTab(row.page);
    program.enter(row.box, row.text);
    pressButton(row.box);
    EXPECT_EQ(opened(row.scheme), row.opens);
    // The same from the keyboard; what the web check added is on screen now.
    EXPECT_EQ(program.text(row.box), row.scheme == std::string("http") ? row.opens : row.text);
    program.focusOn(row.box);
    program.key(VK_F4);
    EXPECT_EQ(opened(row.scheme), row.opens);
  }
  program.command(id::WEBSITE);
  EXPECT_TRUE(opened("http").starts_with("http://"));
}

}  // namespace
