// Every setting that the program reads is garbage, and every dialog is opened and closed.
// TELLARY_ROUNDS is the number of rounds, two without it; TELLARY_SEED the first one's seed,
// which each further round counts up. Odd rounds have printers; every other pair of rounds opens a
// document, which replaces the stored folder of the Open dialog.
#include <algorithm>
#include <map>
#include <random>
#include <string_view>

#include "library/settings.h"
#include "tests/app/support/fixture_win.h"
#include "tests/support/printers_win.h"

namespace {

using namespace std::string_view_literals;
using test_support::RawValue;
namespace id = mainwindow::id;

// Names that places of windows are kept under.
constexpr const char* placeNames[] = {"frmMain", "frmPSetup", library::sharedPlace};

// One kind a round: where everything is nonsense, what stands behind a number is not reached.
enum Kind : std::size_t { nonsense, numbers, smallNumbers };
// clang-format off
const std::vector<std::string_view> texts[] = {
    {"banana", "True", "", " ", "con", "nul.txt", "\\\\?\\", "\\\\?\\C:\\", "\\\\.\\pipe\\x", "C:",
     "\\\\server\\share", "Q:", "Q:\\", "C:\\windows\\win.ini", "*?", "|", "\"", "..\\..\\..",
     "\x81\xFF", "\x80\x9D", "\0"sv, "a\0b\0\0c"sv, "1\0002"sv, "%n%s%s%n", "%TEMP%", "&&&",
     "\r\n\t\x1B\x07", "{\\rtf1 \\par", "100 %", "Whole Page", "http://x"},
    {"-1", "2.5", "1,5", "0.001", "11", "21.84", "23", "600", "840", "11500", "32767", "1e4",
     "99999", "32768", "-32769", " 7 ", "0x10", "1e999", "nan", "inf", "1e308", "-1e308", "00001",
     "1e-308", "2147483648", "--1", "1.2.3"},
    {"0", "0", "1", "1", "2", "2", "2.5", "3", "9000", "32767"}};
// clang-format on
constexpr std::size_t lengths[] = {0, 1, 253, 254, 255, 256, 5000};
constexpr char letters[] = {'x', '9', '\\', '.', ' ', '\xFF', '\0'};
constexpr DWORD types[] = {REG_NONE, REG_EXPAND_SZ, REG_BINARY, REG_DWORD, REG_MULTI_SZ, REG_QWORD};

constexpr int commands[] = {id::OPEN,       id::SAVEAS, id::PAGESETUP,    id::HEADERFOOTER,
                            id::PROPERTIES, id::ABOUT,  id::PRINTPREVIEW, id::PRINT};

class HostileSettings : public drive::AppTest {
 protected:
  const auto& any(const auto& list) { return list[random_() % std::size(list)]; }

  RawValue garbage(std::size_t kind) {
    std::string bytes(any(texts[kind]));
    if (kind == smallNumbers) return {REG_SZ, bytes + '\0'};
    if (kind == nonsense && random_() % 3 == 0) bytes.assign(any(lengths), any(letters));
    if (random_() % 4 != 0) bytes += '\0';
    return {random_() % 4 == 0 ? any(types) : REG_SZ, bytes};
  }

  void spoilSettings() {
    const std::size_t kind = random_() % std::size(texts);
    for (const library::SettingRow& row : library::settings) {
      if (row.scope == library::Scope::machine) continue;  // not the user's
      for (const char* form : placeNames) {
        const RawValue value = garbage(kind);
        Registry::put(HKEY_CURRENT_USER,
                      library::settingKey(row, "Zandor Software Development", "Tellary", form),
                      row.name, value.type, value.bytes);
      }
    }
  }

  /// Whether enough of the window's title bar is on the screen to take hold of it.
  static bool inReach(HWND window) {
    RECT bar{}, seen{};
    GetWindowRect(window, &bar);
    const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    bar.bottom = bar.top + GetSystemMetrics(SM_CYSIZEFRAME) + GetSystemMetrics(SM_CYCAPTION);
    IntersectRect(&seen, &bar, &screen);
    return seen.right - seen.left >= GetSystemMetrics(SM_CXMIN) / 2 &&
           seen.bottom - seen.top >= GetSystemMetrics(SM_CYCAPTION) / 2;
  }

  /// Closes all that came up over the main window; how many.
  int closeDialogs() {
    for (int closed = 0;; ++closed) {
      HWND front = nullptr;
      drive::waitFor("the program to take input", [&] {
        if (!program().running()) throw std::runtime_error("the program has crashed");
        const std::vector<HWND> windows = program().windows();
        const auto found = std::find_if(windows.begin(), windows.end(), IsWindowEnabled);
        front = found == windows.end() ? nullptr : *found;
        return front != nullptr;
      });
      const drive::Dialog dialog(front);
      const std::string title = dialog.title();
      EXPECT_TRUE(inReach(front)) << title;
      if (front == program().window()) return closed;
      ++shown_[title + "|" + dialog.message()];
      PostMessageA(front, WM_CLOSE, 0, 0);
      drive::waitFor("'" + title + "' to close", [front] { return !IsWindow(front); });
      program().settle();
    }
  }

  void playRound(bool withDocument) {
    withDocument ? startOn(drive::fullContacts(2)) : start();
    EXPECT_EQ(program().windows(), std::vector{program().window()}) << "at the start";
    closeDialogs();
    for (const int command : commands) {
      SCOPED_TRACE("command " + std::to_string(command));
      program().command(command);
      // Printing gives up silently.
      EXPECT_TRUE(closeDialogs() > 0 || command == id::PRINT);
    }
    program().clickButton(id::PRINT);
    closeDialogs();
    PostMessageA(program().window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(program().waitForEnd(), 0U);
  }

  std::mt19937 random_{std::random_device{}()};  // until it is seeded
  std::map<std::string, int> shown_;
};

TEST_F(HostileSettings, NeitherStopTheProgramNorHideAWindow) {
  const int first = drive::numberFrom("TELLARY_SEED", 1);
  const int rounds = drive::numberFrom("TELLARY_ROUNDS", 2);
  for (int seed = first; seed < first + rounds; ++seed) {
    SCOPED_TRACE("TELLARY_ROUNDS=1 TELLARY_SEED=" + std::to_string(seed));
    random_.seed(static_cast<unsigned>(seed));
    std::optional<test_support::TestPrinters> printers;
    if (seed % 2 != 0) printers.emplace();
    spoilSettings();
    try {
      playRound(seed % 4 < 2);
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
  }
  for (const auto& [text, times] : shown_) std::printf("%d times: %s\n", times, text.c_str());
}

}  // namespace
