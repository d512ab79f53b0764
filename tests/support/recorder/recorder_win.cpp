// Stands in for a mail program or a browser: writes what it was handed, exactly, to the file
// that its first argument names (without blanks). Started as: recorder.exe C:\out.txt %1
#include <windows.h>

#include <string>

#include "windowing/application_win.h"
#include "windowing/handles_win.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  const std::string tail = windowing::commandLineTail();
  const std::size_t blank = tail.find(' ');
  const std::string target = tail.substr(0, blank);
  const std::string handed = blank == std::string::npos ? "" : tail.substr(blank + 1);
  const std::string unfinished = target + ".part";
  {
    const windowing::FileHandle file(CreateFileA(unfinished.c_str(), GENERIC_WRITE, 0, nullptr,
                                                 CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (!WriteFile(file.get(), handed.data(), static_cast<DWORD>(handed.size()), &written, nullptr))
      return 1;
  }
  // Whoever waits for the file finds it whole.
  return MoveFileA(unfinished.c_str(), target.c_str()) ? 0 : 1;
}
