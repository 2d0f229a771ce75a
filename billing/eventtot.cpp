#include "billing/eventtot.h"

#include "billing/recibo.h"
#include "core/datastore.h"
#include "core/transaction.h"

long encheEventtot(Connection &con, const QString &clausula)
{
    // Wiped and refilled in one step: a failure leaves the previous totals.
    Transaction enche(con);
    con.Execute(QStringLiteral("DELETE FROM Eventtot"));
    Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM recibos ") + clausula, con, 1, 2);
    long n = 0;
    while (!rs.eof()) {
        for (int i = 0; i < kSlotsRecibo; ++i) {
            const Money valor = rs[QStringLiteral("valor%1").arg(i)].toMoney();
            if (!(valor > Money()))
                continue;
            QString codigo = rs[QStringLiteral("item%1").arg(i)].text();
            if (codigo.trimmed().isEmpty())
                codigo = QStringLiteral("000");
            Recordset tot = con.Execute(QStringLiteral("SELECT * FROM Eventtot WHERE codigo = '") + codigo
                                        + QStringLiteral("'"));
            if (tot.eof()) {
                QString nome = QStringLiteral("xxxxxxxxx");
                QString tipo = QStringLiteral("H");
                Recordset ev = con.Execute(QStringLiteral("SELECT * FROM eventos WHERE codigo = '") + codigo
                                           + QStringLiteral("'"));
                if (!ev.eof()) {
                    nome = ev[QStringLiteral("nome")].text();
                    tipo = ev[QStringLiteral("tipo")].text();
                }
                con.Execute(QStringLiteral("INSERT INTO Eventtot(codigo,nome,tipo,valortot)")
                            + QStringLiteral(" VALUES('") + codigo + QStringLiteral("',\"") + nome
                            + QStringLiteral("\",'") + tipo + QStringLiteral("','") + textoValor(valor)
                            + QStringLiteral("')"));
            } else {
                const Money soma = tot[QStringLiteral("valortot")].toMoney() + valor;
                con.Execute(QStringLiteral("UPDATE Eventtot SET valortot = '") + textoValor(soma)
                            + QStringLiteral("'") + QStringLiteral(" WHERE codigo = '") + codigo
                            + QStringLiteral("'"));
            }
        }
        ++n;
        rs.moveNext();
    }
    enche.commit();
    return n;
}
