#include "banks/demonstrativo.h"

#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QFile>
#include <QStringDecoder>

namespace {

const QString kSecao = QStringLiteral("#,###,##0.00");
const QString kSaldo = QStringLiteral("##,###,##0.00");

// Appends one line at the next free index of the buffer.
void linha(const QString &texto)
{
    if (session.linhasDemonstrativo < 0 || session.linhasDemonstrativo >= int(session.demonstrativo.size()))
        throw RunFailure(QStringLiteral("Subscrito fora do intervalo"));
    session.demonstrativo[size_t(session.linhasDemonstrativo)] = texto;
    session.linhasDemonstrativo = int16_t(session.linhasDemonstrativo + 1);
}

void limpa()
{
    session.demonstrativo.fill(QString());
    session.linhasDemonstrativo = 0;
}

QString brancos(int n) { return QString(n, QLatin1Char(' ')); }

// Right-aligned with blanks in front; a wider text is never cut.
QString direita(const QString &texto, int largura) { return texto.rightJustified(largura, QLatin1Char(' ')); }
QString valor(Money v, int largura, const QString &picture = kSecao) { return direita(formatMoney(v, picture), largura); }

Money absoluto(Money v) { return v < Money() ? -v : v; }

// Left 21 characters of the name, blanks up to 22.
QString nomeConta(const Field &nome) { return nome.text().left(21).leftJustified(22, QLatin1Char(' ')); }

struct Secao {
    QString sql, titulo, regua, totalTexto;
    bool receita;  // receipts without sign; expenses with the sign turned
};

// A receipts or expenses section. modelo 1 shows the month and the
// accumulated figures, modelo 2 the month alone. Returns the sums of the
// analytic rows, on the receipts' absolute side or the expenses' debit side.
std::pair<Money, Money> secao(Connection &con, const Secao &s, int modelo)
{
    Recordset rs = con.Execute(s.sql);
    Money totalMes, totalAno;
    if (rs.eof())
        return {totalMes, totalAno};
    auto mostra = [&](Money v) { return s.receita ? absoluto(v) : -v; };

    linha(QString());
    linha(s.titulo);
    linha(s.regua);
    Money grupoMes, grupoAno;
    bool grupoAberto = false;
    while (!rs.eof()) {
        const Money spct = rs[QStringLiteral("spct")].toMoney();
        const Money sfin = rs[QStringLiteral("sfin")].toMoney();
        if (rs[QStringLiteral("sintetico")].toBool()) {
            // A synthetic row closes the group of the rows printed before it.
            if (grupoAberto) {
                if (modelo == 1) {
                    linha(brancos(41) + QString(10, QLatin1Char('-')) + brancos(9) + QString(10, QLatin1Char('-')));
                    linha(brancos(25) + QStringLiteral("Total..........") + valor(grupoMes, 11) + valor(grupoAno, 19));
                } else {
                    linha(brancos(41) + QString(10, QLatin1Char('-')));
                    linha(brancos(25) + QStringLiteral("Total..........") + valor(grupoMes, 11));
                }
            }
            grupoMes = grupoAno = Money();
            grupoAberto = false;
        } else {
            const Money mes = mostra(spct), ano = mostra(sfin);
            QString texto = rs[QStringLiteral("nome")].text().leftJustified(40, QLatin1Char(' ')) + valor(mes, 11);
            if (modelo == 1)
                texto += valor(ano, 19);
            linha(texto);
            grupoMes += mes;
            grupoAno += ano;
            totalMes += mes;
            totalAno += ano;
            grupoAberto = true;
        }
        rs.moveNext();
    }
    QString total = brancos(15) + s.totalTexto + valor(totalMes, 11);
    if (modelo == 1)
        total += valor(totalAno, 19);
    linha(total);
    // Back to the debit side for expenses, so that the result is R - D.
    if (!s.receita)
        return {-totalMes, -totalAno};
    return {totalMes, totalAno};
}

QString resultadoMes(Money resultado)
{
    return resultado < Money() ? QStringLiteral("DÉFICIT TOTAL DO MÊS (Receitas - Despesas)........")
                               : QStringLiteral("SUPERÁVIT TOTAL DO MÊS (Receitas - Despesas)......");
}

QString resultadoAno(Money resultado)
{
    return resultado < Money() ? QStringLiteral("DÉFICIT ACUMULADO NO ANO (Receitas - Despesas)....")
                               : QStringLiteral("SUPERÁVIT ACUMULADO NO ANO (Receitas - Despesas)..");
}

const QString kContasCaixa = QStringLiteral(
    "SELECT * FROM rbalancete WHERE classe = 'C' and sintetico = false And not(spct = 0 and sfin = 0)");

} // namespace

void Monta_Demonstrativo(Connection &con, TotaisDemonstrativo &totais, int modelo, const QString &mes,
                         const QString &ano, const ProgressFn &progresso)
{
    limpa();
    totais = TotaisDemonstrativo{};
    if (modelo != 1 && modelo != 2)
        return;

    Progress p;
    p.max = 4;
    auto passo = [&] {
        p.value += 1;
        if (progresso)
            progresso(p);
    };
    const QString nomeMes = NomeMes(int(val(mes)));
    const QString igual(70, QLatin1Char('='));
    linha(igual);
    linha((modelo == 1 ? QStringLiteral("DEMONSTRATIVO MENSAL REFERENTE ") : QStringLiteral("PRESTAÇÃO DE CONTAS DE ")) +
          nomeMes + QStringLiteral("/") + ano);
    linha(igual);

    const Secao receitas{QStringLiteral("SELECT * FROM rbalancete WHERE tipo = 'R' and not spct = 0"),
                         modelo == 1 ? QStringLiteral("DEMONSTRAÇÃO DAS RECEITAS:               Valor Mês:   Acumulado Anual:")
                                     : QStringLiteral("RECEBIMENTOS NO MÊS:                         Valor:"),
                         modelo == 1 ? QStringLiteral("--------------------------              -----------   ----------------")
                                     : QStringLiteral("-------------------------               -----------"),
                         QStringLiteral("Total das Receitas ......"), true};
    const Secao despesas{QStringLiteral("SELECT * FROM rbalancete WHERE tipo = 'D' and not spct = 0"),
                         modelo == 1 ? QStringLiteral("DEMONSTRAÇÃO DAS DESPESAS:               Valor Mês:   Acumulado Anual:")
                                     : QStringLiteral("DESPESAS DO MÊS:                         Valor Mês:"),
                         modelo == 1 ? QStringLiteral("--------------------------               ----------   ----------------")
                                     : QStringLiteral("--------------------------               ----------"),
                         QStringLiteral("Total das Despesas ......"), false};

    if (modelo == 1) {
        Recordset rs = con.Execute(kContasCaixa);
        if (!rs.eof()) {
            linha(QString());
            linha(QStringLiteral("SALDO DAS CONTAS:     Mês Anterior   Débito       Crédito     Mês Atual"));
            linha(QStringLiteral("-----------------     ------------ ----------- ----------- ------------"));
            while (!rs.eof()) {
                linha(nomeConta(rs[QStringLiteral("nome")]) + valor(rs[QStringLiteral("sini")].toMoney(), 12, kSaldo) +
                      valor(rs[QStringLiteral("vdeb")].toMoney(), 12, kSaldo) +
                      valor(rs[QStringLiteral("vcre")].toMoney(), 12, kSaldo) +
                      valor(rs[QStringLiteral("sfin")].toMoney(), 12, kSaldo));
                rs.moveNext();
            }
        }
    }
    passo();

    std::tie(totais.receitasMes, totais.receitasAno) = secao(con, receitas, modelo);
    passo();
    std::tie(totais.despesasMes, totais.despesasAno) = secao(con, despesas, modelo);
    passo();

    const Money resultado = totais.receitasMes - totais.despesasMes;
    linha(QString());
    if (modelo == 1) {
        const Money acumulado = totais.receitasAno - totais.despesasAno;
        linha(resultadoMes(resultado) + valor(absoluto(resultado), 13));
        linha(resultadoAno(acumulado) + valor(absoluto(acumulado), 13));
    } else {
        linha(resultadoMes(resultado) + valor(absoluto(resultado), 11));
        Recordset rs = con.Execute(kContasCaixa);
        if (!rs.eof()) {
            linha(QString());
            linha(QStringLiteral("SALDOS BANCÁRIOS:"));
            linha(QStringLiteral("Banco/Conta:                  Saldo Mês Anterior   Saldo Mês Atual"));
            linha(QStringLiteral("-------------------------     ------------------   ---------------"));
            while (!rs.eof()) {
                linha(nomeConta(rs[QStringLiteral("nome")]) + valor(rs[QStringLiteral("sini")].toMoney(), 22, kSaldo) +
                      valor(rs[QStringLiteral("sfin")].toMoney(), 21, kSaldo));
                rs.moveNext();
            }
        }
    }
    passo();
}

void Carrega_Texto(const QString &linAdic1, const QString &linAdic2, const QString &linAdic3, const QString &linAdic4)
{
    if (session.arqway.isEmpty()) {
        MsgBox(QStringLiteral("Selecione Novamente o Arquivo Texto !"), vbOKOnly, QStringLiteral("Atenção..."));
        return;
    }
    limpa();
    QFile arquivo(session.arqway);
    if (!arquivo.open(QIODevice::ReadOnly))
        throw RunFailure(QStringLiteral("Arquivo não encontrado"));
    const QByteArray bytes = arquivo.readAll();
    // Files written here are UTF-8; older ones come in the Windows code page.
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString texto = utf8(bytes);
    if (utf8.hasError())
        texto = QString::fromLatin1(bytes);
    QStringList linhas = texto.split(QLatin1Char('\n'));
    if (texto.endsWith(QLatin1Char('\n')))
        linhas.removeLast();  // the line break that ends the last line opens none

    // The end-of-file test comes after each read, so the line that reaches the
    // end is read but not kept.
    qsizetype lidas = 0;
    while (session.linhasDemonstrativo < 118 && lidas < linhas.size()) {
        QString lida = linhas.at(lidas++);
        if (lida.endsWith(QLatin1Char('\r')))
            lida.chop(1);
        if (lidas == linhas.size())
            break;
        linha(lida.left(70));
    }
    linha(QString());
    for (const QString &adicional : {linAdic1, linAdic2, linAdic3, linAdic4})
        if (!adicional.isEmpty())
            linha(adicional);
}
