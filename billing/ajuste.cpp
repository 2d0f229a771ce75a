#include "billing/ajuste.h"

#include "billing/recibo.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"

static const QString kAtencao = QStringLiteral("Atenção...");

static QStringList sqlAjuste(const AjusteTaxas &a, const QString &filtroTipo, const QString &whereTipo)
{
    // filtroTipo is " AND tapto = 'x'" for a type, "" for all; whereTipo is " WHERE tapto = 'x'" or "".
    QStringList s;
    if (!a.honor.isZero())
        s << QStringLiteral("UPDATE Aptos SET honor = '") + moneyText(a.honor) + QStringLiteral("'") + whereTipo;
    if (!a.honcb.isZero()) {
        s << QStringLiteral("UPDATE Aptos SET honcb = '") + moneyText(a.honcb) + QStringLiteral("' WHERE cabina = true")
                + filtroTipo;
        s << QStringLiteral("UPDATE Aptos SET honcb = 0 WHERE cabina = false") + filtroTipo;
    } else if (filtroTipo.isEmpty()) {
        s << QStringLiteral("UPDATE Aptos SET honcb = 0 WHERE cabina = true");
    }
    if (!a.honfr.isZero())
        s << QStringLiteral("UPDATE Aptos SET honfr = '") + moneyText(a.honfr) + QStringLiteral("'") + whereTipo;
    if (a.normal != 0)
        s << QStringLiteral("UPDATE Aptos SET diavcto = ") + QString::number(a.normal)
                + QStringLiteral(" WHERE aposentado = false") + filtroTipo;
    if (a.apos != 0)
        s << QStringLiteral("UPDATE Aptos SET diavcto = ") + QString::number(a.apos)
                + QStringLiteral(" WHERE aposentado = true") + filtroTipo;
    return s;
}

QStringList sqlAjusteTodos(const AjusteTaxas &a)
{
    return sqlAjuste(a, QString(), QString());
}

QStringList sqlAjusteTipo(const AjusteTipo &t)
{
    return sqlAjuste(t.valores, QStringLiteral(" AND tapto = '") + t.tipo + QStringLiteral("'"),
                     QStringLiteral(" WHERE tapto = '") + t.tipo + QStringLiteral("'"));
}

static bool confirma()
{
    return MsgBox(QStringLiteral("Tem certeza que deseja fazer os ajustes ?"), vbYesNo + vbQuestion, kAtencao) == vbYes;
}

bool ajustaTodos(Connection &con, const AjusteTaxas &a)
{
    if (a.vazio()) {
        MsgBox(kMsgSemValores, vbExclamation, kAtencao);
        return false;
    }
    if (!confirma())
        return false;
    for (const QString &s : sqlAjusteTodos(a))
        con.Execute(s);
    MsgBox(kMsgAjusteFinalizado, vbInformation, kAtencao);
    return true;
}

bool ajustaPorTipo(Connection &con, const std::vector<AjusteTipo> &linhas)
{
    if (!confirma())
        return false;
    for (const AjusteTipo &t : linhas)
        for (const QString &s : sqlAjusteTipo(t))
            con.Execute(s);
    MsgBox(kMsgAjusteFinalizado, vbInformation, kAtencao);
    return true;
}

long recalculaTotais(Connection &con)
{
    Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM recibos WHERE demis > #08/01/2002#"), con, 1, 2);
    long n = 0;
    while (!rs.eof()) {
        const QString numero = rs[QStringLiteral("codigo")].text();
        if (val(numero) == kReciboDeParada)
            MsgBox(QStringLiteral("Parada"), vbOKOnly, QString());
        TotaisRecibo t;
        for (int i = 0; i < 10; ++i) {
            const QString item = rs[QStringLiteral("item%1").arg(i)].text().trimmed();
            somaItem(con, t, item, rs[QStringLiteral("valor%1").arg(i)].toMoney());
        }
        con.Execute(QStringLiteral("Update Recibos Set vtoth = '") + textoValor(t.vtoth) + QStringLiteral("',")
                    + QStringLiteral("vtotr = '") + textoValor(t.vtotr) + QStringLiteral("',")
                    + QStringLiteral("vtott = '") + textoValor(t.vtott) + QStringLiteral("',")
                    + QStringLiteral("vtotd = '") + textoValor(t.vtotd) + QStringLiteral("',")
                    + QStringLiteral("vtotal = '") + textoValor(t.vtotal) + QStringLiteral("'")
                    + QStringLiteral(" Where codigo = '") + numero + QStringLiteral("'"));
        ++n;
        rs.moveNext();
    }
    return n;
}
