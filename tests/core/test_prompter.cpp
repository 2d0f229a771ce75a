#include "core/prompter.h"
#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

TEST(Prompter, DefaultAnswerFollowsTheDefaultButton)
{
    EXPECT_EQ(defaultAnswer(vbOKOnly), vbOK);
    EXPECT_EQ(defaultAnswer(vbYesNo + vbQuestion), vbYes);
    EXPECT_EQ(defaultAnswer(vbYesNo + vbQuestion + vbDefaultButton2), vbNo);
    EXPECT_EQ(defaultAnswer(vbYesNoCancel + vbDefaultButton3), vbCancel);
    EXPECT_EQ(defaultAnswer(vbOKCancel + vbDefaultButton2), vbCancel);
}

TEST(Prompter, ScriptedAnswersQuestionsAndRecordsEveryBox)
{
    ScriptedPrompter p;
    p.answer(vbNo, QStringLiteral("Confirma"));
    MsgBox(QStringLiteral("Gravado."), vbInformation, QStringLiteral("Atenção"));
    EXPECT_EQ(MsgBox(QStringLiteral("Confirma a exclusão ?"), vbYesNo + vbQuestion, QStringLiteral("Atenção...")), vbNo);
    ASSERT_EQ(p.calls.size(), 2u);
    EXPECT_EQ(p.calls[0].title, QStringLiteral("Atenção"));
    EXPECT_EQ(p.calls[1].style, vbYesNo + vbQuestion);
}

TEST(Prompter, EndProgramUnwindsAndIsObserved)
{
    ScriptedPrompter p;
    EXPECT_THROW(EndProgram(), ProgramEnded);
    EXPECT_TRUE(p.programEnded);
}
