#include "banks/forms/boletos.h"

#include "accounting/balancete.h"
#include "banks/demonstrativo.h"
#include "core/session.h"

int criaDemonstrativo(Connection &con, const QDate &mes, int modelo, const QString &titulo, const QStringList &extras,
                      bool colunasTexto, bool arquivo, const QString &arqway)
{
    con.Execute(QStringLiteral("DELETE FROM RBalRec"));
    QString sql = QStringLiteral("INSERT INTO RBalRec(mesbase,modelo,nlinhas,titulo,LinAdic1,LinAdic2,LinAdic3,LinAdic4");
    sql += colunasTexto ? QStringLiteral(",arqtexto,arqway)") : QStringLiteral(")");
    sql += QStringLiteral(" VALUES(#") + mes.toString(QStringLiteral("MM/yyyy")) + QStringLiteral("#,'")
           + QString::number(modelo) + QStringLiteral("',0,\"") + titulo + QStringLiteral("\"");
    for (int n = 0; n < 4; ++n)
        sql += QStringLiteral(",\"") + extras.value(n) + QStringLiteral("\"");
    if (colunasTexto)
        sql += (arquivo ? QStringLiteral(",'True','") : QStringLiteral(",'False','")) + arqway + QStringLiteral("'");
    con.Execute(sql + QStringLiteral(")"));
    int16_t &n = session.linhasDemonstrativo;
    if (arquivo) {
        Carrega_Texto(extras.value(0), extras.value(1), extras.value(2), extras.value(3));
    } else {
        // The statement reads the month's trial balance: it is filled first.
        Monta_Balancete(con, QString::number(mes.month()), QString::number(mes.year()));
        TotaisDemonstrativo totais;
        Monta_Demonstrativo(con, totais, modelo, QString::number(mes.month()), QString::number(mes.year()));
        // The extra lines follow after an empty line, as after a loaded text.
        if (n < int16_t(session.demonstrativo.size()))
            ++n;
        for (const QString &l : extras)
            if (!l.isEmpty() && n < int16_t(session.demonstrativo.size()))
                session.demonstrativo[size_t(n++)] = l;
    }
    con.Execute(QStringLiteral("UPDATE RBalRec SET nlinhas = ") + QString::number(n) + QStringLiteral(" Where codigo = 1"));
    return n;
}
