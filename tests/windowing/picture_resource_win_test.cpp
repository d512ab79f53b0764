#include "windowing/picture_resource_win.h"

#include <gtest/gtest.h>

#include <set>
#include <span>
#include <vector>

#include "library/images.h"
#include "library/resource_ids.h"

namespace windowing {
namespace {

HINSTANCE self() {
  return GetModuleHandleA(nullptr);
}

DIBSECTION section(HBITMAP bitmap) {
  DIBSECTION result{};
  EXPECT_EQ(GetObjectA(bitmap, sizeof result, &result), static_cast<int>(sizeof result));
  return result;
}

TEST(PictureResource, EveryCommandHasAPictureOfItsOwnInEverySize) {
  const int ids[] = {IDB_TOOLBAR16, IDB_TOOLBAR20, IDB_TOOLBAR24, IDB_TOOLBAR32};
  constexpr int count = static_cast<int>(library::imageKeys.size());
  for (std::size_t i = 0; i < library::imageSizes.size(); ++i) {
    const int size = library::imageSizes[i];
    const HBITMAP bitmap = loadPicture(self(), ids[i], Alpha::straight);
    ASSERT_TRUE(bitmap) << size;
    const DIBSECTION dib = section(bitmap);
    ASSERT_EQ(dib.dsBm.bmWidth, size * count);
    ASSERT_EQ(dib.dsBm.bmHeight, size);
    ASSERT_EQ(dib.dsBm.bmBitsPixel, 32);
    const auto* pixels = static_cast<const std::uint32_t*>(dib.dsBm.bmBits);
    std::set<std::vector<std::uint32_t>> pictures;
    for (int picture = 0; picture < count; ++picture) {
      std::vector<std::uint32_t> copy;
      int clear = 0;
      int solid = 0;
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          copy.push_back(pixels[y * size * count + picture * size + x]);
          clear += copy.back() >> 24 == 0;
          solid += copy.back() >> 24 == 255;
        }
      EXPECT_GT(clear, size * size / 10) << library::imageKeys[static_cast<std::size_t>(picture)];
      EXPECT_GT(solid, size * size / 10) << library::imageKeys[static_cast<std::size_t>(picture)];
      pictures.insert(copy);
    }
    EXPECT_EQ(pictures.size(), library::imageKeys.size()) << size;
    DeleteObject(bitmap);
  }
  EXPECT_FALSE(loadPicture(self(), 9999, Alpha::straight));
}

TEST(PictureResource, LogoIsAnOrdinaryBitmapForEveryResolution) {
  const struct {
    int id, width, height;
  } logos[] = {{IDB_LOGO96, 200, 60}, {IDB_LOGO144, 300, 90}, {IDB_LOGO192, 400, 120}};
  for (const auto& [id, width, height] : logos) {
    const auto bitmap = static_cast<HBITMAP>(
        LoadImageA(self(), MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    ASSERT_TRUE(bitmap) << id;
    const DIBSECTION dib = section(bitmap);
    EXPECT_EQ(dib.dsBm.bmWidth, width);
    EXPECT_EQ(dib.dsBm.bmHeight, height);
    DeleteObject(bitmap);
  }
}

BOOL CALLBACK addName(HMODULE, LPCSTR, LPSTR name, LONG_PTR list) {
  reinterpret_cast<std::vector<int>*>(list)->push_back(
      static_cast<int>(reinterpret_cast<ULONG_PTR>(name)));
  return TRUE;
}

// The document's icon is registered with the shell by its place, 2.
TEST(IconResource, DocumentIsTheThirdGroup) {
  std::vector<int> groups;
  EnumResourceNamesA(self(), RT_GROUP_ICON, addName, reinterpret_cast<LONG_PTR>(&groups));
  EXPECT_EQ(groups, (std::vector<int>{IDI_PROGRAM, IDI_CONTACT, IDI_DOCUMENT}));
  for (const int id : groups)
    for (const int size : {16, 20, 24, 32, 40, 48, 64, 256}) {
      const auto icon = static_cast<HICON>(
          LoadImageA(self(), MAKEINTRESOURCEA(id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
      ASSERT_TRUE(icon) << id << " at " << size;
      ICONINFO info{};
      ASSERT_TRUE(GetIconInfo(icon, &info));
      BITMAP colour{};
      GetObjectA(info.hbmColor, sizeof colour, &colour);
      EXPECT_EQ(colour.bmWidth, size);
      DeleteObject(info.hbmColor);
      DeleteObject(info.hbmMask);
      DestroyIcon(icon);
    }
}

}  // namespace
}  // namespace windowing
