#include "windowing/picture_resource_win.h"

#include <gtest/gtest.h>

#include <vector>

#include "library/images.h"
#include "library/resource_ids.h"
#include "values/handles_win.h"

namespace windowing {
namespace {

TEST(PictureResource, EveryResolutionHasAPictureForEachCommand) {
  const int ids[] = {IDB_TOOLBAR16, IDB_TOOLBAR20, IDB_TOOLBAR24, IDB_TOOLBAR32};
  for (std::size_t i = 0; i < library::imageSizes.size(); ++i) {
    const values::BitmapHandle bitmap(
        loadPicture(GetModuleHandleA(nullptr), ids[i], Alpha::straight));
    ASSERT_TRUE(bitmap);
    BITMAP facts{};
    GetObjectA(bitmap.get(), sizeof facts, &facts);
    EXPECT_EQ(facts.bmWidth, library::imageSizes[i] * static_cast<int>(library::imageKeys.size()));
    EXPECT_EQ(facts.bmHeight, library::imageSizes[i]);
  }
  EXPECT_FALSE(loadPicture(GetModuleHandleA(nullptr), 9999, Alpha::straight));
}

BOOL CALLBACK addName(HMODULE, LPCSTR, LPSTR name, LONG_PTR list) {
  reinterpret_cast<std::vector<int>*>(list)->push_back(
      static_cast<int>(reinterpret_cast<ULONG_PTR>(name)));
  return TRUE;
}

// The document's icon is registered with the shell by its place, 2.
TEST(IconResource, DocumentIsTheThirdGroup) {
  std::vector<int> groups;
  EnumResourceNamesA(nullptr, RT_GROUP_ICON, addName, reinterpret_cast<LONG_PTR>(&groups));
  EXPECT_EQ(groups, (std::vector<int>{IDI_PROGRAM, IDI_CONTACT, IDI_DOCUMENT}));
}

}  // namespace
}  // namespace windowing
