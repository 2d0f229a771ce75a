#include "accounting/razao.h"

#include "accounting/balancete.h"
#include "accounting/mensal.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/transaction.h"

#include <QDate>
#include <cstdint>

namespace {

// The line number of the original: a 16-bit integer.
int16_t proximo(int16_t contador)
{
    if (contador == INT16_MAX)
        throw RunFailure(QStringLiteral("Estouro de capacidade"));
    return int16_t(contador + 1);
}

QString tipoSaldo(Money saldo)
{
    if (saldo > Money())
        return QStringLiteral("D");
    if (saldo < Money())
        return QStringLiteral("C");
    return QString();
}

bool preenchida(const QString &conta)
{
    return !conta.trimmed().isEmpty() && conta != QStringLiteral("__.___");
}

} // namespace

bool EncheMovRazao(Connection &con, const RazaoPeriodo &periodo, const ProgressFn &progresso)
{
    const int mesIni = valorMes(periodo.mesIni);
    const int mesFim = valorMes(periodo.mesFim);
    if (mesIni == 0 || int(val(periodo.ano)) == 0)
        return false;

    const QDate inicio = dateFromText(QStringLiteral("01/") + QString::number(mesIni) + QStringLiteral("/") + periodo.ano);
    if (!inicio.isValid())
        throw RunFailure(QStringLiteral("Tipos incompatíveis"));
    const QDate mesFinal(inicio.year(), mesFim == 0 ? mesIni : mesFim, 1);
    if (!mesFinal.isValid())
        throw RunFailure(QStringLiteral("Tipos incompatíveis"));
    const QDate fim(inicio.year(), mesFinal.month(), UltimoDia(mesFinal).toInt());
    const QString tabela = QStringLiteral("Mov") + periodo.ano.right(2);

    // Wiped and refilled in one step: a failure (the line counter's overflow
    // above all) leaves the previous content.
    Transaction enche(con);
    con.Execute(QStringLiteral("DELETE FROM MovRazao"));
    Recordset mov;
    mov.Open(QStringLiteral("SELECT * FROM ") + tabela + QStringLiteral(" WHERE datalan BETWEEN #") +
                 formatDate(inicio, QStringLiteral("mm/dd/yyyy")) + QStringLiteral("# AND #") +
                 formatDate(fim, QStringLiteral("mm/dd/yyyy")) + QStringLiteral("#"),
             con, 1, 2);
    if (mov.eof()) {
        enche.commit();
        MsgBox(kSemMovimento, vbCritical, QStringLiteral("Atenção..."));
        return false;
    }

    // Unfold: the debit side, then the credit side. A side on a code that is
    // not six characters long is dropped.
    Progress p;
    p.max = int(mov.recordCount());
    int16_t contador = 1;
    StatementText ins;
    auto lado = [&](const QString &cta, const QString &cpartida, QStringView tipolan) {
        if (cta.length() != 6)
            return;
        ins.begin(u"INSERT INTO MovRazao(codigo,datalan,nrlan,cta,cpartida,nrdoc,histlan,vlrlan,tipolan) VALUES (")
            .q(QString::number(contador)) << u",";
        ins.q(mov[QStringLiteral("datalan")].text()) << u"," << mov[QStringLiteral("codauto")].text() << u",";
        ins.q(cta) << u",";
        ins.q(cpartida) << u",";
        ins.q(mov[QStringLiteral("nrdoc")].text()) << u",";
        ins.q(mov[QStringLiteral("histlan")].text()) << u",";
        ins.q(mov[QStringLiteral("vlrlan")].text()) << u",";
        ins.q(tipolan) << u")";
        con.Execute(ins.text());
        contador = proximo(contador);
    };
    while (!mov.eof()) {
        const QString deb = mov[QStringLiteral("ctadeb")].text();
        const QString cre = mov[QStringLiteral("ctacre")].text();
        lado(deb, cre, u"D");
        lado(cre, deb, u"C");
        p.value += 1;
        if (progresso)
            progresso(p);
        mov.moveNext();
    }

    // Read back sorted by the database; within a day the "D" lines come
    // first only because of the descending order of tipolan.
    QString sql = QStringLiteral("SELECT * FROM MovRazao ");
    if (preenchida(periodo.ctaIni) && preenchida(periodo.ctaFim))
        sql += QStringLiteral(" WHERE cta >= '") + periodo.ctaIni + QStringLiteral("' AND ") + QStringLiteral("cta <= '") +
               periodo.ctaFim + QStringLiteral("'");
    sql += QStringLiteral("ORDER BY cta, datalan, tipolan desc");
    Recordset linhas;
    linhas.Open(sql, con, 1, 2);

    con.Execute(QStringLiteral("DELETE FROM MovRazao"));
    contador = 1;
    QString contaAtual;
    Money saldo;
    const QString colunaAbertura = colunaMes(QStringLiteral("sf"), mesIni - 1);
    const QStringView insere =
        u"INSERT INTO MovRazao(codigo,datalan,nrlan,cta,cpartida,nrdoc,histlan,vlrlan,tipolan,saldo,tiposal) VALUES (";
    const QString abertura = formatDate(inicio, QStringLiteral("dd/mm/yyyy"));
    p.value = 0;
    p.max = int(linhas.recordCount());
    while (!linhas.eof()) {
        const QString cta = linhas[QStringLiteral("cta")].text();
        if (cta != contaAtual) {
            // Opening line: the balance before the period, from Plano; the same
            // row is then looked at again.
            contaAtual = cta;
            Recordset plano = con.Execute(QStringLiteral("SELECT ") + colunaAbertura +
                                          QStringLiteral(" FROM plano WHERE codigo = '") + cta + QStringLiteral("'"));
            saldo = plano.eof() ? Money() : valorMensal(plano[colunaAbertura]);
            ins.begin(insere).q(QString::number(contador)) << u",";
            ins.q(abertura) << u",0,";
            ins.q(cta) << u",'','','Saldo Anterior',0,'',";
            ins.q(moneyText(saldo)) << u",";
            ins.q(tipoSaldo(saldo)) << u")";
            con.Execute(ins.text());
            contador = proximo(contador);
            continue;
        }
        const Field &tipolan = linhas[QStringLiteral("tipolan")];
        const Money valor = valorMensal(linhas[QStringLiteral("vlrlan")]);
        if (tipolan.text() == QStringLiteral("D"))
            saldo += valor;
        else
            saldo -= valor;
        ins.begin(insere).q(QString::number(contador)) << u",";
        ins.q(linhas[QStringLiteral("datalan")].text()) << u"," << linhas[QStringLiteral("nrlan")].text() << u",";
        ins.q(cta) << u",";
        ins.q(linhas[QStringLiteral("cpartida")].text()) << u",";
        ins.q(linhas[QStringLiteral("nrdoc")].text()) << u",";
        ins.q(linhas[QStringLiteral("histlan")].text()) << u",";
        ins.q(linhas[QStringLiteral("vlrlan")].text()) << u",";
        ins.q(tipolan.text()) << u",";
        ins.q(moneyText(saldo)) << u",";
        ins.q(tipoSaldo(saldo)) << u")";
        con.Execute(ins.text());
        p.value += 1;
        if (progresso)
            progresso(p);
        linhas.moveNext();
        contador = proximo(contador);
    }
    enche.commit();
    return true;
}
