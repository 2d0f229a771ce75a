#include "core/widgets/messageboxprompter.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <vector>

namespace {
struct Button {
    const char *caption;
    int answer;
    QMessageBox::ButtonRole role;
};

std::vector<Button> buttonsOf(int style)
{
    switch (style & 7) {
    case vbOKCancel:
        return {{"OK", vbOK, QMessageBox::AcceptRole}, {"Cancelar", vbCancel, QMessageBox::RejectRole}};
    case vbAbortRetryIgnore:
        return {{"Anular", vbAbort, QMessageBox::RejectRole},
                {"Repetir", vbRetry, QMessageBox::AcceptRole},
                {"Ignorar", vbIgnore, QMessageBox::DestructiveRole}};
    case vbYesNoCancel:
        return {{"Sim", vbYes, QMessageBox::YesRole},
                {"Não", vbNo, QMessageBox::NoRole},
                {"Cancelar", vbCancel, QMessageBox::RejectRole}};
    case vbYesNo:
        return {{"Sim", vbYes, QMessageBox::YesRole}, {"Não", vbNo, QMessageBox::NoRole}};
    case vbRetryCancel:
        return {{"Repetir", vbRetry, QMessageBox::AcceptRole}, {"Cancelar", vbCancel, QMessageBox::RejectRole}};
    default:
        return {{"OK", vbOK, QMessageBox::AcceptRole}};
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
    const std::vector<Button> buttons = buttonsOf(style);
    std::vector<QPushButton *> pushes;
    for (const Button &b : buttons)
        pushes.push_back(box.addButton(QString::fromUtf8(b.caption), b.role));
    const int defaultAnswerOfStyle = defaultAnswer(style);
    for (size_t n = 0; n < buttons.size(); ++n) {
        if (buttons[n].answer == defaultAnswerOfStyle)
            box.setDefaultButton(pushes[n]);
        if (buttons[n].answer == vbCancel || (buttons.size() == 1))
            box.setEscapeButton(pushes[n]);
    }
    box.exec();
    int answer = defaultAnswerOfStyle;
    for (size_t n = 0; n < buttons.size(); ++n)
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
