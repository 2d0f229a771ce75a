#pragma once
// The scrambling of passwords: the administrator's in the installation
// settings, the users' in Usuarios. Text in, scrambled text out; never undone.
#include <QString>

QString EmbaralhaAdm(const QString &text);    // parity even, offset 0
QString EmbaralhaSenha(const QString &text);  // parity odd, offset 5
