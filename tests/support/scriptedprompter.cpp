#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

ScriptedPrompter::ScriptedPrompter() { previous_ = setPrompter(this); }

ScriptedPrompter::~ScriptedPrompter()
{
    setPrompter(previous_);
    for (const Step &s : script_)
        ADD_FAILURE() << "resposta não usada do roteiro: " << (s.input ? s.text : QString::number(s.answer)).toStdString()
                      << " (esperava texto com \"" << s.part.toStdString() << "\")";
}

ScriptedPrompter &ScriptedPrompter::answer(int answer, const QString &textPart)
{
    script_.push_back({false, answer, QString(), textPart});
    return *this;
}

ScriptedPrompter &ScriptedPrompter::answerInput(const QString &text, const QString &promptPart)
{
    script_.push_back({true, 0, text, promptPart});
    return *this;
}

std::vector<QString> ScriptedPrompter::texts() const
{
    std::vector<QString> out;
    for (const PromptCall &c : calls)
        out.push_back(c.text);
    return out;
}

int ScriptedPrompter::msgBox(const QString &text, int style, const QString &title)
{
    calls.push_back({text, title, style, false});
    const bool question = (style & 7) != vbOKOnly;
    if (!script_.empty() && !script_.front().input) {
        Step s = script_.front();
        if (s.part.isEmpty() || text.contains(s.part)) {
            script_.pop_front();
            return s.answer;
        }
        if (question)
            ADD_FAILURE() << "pergunta diferente da esperada: \"" << text.toStdString() << "\", esperava \""
                          << s.part.toStdString() << "\"";
    } else if (question) {
        ADD_FAILURE() << "pergunta inesperada: \"" << text.toStdString() << "\" (" << title.toStdString() << ")";
    }
    return question ? defaultAnswer(style) : vbOK;
}

QString ScriptedPrompter::inputBox(const QString &prompt, const QString &title, const QString &defaultText)
{
    calls.push_back({prompt, title, 0, true});
    if (script_.empty() || !script_.front().input) {
        ADD_FAILURE() << "caixa de entrada inesperada: \"" << prompt.toStdString() << "\"";
        return defaultText;
    }
    Step s = script_.front();
    script_.pop_front();
    if (!s.part.isEmpty() && !prompt.contains(s.part))
        ADD_FAILURE() << "caixa de entrada diferente da esperada: \"" << prompt.toStdString() << "\"";
    return s.text;
}
