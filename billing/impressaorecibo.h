#pragma once
// The printed receipt: one row of text columns per receipt (items with their
// descriptions, the amount in words on two lines, the owner's address) and
// the formulas of the print. The same fill serves the print after a save, the
// copy of frmRecBaixa and the range of frmSpool; billing/forms/imprimerecibo.h
// sends the rows to the template.
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <vector>

class Connection;
class Recordset;

// The data columns of ReciboL.rpt and ReciboM.rpt, in order.
QStringList colunasRecibo();

// One row for the receipt at the current record of rs (a SELECT * FROM
// Recibos): slots with a code get "name comp" as description ("" when the
// event is gone), Null amounts read as 0, the total in words cut at 37 and 77
// characters, the owner's address of the unit.
QStringList linhaRecibo(Connection &con, const Recordset &rs);

// Every row of a SELECT * FROM Recibos, in the order the statement gives.
std::vector<QStringList> linhasRecibos(Connection &con, const QString &sql);

// Msg, TitVia and TitVia1 from Parametros, and the two heading lines.
QList<QPair<QString, QString>> formulasRecibo(Connection &con);

// The receipt of one number; the range of frmSpool (val(codigo), no order,
// settled receipts too).
QString sqlReciboPorNumero(const QString &numero);
QString sqlReciboFaixa(const QString &primeiro, const QString &ultimo);
