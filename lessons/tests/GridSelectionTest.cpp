#include "GridSelection.h"

#include <gtest/gtest.h>


TEST(GridSelection, ClicksWithAndWithoutModifiers)
{
    GridSelection s;
    s.Reset(6);
    EXPECT_EQ(s.Focus(), 0);
    EXPECT_EQ(s.FirstSelected(), -1);
    s.SelectOnly(2);
    EXPECT_EQ(s.Selected(), (std::vector<int>{2}));
    s.Toggle(4);
    EXPECT_EQ(s.Selected(), (std::vector<int>{2, 4}));
    s.Toggle(2);
    EXPECT_EQ(s.Selected(), (std::vector<int>{4}));
    EXPECT_EQ(s.Anchor(), 2);
    s.ExtendTo(5);
    EXPECT_EQ(s.Selected(), (std::vector<int>{2, 3, 4, 5}));
    EXPECT_EQ(s.Focus(), 5);
    EXPECT_EQ(s.Anchor(), 2);
    s.SelectOnly(-1);
    EXPECT_TRUE(s.Selected().empty());
    EXPECT_EQ(s.Focus(), 5); // clearing keeps the focus
    s.SelectOnly(6); // no such cell
    EXPECT_TRUE(s.Selected().empty());
    s.Reset(0);
    EXPECT_EQ(s.Focus(), -1);
    s.ExtendTo(0);
    EXPECT_TRUE(s.Selected().empty());
}
