#pragma once
// Rights of the financial acts, read from Usuarios on the system connection at
// the moment of each act, never taken from the session's copies.
#include <QString>

// "SELECT <coluna> FROM Usuarios WHERE nome = '<usuario>'" on session.conSistema,
// with the column name written as the act writes it ("Cfbai", "cfexc"...).
// An unknown user has no right.
bool temDireito(const QString &coluna, const QString &usuario);
