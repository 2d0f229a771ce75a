#pragma once
// The print of receipts, through ReciboM.rpt for a user whose printer type is
// "M" (matrix) and ReciboL.rpt for every other type.
#include <QString>

class Connection;

// The template of the signed-in user's printer type.
QString modeloRecibo();

// The receipt just saved in frmRecibos, straight to the printer, with no
// dialog and no preview. False when it was not printed (no such receipt, or a
// printing fault, which the form does not report).
bool imprimeReciboDireto(Connection &con, const QString &numero);

// The receipts of a SELECT * FROM Recibos in the preview, titled "Balancete"
// (the copy of frmRecBaixa, the range of frmSpool). An empty list gives an
// empty report.
void mostraRecibos(Connection &con, const QString &sql);
