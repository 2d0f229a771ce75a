#include "core/widgets/messageboxprompter.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <vector>

namespace {
QMessageBox::ButtonRole roleOf(int answer)
{
    switch (answer) {
    case vbOK: case vbRetry: return QMessageBox::AcceptRole;
    case vbYes: return QMessageBox::YesRole;
    case vbNo: return QMessageBox::NoRole;
    case vbIgnore: return QMessageBox::DestructiveRole;
    default: return QMessageBox::RejectRole;  // Cancelar, Anular
    }
}

QMessageBox::Icon iconOf(int style)
{
    switch (style & 0x70) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}
}

int MessageBoxPrompter::msgBox(const QString &text, int style, const QString &title)
{
    // A box always shows the normal pointer, whatever the work around it set.
    int restored = 0;
    while (QApplication::overrideCursor()) {
        QApplication::restoreOverrideCursor();
        ++restored;
    }
    QMessageBox box(iconOf(style), title.isEmpty() ? QStringLiteral("Habitarium") : title, text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    const QList<PromptButton> buttons = promptButtons(style);
    std::vector<QPushButton *> pushes;
    for (const PromptButton &b : buttons)
        pushes.push_back(box.addButton(b.caption, roleOf(b.answer)));
    const int defaultAnswerOfStyle = defaultAnswer(style);
    for (qsizetype n = 0; n < buttons.size(); ++n) {
        if (buttons[n].answer == defaultAnswerOfStyle)
            box.setDefaultButton(pushes[n]);
        if (buttons[n].answer == vbCancel || (buttons.size() == 1))
            box.setEscapeButton(pushes[n]);
    }
    box.exec();
    int answer = defaultAnswerOfStyle;
    for (qsizetype n = 0; n < buttons.size(); ++n)
        if (box.clickedButton() == pushes[n])
            answer = buttons[n].answer;
    return answer;
}

QString MessageBoxPrompter::inputBox(const QString &prompt, const QString &title, const QString &defaultText)
{
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(title.isEmpty() ? QStringLiteral("Habitarium") : title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(defaultText);
    dialog.setOkButtonText(QStringLiteral("OK"));
    dialog.setCancelButtonText(QStringLiteral("Cancelar"));
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.textValue();
}
