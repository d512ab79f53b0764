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

}  // namespace
}  // namespace document
