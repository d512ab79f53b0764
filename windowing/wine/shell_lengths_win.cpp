#include "windowing/wine/shell_lengths_win.h"

#include "values/wine_win.h"

namespace windowing::wine {

bool shellTakesAddress(const std::string& address) {
  constexpr std::size_t longest = 960;
  return !values::onWine() || address.size() <= longest;
}

bool shellTakesPath(const std::string& path) {
  const int bytes = static_cast<int>(path.size());
  return !values::onWine() ||
         MultiByteToWideChar(CP_ACP, 0, path.data(), bytes, nullptr, 0) < MAX_PATH;
}

}  // namespace windowing::wine
