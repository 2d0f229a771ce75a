#pragma once
// What the accounting reports' forms (frmRBalancetes, frmRRazao) share: the
// month fields, the base month kept in Parametros, and the checks made
// before a fill so that a month or year the chart cannot give is told
// instead of failing on a statement.
#include "core/datastore.h"

#include <QString>

class DateField;
class QLineEdit;
class QRadioButton;

inline const QString kIndiqueMes = QStringLiteral("Indique o mês base do relatório !");

// A month field: digits only, two at most.
void campoMes(QLineEdit *campo);
// Month or period: the last month is typed only for a period. A month report
// takes no last month, so one left in the field from a period is cleared
// (it would still widen the ledger's dates).
void ligaMesOuPeriodo(QRadioButton *mensal, QRadioButton *periodo, QLineEdit *mesIni, QLineEdit *mesFin);
// The base month of the last balance update (Parametros.mes_movSaldfin):
// invalid when there is none.
QDate mesBase(Connection &cn);
// True when the text is a month from 1 to 12.
bool mesValido(const QString &texto);
// The year of the field when the chart carries its months (2002 to 2008);
// otherwise tells the user, gives the field the focus and returns empty.
QString anoDoRelatorio(DateField *ano);
