#pragma once
// The scripted prompter: installed for the life of the object, it records every
// box (title, text, style) and answers from a script. A question (any box with
// more than an OK button, and every input box) that the script does not expect
// fails the test; answers left unused at the end fail it too. Plain OK boxes
// need no script: they are recorded and answered OK.
#include "core/prompter.h"

#include <QString>
#include <deque>
#include <vector>

struct PromptCall {
    QString text;
    QString title;
    int style = 0;
    bool input = false;
};

class ScriptedPrompter : public Prompter {
public:
    ScriptedPrompter();
    ~ScriptedPrompter() override;

    // The next question answers `answer`; when textPart is given the question's
    // text must contain it.
    ScriptedPrompter &answer(int answer, const QString &textPart = QString());
    ScriptedPrompter &answerInput(const QString &text, const QString &promptPart = QString());

    std::vector<PromptCall> calls;
    bool programEnded = false;

    // Texts of all calls, in order (handy in EXPECT_EQ).
    std::vector<QString> texts() const;
    const PromptCall &last() const { return calls.back(); }

    int msgBox(const QString &text, int style, const QString &title) override;
    QString inputBox(const QString &prompt, const QString &title, const QString &defaultText) override;
    void programEnding() override { programEnded = true; }

private:
    struct Step {
        bool input = false;
        int answer = 0;
        QString text;
        QString part;
    };
    std::deque<Step> script_;
    Prompter *previous_ = nullptr;
};
