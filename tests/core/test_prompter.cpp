// The scripted prompter itself and EndProgram are driven by every form test
// (test_shellforms: the login that ends the program).
#include "core/prompter.h"
#include <gtest/gtest.h>

TEST(Prompter, DefaultAnswerFollowsTheDefaultButton)
{
    EXPECT_EQ(defaultAnswer(vbOKOnly), vbOK);
    EXPECT_EQ(defaultAnswer(vbYesNo + vbQuestion), vbYes);
    EXPECT_EQ(defaultAnswer(vbYesNo + vbQuestion + vbDefaultButton2), vbNo);
    EXPECT_EQ(defaultAnswer(vbYesNoCancel + vbDefaultButton3), vbCancel);
    EXPECT_EQ(defaultAnswer(vbOKCancel + vbDefaultButton2), vbCancel);
}
