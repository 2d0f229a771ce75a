#pragma once
// Helpers of the shell's tests: a script of the modal dialogs a test expects,
// and a program directory with users in its system file.
#include "support/fixtures.h"

#include <QDialog>
#include <QString>
#include <deque>
#include <functional>
#include <vector>

// Installed for its life: each modal dialog shown through showModal is taken
// by the next step, whose name must match the dialog's objectName. A dialog
// that no step expects, and steps left unused, fail the test.
class ModalScript {
public:
    using Act = std::function<void(QDialog &)>;
    ModalScript();
    ~ModalScript();
    ModalScript &on(const QString &dialogName, Act act);
    std::vector<QString> opened;

private:
    struct Step {
        QString name;
        Act act;
    };
    std::deque<Step> steps_;
    std::function<void(QDialog &)> previous_;
};

// Acts for the usual dialogs.
ModalScript::Act typeLogin(const QString &login, const QString &senha);
ModalScript::Act clickButton(const QString &buttonName);

// A program directory whose Con000.mdb holds the condominium 1 ("Residencial
// Teste") and two users: "Maria" (password "segredo", every right, empat 1)
// and "Joao" (password "abc", no financial right, empat 0). The installation's
// administrator is "admin" with the password "mestre". The session points here.
class ShellDir : public TempProgramDir {
public:
    ShellDir();
    void execSistema(const QString &sql);
    QString querySistema(const QString &sql, const QString &column);
};
