#include "accounting/atualiza.h"

#include "accounting/mensal.h"
#include "core/conversions.h"
#include "core/transaction.h"

#include <QDate>

QString textoSingle(float valor)
{
    return valor == 0.0f ? QStringLiteral("0") : singleText(valor);
}

namespace {

// The date "01/mm/yy" as the original read it: two-digit years below 30 are
// of this century, the others of the last one.
QDate primeiroDia(int mes, const QString &yy)
{
    const int ano2 = int(val(yy));
    const QDate data(ano2 < 30 ? 2000 + ano2 : 1900 + ano2, mes, 1);
    if (!data.isValid())
        throw RunFailure(QStringLiteral("Tipos incompatíveis"));
    return data;
}

QString entre(const QDate &inicio, const QDate &fim)
{
    return QStringLiteral(" WHERE datalan BETWEEN #") + formatDate(inicio, QStringLiteral("mm/dd/yyyy")) +
           QStringLiteral("# AND #") + formatDate(fim, QStringLiteral("mm/dd/yyyy")) + QStringLiteral("#");
}

// Pass 2 for one side of the entries: the rows come sorted by account, so one
// walk sums each account and writes its total when the account changes.
void somaLado(Connection &con, const QString &tabela, const QString &conta, const QString &coluna,
              const QString &periodo)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT ") + conta + QStringLiteral(",vlrlan FROM ") + tabela + periodo +
                               QStringLiteral(" ORDER BY ") + conta);
    float total = 0;
    StatementText upd;
    while (!rs.eof()) {
        const QString codigo = rs[conta].text();
        total = accumulateSingle(total, valorMensal(rs[QStringLiteral("vlrlan")]));
        rs.moveNext();
        if (rs.eof() || rs[conta].text() != codigo) {
            upd.begin(u"UPDATE plano SET ") << coluna << u" = ";
            upd.q(textoSingle(total)) << u" WHERE codigo = ";
            upd.q(codigo);
            con.Execute(upd.text());
            total = 0;
        }
    }
}

} // namespace

void AtualizaSaldos(Connection &con, const QString &anoMesFim, const ProgressFn &progresso)
{
    Progress p;
    auto mostra = [&] {
        if (progresso)
            progresso(p);
    };

    const QString yy = anoMesFim.right(2);
    const QString tabela = QStringLiteral("Mov") + yy;
    const QDate base = dateFromText(QStringLiteral("01/") + anoMesFim);
    if (!base.isValid())
        throw RunFailure(QStringLiteral("Tipos incompatíveis"));
    const int mesBase = base.month();
    const QDate inicio = primeiroDia(mesBase, yy);
    const QDate fim(inicio.year(), mesBase, UltimoDia(inicio).toInt());
    if (!fim.isValid())
        throw RunFailure(QStringLiteral("Tipos incompatíveis"));
    const QString periodo = entre(inicio, fim);
    // The year's journal is read before anything is wiped: without it the
    // run stops on its first reading and leaves Plano as it was.
    con.Execute(QStringLiteral("SELECT ctadeb,vlrlan FROM ") + tabela + periodo + QStringLiteral(" ORDER BY ctadeb"));

    p.overallMin = 1, p.overallMax = 5, p.overallValue = 1;
    p.min = 1, p.max = 12, p.value = 1;
    mostra();

    // Pass 1: everything from the base month on is wiped, synthetic accounts
    // included; only the base month gets movement again.
    // Each pass is one step: a failure or a kill leaves the chart as it was
    // before the pass, never half rewritten.
    p.text = kPasso1;
    mostra();
    Transaction passo1(con);
    for (int m = mesBase; m <= 12; ++m) {
        con.Execute(QStringLiteral("UPDATE plano SET ") + colunaMes(QStringLiteral("sf"), m) + QStringLiteral(" = '0', ") +
                    colunaMes(QStringLiteral("vd"), m) + QStringLiteral(" = '0', ") + colunaMes(QStringLiteral("vc"), m) +
                    QStringLiteral(" = '0'"));
        p.value = m;
        mostra();
    }
    passo1.commit();
    p.min = 1, p.max = 12, p.value = 1;
    mostra();

    // Pass 2: the base month only.
    p.text = kPasso2;
    mostra();
    {
        Transaction passo2(con);
        const int m = mesBase;
        somaLado(con, tabela, QStringLiteral("ctadeb"), colunaMes(QStringLiteral("vd"), m), periodo);
        somaLado(con, tabela, QStringLiteral("ctacre"), colunaMes(QStringLiteral("vc"), m), periodo);
        passo2.commit();
        p.value = m;
        mostra();
    }

    const QString vd = colunaMes(QStringLiteral("vd"), mesBase);
    const QString vc = colunaMes(QStringLiteral("vc"), mesBase);
    {
        Recordset conta = con.Execute(QStringLiteral("SELECT COUNT(codigo) as I FROM plano WHERE codigo LIKE '__.'"));
        p.min = 0, p.max = int(conta[QStringLiteral("I")].toInt()), p.value = 0;
        p.overallValue += 1;
        mostra();
    }

    // Pass 3: one level of rollup, nn. is the sum of nn.___ .
    p.text = kPasso3;
    mostra();
    {
        Transaction passo3(con);
        Recordset sinteticas;
        sinteticas.Open(QStringLiteral("SELECT codigo FROM plano WHERE codigo LIKE '__.'"), con, 1, 2);
        while (!sinteticas.eof()) {
            const QString codigo = sinteticas[QStringLiteral("codigo")].text().trimmed();
            float totalDebito = 0, totalCredito = 0;
            Recordset membros = con.Execute(QStringLiteral("SELECT ") + vd + QStringLiteral(",") + vc +
                                            QStringLiteral(" FROM plano WHERE codigo LIKE '") + codigo +
                                            QStringLiteral("___'"));
            while (!membros.eof()) {
                totalDebito = accumulateSingle(totalDebito, valorMensal(membros[vd]));
                totalCredito = accumulateSingle(totalCredito, valorMensal(membros[vc]));
                membros.moveNext();
            }
            con.Execute(QStringLiteral("UPDATE plano SET ") + vd + QStringLiteral(" = '") + textoSingle(totalDebito) +
                        QStringLiteral("', ") + vc + QStringLiteral(" = '") + textoSingle(totalCredito) +
                        QStringLiteral("' WHERE codigo = '") + codigo + QStringLiteral("'"));
            p.value += 1;
            mostra();
            sinteticas.moveNext();
        }
        passo3.commit();
    }

    p.min = 0, p.max = 12, p.value = 0;
    p.overallValue += 1;
    mostra();

    // Pass 4: sf(m) = sf(m-1) + vd(m) - vc(m) for every account, from the
    // base month to December; January starts from sf00.
    p.text = kPasso4;
    mostra();
    Transaction passo4(con);
    StatementText upd;
    for (int m = mesBase; m <= 12; ++m) {
        const QString sfAnterior = colunaMes(QStringLiteral("sf"), m - 1);
        const QString vdMes = colunaMes(QStringLiteral("vd"), m);
        const QString vcMes = colunaMes(QStringLiteral("vc"), m);
        const QString sfMes = colunaMes(QStringLiteral("sf"), m);
        Recordset rs;
        rs.Open(QStringLiteral("SELECT codigo,") + sfAnterior + QStringLiteral(",") + vdMes + QStringLiteral(",") + vcMes +
                    QStringLiteral(" FROM plano ORDER BY codigo"),
                con, 1, 2);
        while (!rs.eof()) {
            const Money saldo =
                roundedMoney(valorMensal(rs[sfAnterior]), 2) + roundedMoney(valorMensal(rs[vdMes]), 2) - roundedMoney(valorMensal(rs[vcMes]), 2);
            const float saldoMes = float(saldo.toDouble());
            upd.begin(u"UPDATE Plano SET ") << sfMes << u" = ";
            upd.q(textoSingle(saldoMes)) << u" WHERE codigo = ";
            upd.q(rs[QStringLiteral("codigo")].text());
            con.Execute(upd.text());
            rs.moveNext();
        }
    }
    passo4.commit();

    p.overallValue = p.overallMax;
    p.text = kAtualizacaoFinalizada;
    mostra();
}

void GravaMesBase(Connection &con, const QString &anoMesFim, bool alterado)
{
    if (anoMesFim != kEmptyMonthYear && alterado)
        con.Execute(QStringLiteral("UPDATE Parametros Set mes_movSaldfin = #") + anoMesFim +
                    QStringLiteral("# Where Codauto = 1"));
}
