#include "printing/report.h"

#include <gtest/gtest.h>

namespace printing {
namespace {

using document::ContactRecord;
using document::Slot;

// The report as it reads: "|" for a line break, "*" before bold text, "+" before any other.
std::string written(const ContactRecord& values) {
  std::string report;
  for (const ReportStep& step : reportOf(values)) {
    if (step.kind == ReportStep::Kind::lineBreak) report += '|';
    if (step.kind == ReportStep::Kind::boldText) report += '*' + step.text;
    if (step.kind == ReportStep::Kind::text) report += '+' + step.text;
  }
  return report;
}

TEST(Report, OfAFullContact) {
  ContactRecord values;
  for (const document::Field& field : document::fields)
    values[field.slot] = "<" + std::string(field.name) + ">";
  EXPECT_EQ(written(values),
            "|*<FirstNames> <Surname>"
            "|+Date of birth: <DateOfBirth>"
            "|+Job title: <JobTitle>"
            "|+Mobile Phone: <MobilePhone>"
            "|+Pager: <Pager>"
            "|+Other 1: <Other1>"
            "|+Other 2: <Other2>"
            "|+Comments: <Comments>"
            "|+Address: <HomeAddress1>, <HomeAddress2>, <HomeCity>, <HomeCountry>, <HomePostcode>"
            "|+Home Phone: <HomePhone>"
            "|+Fax Number: <HomeFax>"
            "|+Company Name: <Company>"
            "|+Work Address: <WorkAddress1>, <WorkAddress2>, <WorkCity>, <WorkCountry>, "
            "<WorkPostcode>"
            "|+Work Phone: <WorkPhone>"
            "|+Work Fax Number: +<WorkFax>"
            "|+Home Email: <HomeEmail>"
            "|+Work Email: <WorkEmail>"
            "|+Home Website: <HomeWebsite>"
            "|+Work Website: <WorkWebsite>");
}

TEST(Report, LeavesOutWhatIsEmptyAndTrimsNothing) {
  EXPECT_EQ(written({}), "|*");
  ContactRecord values;
  values[Slot::Surname] = "B";
  EXPECT_EQ(written(values), "|* B");
  values[Slot::FirstNames] = " Ann ";
  values[Slot::HomeAddress1] = "6";
  values[Slot::HomeCountry] = "9";
  values[Slot::WorkPostcode] = "17";
  values[Slot::Pager] = " ";
  values[Slot::Comments] = "one\r\ntwo";
  EXPECT_EQ(written(values),
            "|* Ann  B|+Pager:  |+Comments: one\r\ntwo|+Address: 6, 9|+Work Address: 17");
}

}  // namespace
}  // namespace printing
