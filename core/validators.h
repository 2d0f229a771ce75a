#pragma once
// The checks of a field's content. A failed tax-number check says so through
// the prompter; ValidaUF reads the states of the system file.
#include <QString>

bool ValidaCPF(const QString &text);   // "CPF Inválido !" when the check digits disagree
bool ValidaCGC(const QString &text);   // "CGC Inválido !"
bool ValidaUF(const QString &uf);      // reads Estados on session.conSistema
