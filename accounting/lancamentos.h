#pragma once
// What the journal's forms need without a window: the year's table and its
// presence, and the amount as an accountant types it.
#include "core/datastore.h"

#include <QString>

// "Mov" and the year's last two digits: "2008" gives "Mov08".
QString tabelaDoAno(const QString &ano);

// Whether the file has the journal table of that name. Only Mov00 to Mov08
// exist in a condominium's file; a later year has none.
bool existeTabelaAno(Connection &cn, const QString &tabela);
// What the accountant is told when the year has no journal table.
QString semTabelaDoAno(const QString &ano);

// Plano carries budget columns (po + yymm) for the years 2002 to 2008 only;
// the reports that read them need one of those years.
bool anoComPrevisao(const QString &ano);

// An amount typed the Brazilian way: digits, thousands points in groups of
// three, one decimal comma with up to two places, an optional leading minus
// ("1.000,00", "1000,5", "-12"). Empty is zero. False for anything else
// ("1.000,00,0", "1,234", "10.00"), and valor is then left alone.
bool valorDigitado(const QString &texto, double &valor);
