#include "accounting/balancete.h"

#include "accounting/mensal.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/transaction.h"


namespace {

QString q(const QString &text) { return QStringLiteral("'") + text + QStringLiteral("'"); }
QString q(Money value) { return q(moneyText(value)); }
QString booleano(const Field &field) { return field.toBool() ? QStringLiteral("True") : QStringLiteral("False"); }

// Keyset read, so that the bar knows how many rows there are.
Recordset abre(Connection &con, const QString &sql)
{
    Recordset rs;
    rs.Open(sql, con, 1, 2);
    return rs;
}

} // namespace

bool EncheRBalancete(Connection &con, const QString &mesIni, const QString &mesFim, bool periodo, const QString &ano,
                     bool comMensagem, const ProgressFn &progresso)
{
    const int mes = valorMes(mesIni);
    if (mes == 0)
        return false;
    const int ultimo = periodo ? valorMes(mesFim) : mes;
    const QString yy = ano.right(2);
    const QString sini = colunaMes(QStringLiteral("sf"), mes - 1);
    const QString sfin = colunaMes(QStringLiteral("sf"), mes);

    // Wiped and refilled in one step: a failure leaves the previous content.
    Transaction enche(con);
    con.Execute(QStringLiteral("DELETE FROM RBalancete"));
    Recordset rs = abre(con, QStringLiteral("SELECT * FROM Plano ORDER BY codigo"));
    if (rs.eof()) {
        enche.commit();
        if (comMensagem)
            MsgBox(kSemMovimento, vbCritical, QStringLiteral("Atenção..."));
        return false;
    }

    Progress p;
    p.max = int(rs.recordCount());
    // The month's columns, named once: a name kept from row to row is found at once.
    const QString vdMes = colunaMes(QStringLiteral("vd"), mes), vcMes = colunaMes(QStringLiteral("vc"), mes),
                  poMes = colunaMes(QStringLiteral("po") + yy, mes);
    StatementText ins;
    while (!rs.eof()) {
        const Money saldoIni = roundedMoney(valorMensal(rs[sini]), 2);
        const Money saldoFin = roundedMoney(valorMensal(rs[sfin]), 2);
        Money debitos, creditos, previsto;
        if (!periodo) {
            debitos = roundedMoney(valorMensal(rs[vdMes]), 2);
            creditos = roundedMoney(valorMensal(rs[vcMes]), 2);
            previsto = roundedMoney(valorMensal(rs[poMes]), 2);
        } else {
            for (int m = mes; m <= ultimo; ++m) {
                debitos += valorMensal(rs[colunaMes(QStringLiteral("vd"), m)]);
                creditos += valorMensal(rs[colunaMes(QStringLiteral("vc"), m)]);
                previsto += valorMensal(rs[colunaMes(QStringLiteral("po") + yy, m)]);
            }
        }
        const Money resultado = debitos - creditos;
        ins.begin(u"INSERT INTO RBalancete(codigo,nome,tipo,classe,sintetico,sini,vdeb,vcre,sfin,spct,spo) VALUES (")
            .q(rs[QStringLiteral("codigo")].text()) << u",";
        ins.q(rs[QStringLiteral("nome")].text()) << u",";
        ins.q(rs[QStringLiteral("tipo")].text()) << u",";
        ins.q(rs[QStringLiteral("classe")].text()) << u"," << booleano(rs[QStringLiteral("sintetico")]) << u",";
        ins.q(moneyText(saldoIni)) << u",";
        ins.q(moneyText(debitos)) << u",";
        ins.q(moneyText(creditos)) << u",";
        ins.q(moneyText(saldoFin)) << u",";
        ins.q(moneyText(resultado)) << u",";
        ins.q(moneyText(previsto)) << u")";
        con.Execute(ins.text());
        p.value += 1;
        if (progresso)
            progresso(p);
        rs.moveNext();
    }
    enche.commit();
    return true;
}

void Monta_Balancete(Connection &con, const QString &mes, const QString &ano, const ProgressFn &progresso)
{
    if (valorMes(mes) < 1)
        return;
    EncheRBalancete(con, mes, QString(), false, ano, false, progresso);
}

void Monta_Balancete(const QString &mes, const QString &ano, const ProgressFn &progresso)
{
    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(session.conAtiva);
    Monta_Balancete(con, mes, ano, progresso);
    con.Close();
}

void EncheRPcontas(Connection &con, const QString &mesIni, const QString &ano, bool incluiSaldo,
                   const ProgressFn &progresso)
{
    const int mes = valorMes(mesIni);
    const QString yy = ano.right(2);
    const QString sfin = colunaMes(QStringLiteral("sf"), mes);
    const QString vd = colunaMes(QStringLiteral("vd"), mes);
    const QString vc = colunaMes(QStringLiteral("vc"), mes);
    const QString po = colunaMes(QStringLiteral("po") + yy, mes);

    Transaction preenchimento(con);
    con.Execute(QStringLiteral("DELETE FROM RPcontas"));

    enum class Grupo { Receita, Despesa, Caixa };
    Progress p;
    auto enche = [&](const QString &sql, Grupo grupo) {
        Recordset rs = abre(con, sql);
        p.min = 0, p.max = int(rs.recordCount()), p.value = 0;
        while (!rs.eof()) {
            Money saldoFin = valorMensal(rs[sfin]);
            Money resultado, previsto;
            if (!rs[QStringLiteral("sintetico")].toBool()) {
                previsto = valorMensal(rs[po]);
                resultado = valorMensal(rs[vd]) - valorMensal(rs[vc]);
            }
            // Revenue runs on credits: its result is shown turned, and its
            // balance without sign, whatever side it stands on.
            if (grupo == Grupo::Receita) {
                resultado = -resultado;
                if (saldoFin < Money())
                    saldoFin = -saldoFin;
            }
            QString sql = QStringLiteral("INSERT INTO RPcontas(codigo,nome,tipo,classe,sintetico,");
            QString saldoIni;
            if (grupo == Grupo::Caixa) {
                sql += QStringLiteral("sini,");
                saldoIni = q(valorMensal(rs[colunaMes(QStringLiteral("sf"), mes - 1)])) + QStringLiteral(",");
            }
            sql += QStringLiteral("sfin,spct,spo) ") + QStringLiteral("VALUES (") + q(rs[QStringLiteral("codigo")].text()) +
                   QStringLiteral(",") + q(rs[QStringLiteral("nome")].text()) + QStringLiteral(",") +
                   q(rs[QStringLiteral("tipo")].text()) + QStringLiteral(",") + q(rs[QStringLiteral("classe")].text()) +
                   QStringLiteral(",") + booleano(rs[QStringLiteral("sintetico")]) + QStringLiteral(",") + saldoIni +
                   q(saldoFin) + QStringLiteral(",") + q(resultado) + QStringLiteral(",") + q(previsto) +
                   QStringLiteral(")");
            con.Execute(sql);
            p.value += 1;
            if (progresso)
                progresso(p);
            rs.moveNext();
        }
    };
    enche(QStringLiteral("SELECT * FROM Plano WHERE tipo = 'R' ORDER BY codigo"), Grupo::Receita);
    enche(QStringLiteral("SELECT * FROM Plano WHERE tipo = 'D' ORDER BY codigo"), Grupo::Despesa);
    if (incluiSaldo)
        enche(QStringLiteral("SELECT * FROM Plano WHERE tipo = 'C' AND classe = 'C' ORDER BY codigo"), Grupo::Caixa);
    preenchimento.commit();
}

Money ResultadoPctEspecial(Connection &con)
{
    Recordset receita = con.Execute(QStringLiteral("SELECT ROUND(SUM(spct),2) AS receita FROM rpcontas WHERE tipo = 'R'"));
    const Money r = receita.eof() ? Money() : receita[QStringLiteral("receita")].toMoney();
    Recordset despesa = con.Execute(QStringLiteral("SELECT ROUND(SUM(spct),2) AS despesa FROM rpcontas WHERE tipo = 'D'"));
    const Money d = despesa.eof() ? Money() : despesa[QStringLiteral("despesa")].toMoney();
    return r - d;
}
