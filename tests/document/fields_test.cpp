// The table's own soundness is checked while compiling; here the three orders are held against
// lists written down by themselves.
#include "document/fields.h"

#include <gtest/gtest.h>

#include <string>

namespace document {
namespace {

TEST(Fields, FileOrder) {
  std::string order;
  for (const Slot slot : slotAtFilePosition) order += std::string(fieldOf(slot).name) + " ";
  EXPECT_EQ(order,
            "Surname FirstNames DateOfBirth JobTitle MobilePhone Pager "
            "HomeAddress1 HomeAddress2 HomeCity HomeCountry HomePostcode HomePhone HomeFax "
            "HomeEmail HomeWebsite "
            "WorkAddress1 WorkAddress2 WorkCity WorkCountry WorkPostcode WorkPhone WorkFax "
            "WorkEmail WorkWebsite Other1 Other2 Comments Company ");
}

TEST(Fields, BoxesOfTheForm) {
  for (std::size_t i = 0; i < 20; ++i) EXPECT_EQ(static_cast<std::size_t>(slotOfItem[i]), i);
  EXPECT_EQ(slotOfItem[20], Slot::Other1);
  EXPECT_EQ(slotOfItem[21], Slot::Other2);
  EXPECT_EQ(slotOfItem[22], Slot::Comments);
  EXPECT_EQ(slotOfItem[23], Slot::Company);
  EXPECT_EQ(fieldOf(Slot::HomeEmail).box, Box::CBOPEMAIL);
  EXPECT_EQ(fieldOf(Slot::WorkEmail).box, Box::CBOPWORKEMAIL);
  EXPECT_EQ(fieldOf(Slot::HomeWebsite).box, Box::CBOPWEBSITE);
  EXPECT_EQ(fieldOf(Slot::WorkWebsite).box, Box::CBOPWORKWEBSITE);
}

}  // namespace
}  // namespace document
