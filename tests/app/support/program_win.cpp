#include "tests/app/support/program_win.h"

#include <algorithm>
#include <stdexcept>

#include "tests/app/support/remote_buffer_win.h"

namespace drive {

namespace id = mainwindow::id;

namespace {

constexpr char formClass[] = "TellaryForm";
constexpr int nameField = 0x47C;  // of a file dialog
constexpr UINT getFolderPath = WM_USER + 102;

std::string classOf(HWND window) {
  char name[64] = {};
  GetClassNameA(window, name, sizeof name);
  return name;
}

struct Search {
  const std::function<bool(HWND)>& wanted;
  std::vector<HWND> found;
};

BOOL CALLBACK collect(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  if (search.wanted(window)) search.found.push_back(window);
  return TRUE;
}

// All windows that `wanted` picks, children of `parent` or, for none, top-level ones.
std::vector<HWND> windowsThat(HWND parent, const std::function<bool(HWND)>& wanted) {
  Search search{wanted, {}};
  const auto data = reinterpret_cast<LPARAM>(&search);
  if (parent == nullptr) {
    EnumWindows(collect, data);
  } else {
    EnumChildWindows(parent, collect, data);
  }
  return search.found;
}

DWORD processOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

std::string fromWide(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  std::string narrow(text.size() * 2, '\0');
  const int used = WideCharToMultiByte(CP_ACP, 0, text.c_str(), length, narrow.data(),
                                       static_cast<int>(narrow.size()), nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(used));
  return narrow;
}

LRESULT sendWithin(HWND to, UINT message, WPARAM wParam, LPARAM lParam, bool wide = false) {
  DWORD_PTR result = 0;
  const auto sender = wide ? SendMessageTimeoutW : SendMessageTimeoutA;
  if (sender(to, message, wParam, lParam, SMTO_NORMAL, limit, &result) == 0)
    throw std::runtime_error("a window (" + classOf(to) + ") did not answer message " +
                             std::to_string(message) + ": error " + std::to_string(GetLastError()));
  return static_cast<LRESULT>(result);
}

std::string textOf(HWND window) {
  const auto length = static_cast<std::size_t>(sendWithin(window, WM_GETTEXTLENGTH, 0, 0));
  std::string text(length + 1, '\0');
  const LRESULT got =
      sendWithin(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(got));
  return text;
}

}  // namespace

void waitFor(const std::string& what, const std::function<bool()>& met) {
  const DWORD start = GetTickCount();
  while (!met()) {
    if (GetTickCount() - start > limit)
      throw std::runtime_error("waited " + std::to_string(limit / 1000) + " s in vain for " + what);
    Sleep(2);
  }
}

std::string environment(const char* name) {
  const DWORD size = GetEnvironmentVariableA(name, nullptr, 0);
  if (size == 0) throw std::runtime_error(std::string(name) + " is not set");
  std::string value(size, '\0');
  value.resize(GetEnvironmentVariableA(name, value.data(), size));
  return value;
}

std::string windowsPath(const std::string& path) {
  if (path.empty() || path.front() != '/') return path;
  std::string mapped = "Z:" + path;
  std::replace(mapped.begin(), mapped.end(), '/', '\\');
  return mapped;
}

int numberFrom(const char* name, int otherwise) {
  return GetEnvironmentVariableA(name, nullptr, 0) == 0 ? otherwise : std::stoi(environment(name));
}

std::string programUnderTest() {
  return windowsPath(environment("TELLARY_EXE"));
}

HWND waitForMainWindow() {
  HWND found = nullptr;
  waitFor("a main window", [&found] {
    found = FindWindowA(formClass, nullptr);
    return IsWindowVisible(found);
  });
  return found;
}

// --- Dialogs ---

std::string Dialog::title() const {
  return textOf(window_);
}

std::string Dialog::message() const {
  const HWND text = GetDlgItem(window_, 0xFFFF);
  return text == nullptr ? std::string() : textOf(text);
}

std::string Dialog::fileName() const {
  return textOf(GetDlgItem(window_, nameField));
}

std::string Dialog::folder() const {
  const RemoteBuffer buffer(processOf(window_));
  sendWithin(window_, getFolderPath, MAX_PATH, buffer.address());
  return buffer.text();
}

void Dialog::press(int button) const {
  const HWND pressed = GetDlgItem(window_, button);
  if (pressed == nullptr)
    throw std::runtime_error("the dialog '" + title() + "' has no button " +
                             std::to_string(button));
  const std::string name = title();
  PostMessageA(window_, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
               reinterpret_cast<LPARAM>(pressed));
  waitFor("the dialog '" + name + "' to go away", [this] { return !IsWindow(window_); });
}

void Dialog::choose(const std::string& file) const {
  const HWND field = GetDlgItem(window_, nameField);
  if (field == nullptr) throw std::runtime_error("'" + title() + "' is no file dialog");
  sendWithin(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(file.c_str()));
  press(IDOK);
}

// --- The program ---

Program::Program(const std::string& tail, const std::string& exe) {
  std::string line = '"' + (exe.empty() ? programUnderTest() : exe) + '"';
  if (!tail.empty()) line += ' ' + tail;
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION made{};
  if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &made))
    throw std::runtime_error("the program did not start: error " + std::to_string(GetLastError()) +
                             ", " + line);
  CloseHandle(made.hThread);
  process_ = made.hProcess;
  processId_ = made.dwProcessId;
  WaitForInputIdle(process_, limit);
  attach();
}

Program::Program(HWND window) : processId_(processOf(window)) {
  process_ = OpenProcess(PROCESS_ALL_ACCESS, FALSE, processId_);
  attach();
}

void Program::attach() {
  waitFor("the main window", [this] {
    if (!running()) throw std::runtime_error("the program ended before its window came up");
    const auto windows = windowsThat(nullptr, [this](HWND window) {
      return processOf(window) == processId_ && classOf(window) == formClass &&
             IsWindowVisible(window);
    });
    if (!windows.empty()) window_ = windows.front();
    return window_ != nullptr;
  });
  threadId_ = GetWindowThreadProcessId(window_, nullptr);
  settle();
}

Program::~Program() {
  if (running()) {
    TerminateProcess(process_, 99);
    WaitForSingleObject(process_, limit);
  }
  CloseHandle(process_);
}

bool Program::running() const {
  return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

DWORD Program::waitForEnd() const {
  waitFor("the program to end", [this] {
    if (hasDialog()) throw std::runtime_error("the program asks instead of ending");
    return !running();
  });
  DWORD code = 0;
  GetExitCodeProcess(process_, &code);
  return code;
}

// Painting comes after posted messages and after keys and mouse: once a part that nothing
// else paints again has been painted, all of them have been worked through.
void Program::settle() const {
  const HWND body = control(id::PICMAINBOX);
  const RECT corner{0, 0, 3, 3};
  InvalidateRect(body, &corner, FALSE);
  waitFor("the program to be idle", [&] {
    return !running() || !IsWindow(body) || !IsWindowVisible(body) ||
           !GetUpdateRect(body, nullptr, FALSE);
  });
}

std::vector<HWND> Program::windows() const {
  return windowsThat(nullptr, [this](HWND window) {
    return processOf(window) == processId_ && IsWindowVisible(window) &&
           (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
  });
}

HWND Program::find(int controlId) const {
  const auto found =
      windowsThat(window_, [=](HWND child) { return GetDlgCtrlID(child) == controlId; });
  return found.empty() ? nullptr : found.front();
}

HWND Program::control(int controlId) const {
  const HWND found = find(controlId);
  if (found == nullptr)
    throw std::runtime_error("there is no control " + std::to_string(controlId));
  return found;
}

LRESULT Program::send(HWND to, UINT message, WPARAM wParam, LPARAM lParam) const {
  return sendWithin(to, message, wParam, lParam);
}

std::string Program::text(int controlId) const {
  return textOf(control(controlId));
}

void Program::enter(int controlId, const std::string& newText) const {
  if (!enabled(controlId))
    throw std::runtime_error("the box " + std::to_string(controlId) + " takes no input");
  const HWND box = control(controlId);
  send(box, EM_SETSEL, 0, -1);
  send(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(newText.c_str()));
  settle();
}

std::string Program::status() const {
  const RemoteBuffer buffer(processId_);
  send(control(id::SBMAIN), SB_GETTEXTA, 0, buffer.address());
  return buffer.text();
}

std::vector<std::string> Program::names() const {
  const HWND box = control(id::CBOTBARBOX);
  const auto count = static_cast<std::size_t>(send(box, CB_GETCOUNT));
  std::vector<std::string> entries;
  for (std::size_t i = 0; i < count; ++i) {
    std::wstring entry(static_cast<std::size_t>(sendWithin(box, CB_GETLBTEXTLEN, i, 0, true)) + 1,
                       L'\0');
    const LRESULT length =
        sendWithin(box, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(entry.data()), true);
    entry.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
    entries.push_back(fromWide(entry));
  }
  return entries;
}

int Program::chosenName() const {
  return static_cast<int>(send(control(id::CBOTBARBOX), CB_GETCURSEL));
}

bool Program::buttonEnabled(int commandId) const {
  return send(control(id::TBARMAIN), TB_ISBUTTONENABLED, static_cast<WPARAM>(commandId)) != 0;
}

int Program::focus() const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (!GetGUIThreadInfo(threadId_, &info) || info.hwndFocus == nullptr) return 0;
  return GetDlgCtrlID(info.hwndFocus);
}

HWND Program::findDialog() const {
  const auto windows = windowsThat(nullptr, [this](HWND window) {
    return processOf(window) == processId_ && classOf(window) == "#32770" &&
           IsWindowVisible(window) && IsWindowEnabled(window);
  });
  return windows.empty() ? nullptr : windows.front();
}

Dialog Program::dialog() const {
  HWND found = nullptr;
  waitFor("a dialog", [&] {
    if (!running()) throw std::runtime_error("the program ended instead of asking");
    found = findDialog();
    return found != nullptr;
  });
  settle();
  return Dialog(found);
}

std::string Program::answer(int button) const {
  const Dialog box = dialog();
  std::string said = box.title() + "|" + box.message();
  box.press(button);
  settle();
  return said;
}

}  // namespace drive
