#include "accounting/razao.h"

#include "accounting/balancete.h"
#include "accounting/mensal.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/transaction.h"

#include <QDate>
#include <QStringBuilder>
#include <cstdint>

namespace {

QString q(const QString &text) { return QStringLiteral("'") + text + QStringLiteral("'"); }

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
    auto lado = [&](const QString &cta, const QString &cpartida, const QString &tipolan) {
        if (cta.length() != 6)
            return;
        con.Execute(QStringLiteral("INSERT INTO MovRazao(codigo,datalan,nrlan,cta,cpartida,") %
                    QStringLiteral("nrdoc,histlan,vlrlan,tipolan) ") % QStringLiteral("VALUES (") %
                    q(QString::number(contador)) % QStringLiteral(",") % q(mov[QStringLiteral("datalan")].text()) %
                    QStringLiteral(",") % mov[QStringLiteral("codauto")].text() % QStringLiteral(",") % q(cta) %
                    QStringLiteral(",") % q(cpartida) % QStringLiteral(",") % q(mov[QStringLiteral("nrdoc")].text()) %
                    QStringLiteral(",") % q(mov[QStringLiteral("histlan")].text()) % QStringLiteral(",") %
                    q(mov[QStringLiteral("vlrlan")].text()) % QStringLiteral(",") % q(tipolan) % QStringLiteral(")"));
        contador = proximo(contador);
    };
    while (!mov.eof()) {
        const QString deb = mov[QStringLiteral("ctadeb")].text();
        const QString cre = mov[QStringLiteral("ctacre")].text();
        lado(deb, cre, QStringLiteral("D"));
        lado(cre, deb, QStringLiteral("C"));
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
    const QString insere = QStringLiteral("INSERT INTO MovRazao(codigo,datalan,nrlan,cta,cpartida,") +
                           QStringLiteral("nrdoc,histlan,vlrlan,tipolan,saldo,tiposal) ");
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
            con.Execute(insere % QStringLiteral("VALUES (") % q(QString::number(contador)) % QStringLiteral(",") %
                        q(formatDate(inicio, QStringLiteral("dd/mm/yyyy"))) % QStringLiteral(",0,") % q(cta) %
                        QStringLiteral(",'','',") % QStringLiteral("'Saldo Anterior',0,'',") % q(moneyText(saldo)) %
                        QStringLiteral(",") % q(tipoSaldo(saldo)) % QStringLiteral(")"));
            contador = proximo(contador);
            continue;
        }
        const Money valor = valorMensal(linhas[QStringLiteral("vlrlan")]);
        if (linhas[QStringLiteral("tipolan")].text() == QStringLiteral("D"))
            saldo += valor;
        else
            saldo -= valor;
        con.Execute(insere % QStringLiteral("VALUES (") % q(QString::number(contador)) % QStringLiteral(",") %
                    q(linhas[QStringLiteral("datalan")].text()) % QStringLiteral(",") %
                    linhas[QStringLiteral("nrlan")].text() % QStringLiteral(",") % q(cta) % QStringLiteral(",") %
                    q(linhas[QStringLiteral("cpartida")].text()) % QStringLiteral(",") %
                    q(linhas[QStringLiteral("nrdoc")].text()) % QStringLiteral(",") %
                    q(linhas[QStringLiteral("histlan")].text()) % QStringLiteral(",") %
                    q(linhas[QStringLiteral("vlrlan")].text()) % QStringLiteral(",") %
                    q(linhas[QStringLiteral("tipolan")].text()) % QStringLiteral(",") % q(moneyText(saldo)) %
                    QStringLiteral(",") % q(tipoSaldo(saldo)) % QStringLiteral(")"));
        p.value += 1;
        if (progresso)
            progresso(p);
        linhas.moveNext();
        contador = proximo(contador);
    }
    enche.commit();
    return true;
}
