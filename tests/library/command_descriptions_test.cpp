#include "library/command_descriptions.h"

#include <gtest/gtest.h>

using namespace library;

TEST(CommandDescriptions, FirstMatchInTableOrderNamesTheNounOrTheProduct) {
  const DescriptionContext main{"noun", "Product"}, last{"noun", "Product", false, true},
      preview{"noun", "Product", true};
  const struct {
    const char* caption;
    DescriptionContext context;
    const char* description;
  } rows[] = {{"&New Window", main, "Create a new noun"},
              {"&Address", main, "Add to current noun"},
              {"200 %", main, "View noun at 200 %"},
              {"&27 C:\\Book.tly", main, "Open this recent document in Product"},
              {"E&xit\tAlt+F4", main, "Quits Product; prompts to save noun"},
              {"E&xit", last, "Quits Product"},
              {"&Close", main, "Close the current document"},
              {"&Close\tAlt+F4", preview, "Close Print Preview"}};
  for (const auto& row : rows)
    EXPECT_EQ(commandDescription(row.caption, row.context), row.description) << row.caption;
  for (const char* unknown : {"", "&save", "Save", "100%", " &New"})
    EXPECT_FALSE(commandDescription(unknown, main)) << unknown;
}
