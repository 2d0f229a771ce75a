#pragma once
// Modal dialogs open through showModal, so that a test can act on a dialog
// when it opens (setModalHandler), and so that an end of the program asked for
// inside a dialog unwinds the code that opened it.
#include <QDialog>
#include <functional>

// Shows dlg modally and returns its result. With a handler installed the
// handler gets the dialog instead of an event loop: it may show it, type,
// click, and close it. A dialog that unloaded itself while loading
// (marcaDescarregado) is not shown and gives QDialog::Rejected.
// When the program was ended while the dialog was open, ProgramEnded is thrown
// here, so that nothing after the dialog runs.
int showModal(QDialog &dlg);

using ModalHandler = std::function<void(QDialog &)>;
// Installs h (an empty function restores the event loop); returns the old one.
ModalHandler setModalHandler(ModalHandler h);

// A form that decides during its load that it will not stay ("unload at once").
void marcaDescarregado(QWidget &form);
bool descarregado(const QWidget &form);

// The top level's end of the program: every event loop quits and every
// showModal still open throws ProgramEnded on its way out.
void pedeFimPrograma();
bool fimProgramaPedido();

// The application's handling of an exception that reached the event loop;
// call it inside a catch block. ProgramEnded quits; DatabaseError and any
// other failure of the run are shown in an "Erro Fatal" box, then the program quits.
void trataFalhaNoTopo();

// Unloads a form: a child of the main window closes its sub-window, anything
// else closes itself.
void fechaForm(QWidget &form);
