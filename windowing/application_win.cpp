#include "windowing/application_win.h"

#include <vector>

#include "windowing/system_library_win.h"

namespace windowing {
namespace {

// Reads version resources. Called through pointers, because an imported version.dll could come
// from the program's own folder.
struct VersionReader {
  SystemLibrary library{"version.dll"};
  decltype(&GetFileVersionInfoSizeA) size = library.function("GetFileVersionInfoSizeA");
  decltype(&GetFileVersionInfoA) read = library.function("GetFileVersionInfoA");
  decltype(&VerQueryValueA) find = library.function("VerQueryValueA");
};

const VersionReader& reader() {
  static const VersionReader functions;
  return functions;
}

// The whole version resource of the program's file, read once.
const std::vector<char>& versionBlock() {
  static const std::vector<char> block = [] {
    std::vector<char> data;
    const std::string path = programPath();
    DWORD ignored = 0;
    data.resize(reader().size(path.c_str(), &ignored));
    if (data.empty() ||
        !reader().read(path.c_str(), 0, static_cast<DWORD>(data.size()), data.data()))
      data.clear();
    return data;
  }();
  return block;
}

std::string versionText(const char* name) {
  const std::vector<char>& block = versionBlock();
  if (block.empty()) return {};
  const std::string query = std::string("\\StringFileInfo\\040904E4\\") + name;
  void* value = nullptr;
  UINT size = 0;
  if (!reader().find(block.data(), query.c_str(), &value, &size) || size == 0) return {};
  return static_cast<const char*>(value);
}

// Where the file's name begins in a path. In a double-byte code page a "\" may be the second
// half of a character.
std::size_t nameStart(const std::string& path) {
  const char* start = path.c_str();
  for (const char* at = start; *at != '\0'; at = CharNextA(at))
    if (*at == '\\') start = at + 1;
  return static_cast<std::size_t>(start - path.c_str());
}

}  // namespace

std::string companyName() {
  return versionText("CompanyName");
}
std::string productName() {
  return versionText("ProductName");
}
std::string legalCopyright() {
  return versionText("LegalCopyright");
}

Version programVersion() {
  const std::vector<char>& block = versionBlock();
  void* value = nullptr;
  UINT size = 0;
  if (block.empty() || !reader().find(block.data(), "\\", &value, &size)) return {};
  const auto* info = static_cast<const VS_FIXEDFILEINFO*>(value);
  return {HIWORD(info->dwFileVersionMS), LOWORD(info->dwFileVersionMS)};
}

std::string programPath() {
  std::string path(MAX_PATH, '\0');
  for (;;) {
    const DWORD length = GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

std::string programFolder() {
  const std::string path = programPath();
  const std::size_t start = nameStart(path);
  if (start == 0) return {};
  const bool root = start == 3 && path[1] == ':';
  return path.substr(0, root ? start : start - 1);
}

std::string programName() {
  const std::string path = programPath();
  std::string name = path.substr(nameStart(path));
  const std::size_t dot = name.find_last_of('.');
  if (dot != std::string::npos) name.resize(dot);
  return name;
}

HINSTANCE programInstance() {
  return GetModuleHandleA(nullptr);
}

std::string commandLineTail() {
  // The shell hands a document over without quotes, so the tail is one path and must not be
  // split into arguments.
  const char* at = GetCommandLineA();
  if (*at == '"') {
    ++at;
    while (*at != '\0' && *at != '"') ++at;
    if (*at == '"') ++at;
  } else {
    while (*at != '\0' && *at != ' ' && *at != '\t') ++at;
  }
  while (*at == ' ' || *at == '\t') ++at;
  std::string tail = at;
  while (!tail.empty() && (tail.back() == ' ' || tail.back() == '\t')) tail.pop_back();
  return tail;
}

}  // namespace windowing
