#pragma once
// Helpers of the shell's tests: a script of the modal dialogs a test expects,
// and a program directory with users in its system file.
#include "support/fixtures.h"
#include "support/modalscript.h"

#include <QDialog>
#include <QString>
#include <deque>
#include <functional>
#include <vector>

// A program directory whose Con000.mdb holds the condominium 1 ("Residencial
// Teste") and two users: "Maria" (password "segredo", every right, empat 1)
// and "Joao" (password "abc", no financial right, empat 0). The installation's
// administrator is "admin" with the password "mestre". The session points here.
class ShellDir : public TempProgramDir {
public:
    ShellDir();
};
