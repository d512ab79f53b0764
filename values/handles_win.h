// Owners of Windows handles: move-only, released once, never copied.
#pragma once

#include <windows.h>

#include <utility>

namespace values {

/// Owner of one handle. `Traits` gives the handle's type, its empty value and its release.
template <typename Traits>
class UniqueHandle {
 public:
  using Type = typename Traits::Type;

  UniqueHandle() = default;
  explicit UniqueHandle(Type handle) : handle_(handle) {}
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.release()) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    if (this != &other) reset(other.release());
    return *this;
  }
  UniqueHandle(const UniqueHandle&) = delete;
  UniqueHandle& operator=(const UniqueHandle&) = delete;
  ~UniqueHandle() { reset(); }

  [[nodiscard]] Type get() const { return handle_; }
  explicit operator bool() const { return handle_ != Traits::empty(); }
  /// Gives the handle up without releasing it.
  [[nodiscard]] Type release() { return std::exchange(handle_, Traits::empty()); }
  void reset(Type handle = Traits::empty()) {
    const Type old = std::exchange(handle_, handle);
    if (old != Traits::empty()) Traits::free(old);
  }

 private:
  Type handle_ = Traits::empty();
};

template <typename Handle>
struct GdiTraits {
  using Type = Handle;
  static Type empty() { return nullptr; }
  static void free(Type handle) { DeleteObject(handle); }
};
using FontHandle = UniqueHandle<GdiTraits<HFONT>>;
using BrushHandle = UniqueHandle<GdiTraits<HBRUSH>>;
using PenHandle = UniqueHandle<GdiTraits<HPEN>>;
using BitmapHandle = UniqueHandle<GdiTraits<HBITMAP>>;

struct IconTraits {
  using Type = HICON;
  static Type empty() { return nullptr; }
  static void free(Type handle) { DestroyIcon(handle); }
};
using IconHandle = UniqueHandle<IconTraits>;

struct MenuTraits {
  using Type = HMENU;
  static Type empty() { return nullptr; }
  static void free(Type handle) { DestroyMenu(handle); }
};
using MenuHandle = UniqueHandle<MenuTraits>;

/// A file opened by CreateFile, whose failure value is not null.
struct FileTraits {
  using Type = HANDLE;
  static Type empty() { return INVALID_HANDLE_VALUE; }
  static void free(Type handle) { CloseHandle(handle); }
};
using FileHandle = UniqueHandle<FileTraits>;

/// A search opened by FindFirstFile.
struct FindTraits {
  using Type = HANDLE;
  static Type empty() { return INVALID_HANDLE_VALUE; }
  static void free(Type handle) { FindClose(handle); }
};
using FindHandle = UniqueHandle<FindTraits>;

struct RegistryKeyTraits {
  using Type = HKEY;
  static Type empty() { return nullptr; }
  static void free(Type handle) { RegCloseKey(handle); }
};
using RegistryKey = UniqueHandle<RegistryKeyTraits>;

struct MemoryDcTraits {
  using Type = HDC;
  static Type empty() { return nullptr; }
  static void free(Type handle) { DeleteDC(handle); }
};
using MemoryDc = UniqueHandle<MemoryDcTraits>;

/// Device context of a window's client area, or of the screen for a null window.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() { ReleaseDC(window_, dc_); }
  [[nodiscard]] HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

/// Painting of a window between BeginPaint and EndPaint.
class PaintDc {
 public:
  explicit PaintDc(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  PaintDc(const PaintDc&) = delete;
  PaintDc& operator=(const PaintDc&) = delete;
  ~PaintDc() { EndPaint(window_, &paint_); }
  [[nodiscard]] HDC get() const { return dc_; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC dc_;
};

/// An object selected into a device context for the length of a scope.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), old_(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(dc_, old_); }

 private:
  HDC dc_;
  HGDIOBJ old_;
};

}  // namespace values
