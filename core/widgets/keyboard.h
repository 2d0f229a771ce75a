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
// runs when the field loses the focus to another control, not when the
// window itself loses it or a popup opens.
void aoPerderFoco(QWidget *campo, std::function<void()> acao);

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
