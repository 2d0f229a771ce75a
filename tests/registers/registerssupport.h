#pragma once
// Helpers of the registers' tests: controls by name, the statements sent
// through the data store, and a program directory with a condominium.
#include "support/fixtures.h"
#include "support/modalscript.h"

#include <QStringList>
#include <QWidget>
#include <gtest/gtest.h>

template <class T>
T *get(QWidget &form, const char *name)
{
    T *w = form.findChild<T *>(QString::fromLatin1(name));
    EXPECT_NE(w, nullptr) << name;
    return w;
}

// Records every statement sent on any connection while it lives.
class StatementLog {
public:
    StatementLog();
    ~StatementLog();
    QStringList sent;
    // The statements that begin with the text (without regard to case).
    QStringList startingWith(const QString &prefix) const;
    void clear() { sent.clear(); }
};

// A program directory with the condominium 1 ("Residencial Teste") in
// Clientes and its file Con001.mdb active in the session; the search dialogs
// are in the form catalog. The user is "Administrador" unless changed.
class RegistersDir : public TempProgramDir {
public:
    RegistersDir();
};

// Shows the form, activates it and waits, so that focus events reach it.
void mostra(QWidget &form);
// The user leaves the field with Tab: its lost-focus check runs as for a person.
void saiDoCampo(QWidget &form, const char *name);
