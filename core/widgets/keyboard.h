#pragma once
// The keyboard rules of every form: Enter moves to the next field as Tab
// does, the double quote is refused (free text travels between double quotes
// in the statements), and a text field selects its contents on focus.
#include <QWidget>

// Applies the rules to the form and to every control it holds now.
void aplicaTeclado(QWidget &form);

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
