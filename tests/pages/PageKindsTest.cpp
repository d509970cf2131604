// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "pages/PageKinds.h"

namespace {

TEST(PageKinds, EveryPageIsFoundByItsNameAndKind) {
  for (const pages::PageInfo& page : pages::kPages) {
    EXPECT_EQ(pages::FindPage(page.Name), &page);
    EXPECT_EQ(&pages::InfoOf(page.Kind), &page);
  }
}

TEST(PageKinds, OtherNamesHaveNoPage) {
  EXPECT_EQ(pages::FindPage("Kinematics"), nullptr);
  EXPECT_EQ(pages::FindPage(""), nullptr);
}

}  // namespace
