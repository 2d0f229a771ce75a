#pragma once
// The start of the program, shared by the program itself and by habdrive,
// which drives it from a script: the application object, its language and
// forms, and the main window's start in a program directory.
#include "reporting/imprime.h"

#include <QApplication>

class mdiHabitarium;

// The application: an exception that reaches the event loop is handled at the
// top level ("Erro Fatal", or the end of the program).
class Aplicacao : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject *receiver, QEvent *event) override;
};

// The program's name and icon, the Brazilian locale, Qt's own texts in
// Portuguese, and every form of the catalog.
void preparaPrograma(Aplicacao &app);

// Starts the main window in programDir: files checked, installation, login
// and active condominium. Every report goes to viewer, or to the main
// window's preview when none is given. False when the program ended during
// the start (nothing more must run).
bool iniciaPrograma(mdiHabitarium &mdi, const QString &programDir, ReportViewer viewer = {});
