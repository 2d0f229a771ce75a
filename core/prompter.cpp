#include "core/prompter.h"

#include <cstdio>

namespace {
HeadlessPrompter headless;
Prompter *current = &headless;
}

int defaultAnswer(int style)
{
    const int buttons = style & 7;
    const int which = (style & vbDefaultButton3) ? 2 : (style & vbDefaultButton2) ? 1 : 0;
    static const int answers[6][3] = {
        {vbOK, vbOK, vbOK},         {vbOK, vbCancel, vbCancel},    {vbAbort, vbRetry, vbIgnore},
        {vbYes, vbNo, vbCancel},    {vbYes, vbNo, vbNo},           {vbRetry, vbCancel, vbCancel},
    };
    return answers[buttons <= 5 ? buttons : 0][which];
}

QList<PromptButton> promptButtons(int style)
{
    const PromptButton ok{vbOK, QStringLiteral("OK")}, cancelar{vbCancel, QStringLiteral("Cancelar")},
        sim{vbYes, QStringLiteral("Sim")}, nao{vbNo, QStringLiteral("Não")}, repetir{vbRetry, QStringLiteral("Repetir")};
    switch (style & 7) {
    case vbOKCancel: return {ok, cancelar};
    case vbAbortRetryIgnore: return {{vbAbort, QStringLiteral("Anular")}, repetir, {vbIgnore, QStringLiteral("Ignorar")}};
    case vbYesNoCancel: return {sim, nao, cancelar};
    case vbYesNo: return {sim, nao};
    case vbRetryCancel: return {repetir, cancelar};
    default: return {ok};
    }
}

Prompter *setPrompter(Prompter *p)
{
    Prompter *old = current;
    current = p ? p : &headless;
    return old == &headless ? nullptr : old;
}

Prompter &prompter() { return *current; }

int MsgBox(const QString &text, int style, const QString &title) { return current->msgBox(text, style, title); }

QString InputBox(const QString &prompt, const QString &title, const QString &defaultText)
{
    return current->inputBox(prompt, title, defaultText);
}

void EndProgram()
{
    current->programEnding();
    throw ProgramEnded();
}

int HeadlessPrompter::msgBox(const QString &text, int style, const QString &title)
{
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    const int buttons = style & 7;
    if (yesToAll && (buttons == vbYesNo || buttons == vbYesNoCancel))
        return vbYes;
    return defaultAnswer(style);
}

QString HeadlessPrompter::inputBox(const QString &prompt, const QString &, const QString &defaultText)
{
    std::fprintf(stderr, "%s\n", prompt.toUtf8().constData());
    return defaultText;
}
