#pragma once
// The application's prompter: QMessageBox and QInputDialog with the system's
// styles, titles and Brazilian button captions.
#include "core/prompter.h"

class MessageBoxPrompter : public Prompter {
public:
    int msgBox(const QString &text, int style, const QString &title) override;
    QString inputBox(const QString &prompt, const QString &title, const QString &defaultText) override;
};
