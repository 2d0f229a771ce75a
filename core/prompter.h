#pragma once
// Every message box and input box of the system goes through one prompter,
// with the original styles and answers. The application installs one over
// QMessageBox; tests install a scripted one; habtool one that answers each
// question with its default button and prints the text on standard error.
#include <QList>
#include <QString>
#include <exception>

enum MsgStyle : int {
    vbOKOnly = 0, vbOKCancel = 1, vbAbortRetryIgnore = 2, vbYesNoCancel = 3, vbYesNo = 4, vbRetryCancel = 5,
    vbCritical = 16, vbQuestion = 32, vbExclamation = 48, vbInformation = 64,
    vbDefaultButton1 = 0, vbDefaultButton2 = 256, vbDefaultButton3 = 512,
};
enum MsgResult : int { vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7 };

class Prompter {
public:
    virtual ~Prompter() = default;
    virtual int msgBox(const QString &text, int style, const QString &title) = 0;
    // Returns the typed text; the empty text when cancelled.
    virtual QString inputBox(const QString &prompt, const QString &title, const QString &defaultText) = 0;
    // Called once when the program is ended by a routine (before ProgramEnded is thrown).
    virtual void programEnding() {}
};

// The button a box of this style answers with when nobody chooses: the
// default button of the style (vbDefaultButton2 picks the second one).
int defaultAnswer(int style);

// The buttons of a box of this style, in order, with their captions: "OK",
// "Cancelar", "Anular", "Repetir", "Ignorar", "Sim", "Não".
struct PromptButton {
    int answer;
    QString caption;
};
QList<PromptButton> promptButtons(int style);

// Installs p (not owned) and returns the one it replaces. nullptr restores the
// headless prompter.
Prompter *setPrompter(Prompter *p);
Prompter &prompter();

int MsgBox(const QString &text, int style = vbOKOnly, const QString &title = QString());
QString InputBox(const QString &prompt, const QString &title = QString(), const QString &defaultText = QString());

// Ending the program from inside a routine ("End"). Nothing after the call
// runs: ProgramEnded unwinds to the application's top level, which quits.
struct ProgramEnded : std::exception {
    const char *what() const noexcept override { return "programa encerrado"; }
};
[[noreturn]] void EndProgram();

// The headless prompter: answers every box with its default button and every
// input box with its default text; writes each text on standard error.
// With yesToAll, yes/no questions are answered yes.
class HeadlessPrompter : public Prompter {
public:
    bool yesToAll = false;
    int msgBox(const QString &text, int style, const QString &title) override;
    QString inputBox(const QString &prompt, const QString &title, const QString &defaultText) override;
};
