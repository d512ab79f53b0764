#include "paper/print_dialog_win.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

#include "paper/printer_win.h"
#include "values/handles_win.h"
#include "values/runtime_error.h"
#include "windowing/modal_win.h"
#include "windowing/seams_win.h"

namespace paper {
namespace {

struct GlobalTraits {
  using Type = HGLOBAL;
  static Type empty() { return nullptr; }
  static void free(Type handle) { GlobalFree(handle); }
};
using GlobalMemory = values::UniqueHandle<GlobalTraits>;

// Locks a block of movable memory for the length of a scope.
class Locked {
 public:
  explicit Locked(HGLOBAL memory) : memory_(memory), bytes_(GlobalLock(memory)) {}
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;
  ~Locked() { GlobalUnlock(memory_); }
  template <typename Type>
  [[nodiscard]] Type* as() const {
    return static_cast<Type*>(bytes_);
  }

 private:
  HGLOBAL memory_;
  void* bytes_;
};

HGLOBAL settingsOf(Printer& device, int copies) {
  const std::vector<BYTE>& settings = device.settings();
  const HGLOBAL memory = GlobalAlloc(GHND, settings.size());
  if (memory == nullptr) return nullptr;
  const Locked locked(memory);
  std::memcpy(locked.as<BYTE>(), settings.data(), settings.size());
  locked.as<DEVMODEA>()->dmCopies = static_cast<short>(copies);
  return memory;
}

HGLOBAL namesOf(const std::string& device) {
  constexpr std::string_view driver = "winspool";
  const std::size_t deviceAt = sizeof(DEVNAMES) + driver.size() + 1;
  const std::size_t portAt = deviceAt + device.size() + 1;
  const HGLOBAL memory = GlobalAlloc(GHND, portAt + 1);  // zeroed: the port stays empty
  if (memory == nullptr) return nullptr;
  const Locked locked(memory);
  auto* names = locked.as<DEVNAMES>();
  names->wDriverOffset = sizeof(DEVNAMES);
  names->wDeviceOffset = static_cast<WORD>(deviceAt);
  names->wOutputOffset = static_cast<WORD>(portAt);
  driver.copy(locked.as<char>() + names->wDriverOffset, driver.size());
  device.copy(locked.as<char>() + deviceAt, device.size());
  return memory;
}

void adoptChoice(const PRINTDLGA& dialog) {
  if (dialog.hDevMode == nullptr || dialog.hDevNames == nullptr) return;
  const Locked settings(dialog.hDevMode);
  const Locked names(dialog.hDevNames);
  // Not the name in the settings, which is cut off after 31 characters.
  printer().adopt(names.as<char>() + names.as<DEVNAMES>()->wDeviceOffset, *settings.as<DEVMODEA>());
}

WORD word(int value) {
  return static_cast<WORD>(std::clamp<int>(value, 0, std::numeric_limits<WORD>::max()));
}

}  // namespace

bool PrintDialog::show() {
  PRINTDLGA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = windowing::dialogOwner();
  dialog.hDevMode = settingsOf(printer(), std::max(1, copies));
  dialog.hDevNames = namesOf(printer().name());
  dialog.Flags = flags;
  dialog.nMinPage = 1;
  // The dialog does not open with a range that lies outside the pages.
  const int last = std::max(1, max);
  dialog.nMaxPage = word(last);
  dialog.nFromPage = word(std::clamp(fromPage, 1, last));
  dialog.nToPage = word(std::clamp(toPage, 1, last));
  dialog.nCopies = word(copies);
  BOOL agreed = FALSE;
  {
    const windowing::DisabledOthers others(dialog.hwndOwner);
    agreed = windowing::seams().printDialog(dialog);
  }
  // The dialog may have replaced both blocks. The program owns those that are there now.
  const GlobalMemory settings(dialog.hDevMode);
  const GlobalMemory names(dialog.hDevNames);
  const values::MemoryDc returned(dialog.hDC);
  if (!agreed) {
    if (CommDlgExtendedError() != 0)
      throw values::RuntimeError(values::ErrorNumber::printer, "Printer error");
    if (cancelError)
      throw values::RuntimeError(values::ErrorNumber::cancelled, "Cancel was selected");
    return false;
  }
  adoptChoice(dialog);
  flags = dialog.Flags;
  fromPage = dialog.nFromPage;
  toPage = dialog.nToPage;
  // It depends on the device which of the two holds the number of copies.
  copies = std::max<int>(dialog.nCopies, printer().copies());
  return true;
}

}  // namespace paper
