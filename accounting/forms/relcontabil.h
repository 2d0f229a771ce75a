#pragma once
// What the accounting reports' forms (frmRBalancetes, frmRRazao) share: the
// month fields, the base month kept in Parametros, and the checks made
// before a fill so that a month or year the chart cannot give is told
// instead of failing on a statement.
#include "core/datastore.h"

#include <QString>

class DateField;
class QLineEdit;

inline const QString kIndiqueMes = QStringLiteral("Indique o mês base do relatório !");

// A month field: digits only, two at most.
void campoMes(QLineEdit *campo);
// The base month of the last balance update (Parametros.mes_movSaldfin):
// invalid when there is none.
QDate mesBase(Connection &cn);
// True when the text is a month from 1 to 12.
bool mesValido(const QString &texto);
// The year of the field when the chart carries its months (2002 to 2008);
// otherwise tells the user, gives the field the focus and returns empty.
QString anoDoRelatorio(DateField *ano);
