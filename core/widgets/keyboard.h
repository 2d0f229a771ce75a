#pragma once
// The keyboard rules of every form: Enter moves to the next field as Tab
// does, the double quote is refused (free text travels between double quotes
// in the statements), and a text field selects its contents on focus.
#include <QWidget>
#include <functional>

// Applies the rules to the form and to every control it holds now.
void aplicaTeclado(QWidget &form);

// The system acts on the "lost focus" of a field. Qt emits no editingFinished
// for an incomplete mask, so this watches the focus-out event instead: `acao`
// runs when the field loses the focus to another control of its own form;
// not when the window loses it, a popup opens, the user goes to another form,
// or the form is closing.
void aoPerderFoco(QWidget *campo, std::function<void()> acao);
// A form that is being closed or destroyed: its lost-focus checks stop.
void marcaFechando(QWidget &form);
bool fechando(const QWidget &form);
// The form a control belongs to: its window, or the child of the main
// window's work area that holds it.
QWidget *formDe(QWidget *controle);

// The hourglass for the length of a piece of work.
class Ampulheta {
public:
    Ampulheta();
    ~Ampulheta();
    Ampulheta(const Ampulheta &) = delete;
    Ampulheta &operator=(const Ampulheta &) = delete;
};

// The normal pointer, whatever hourglasses were set before (a form's load,
// a message box).
void ponteiroNormal();
