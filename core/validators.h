#pragma once
// The checks of a field's content. A failed tax-number check says so through
// the prompter; ValidaUF reads the states of the system file.
#include <QString>

bool ValidaCPF(const QString &text);   // "CPF Inválido !" when the check digits disagree
bool ValidaCGC(const QString &text);   // "CGC Inválido !"
bool ValidaUF(const QString &uf);      // reads Estados on session.conSistema
// A user's name goes into statements between apostrophes (the rights tests,
// the settlement's stamp): a name holding one is refused where users are
// registered, with kNomeUsuarioInvalido.
bool NomeUsuarioValido(const QString &nome);
inline const QString kNomeUsuarioInvalido = QStringLiteral("O nome do usuário não pode conter apóstrofo (') !");
// An amount typed that is not a number (letters, two commas): the forms that
// read amounts themselves say so with this text.
inline const QString kValorInvalido = QStringLiteral("Valor inválido, digite o valor como 1.234,56 !");
