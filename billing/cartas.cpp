#include "billing/cartas.h"

#include "core/conversions.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

namespace {

QString sqlData(const QDate &d)
{
    return formatDate(d, QStringLiteral("mm/dd/yyyy"));
}

// A month typed as "mm/yyyy": its first day, or an invalid date.
QDate primeiroDoMes(const QString &mes)
{
    return dateFromText(QStringLiteral("01/") + mes.trimmed());
}

bool existeApto(Connection &con, const QString &codap)
{
    return !con.Execute(QStringLiteral("SELECT codauto FROM Aptos WHERE codigo = '") + codap + u'\'').eof();
}

} // namespace

CartaCobranca leCarta(Connection &con)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT cartctit, cartclocal, cartcvini, cartcvfim  FROM Parametros Where Codigo = 1"));
    if (rs.eof())
        return {};
    return {rs[QStringLiteral("cartctit")].text(), rs[QStringLiteral("cartclocal")].text(),
            rs[QStringLiteral("cartcvini")].text(), rs[QStringLiteral("cartcvfim")].text()};
}

QString sqlGravaCarta(const CartaCobranca &c)
{
    auto mes = [](const char *coluna, const QString &valor) {
        const QString nome = QString::fromLatin1(coluna);
        if (!primeiroDoMes(valor).isValid())
            return nome + QStringLiteral(" = null,");
        return nome + QStringLiteral(" = '") + valor + QStringLiteral("',");
    };
    return QStringLiteral("UPDATE Parametros Set cartctit = \"") + c.titulo + QStringLiteral("\",") + mes("cartcvini", c.inicio)
        + mes("cartcvfim", c.fim) + QStringLiteral("cartclocal = \"") + c.local + QStringLiteral("\" Where codigo = 1");
}

std::optional<PeriodoCarta> periodoCarta(const CartaCobranca &c)
{
    const QDate de = primeiroDoMes(c.inicio), fim = primeiroDoMes(c.fim);
    if (!de.isValid() || !fim.isValid())
        return std::nullopt;
    // UltimoDia knows leap years by year % 4 alone: 1900 and 2100 have no 29/02.
    return PeriodoCarta{de, QDate(fim.year(), fim.month(), std::min(UltimoDia(fim).toInt(), fim.daysInMonth()))};
}

std::optional<QString> confereCarta(Connection &con, const CartaCobranca &c, bool geral, const QString &codap)
{
    const auto p = periodoCarta(c);
    if (!p)
        return QStringLiteral("É obrigatório estabelecer um período !");
    if (!geral) {
        if (codap.trimmed().isEmpty() || !existeApto(con, codap))
            return QStringLiteral("É obrigatório especificar um código de apartamento válido !");
        if (con.Execute(sqlDividaCarta(*p, codap)).eof())
            return QStringLiteral("O apartamento selecionado não possui dívidas no período, verifique !");
    } else if (con.Execute(sqlCarta(*p, true, QString())).eof()) {
        return QStringLiteral("Nenhum apartamento possui dívidas no período, verifique !");
    }
    return std::nullopt;
}

QString sqlDividaCarta(const PeriodoCarta &p, const QString &codap)
{
    return QStringLiteral("SELECT codigo FROM Recibos WHERE situacao = 'A' And Recibos.codap = '") + codap + u'\''
        + QStringLiteral(" And Recibos.dvencto BETWEEN #") + sqlData(p.de) + QStringLiteral("# AND #") + sqlData(p.ate)
        + u'#';
}

QString sqlCarta(const PeriodoCarta &p, bool geral, const QString &codap)
{
    QString sql = QStringLiteral("SELECT Recibos.codigo,dvencto,vtotal,Recibos.codap,Aptos.nome FROM Recibos INNER JOIN Aptos ON "
                                 "Recibos.codap = Aptos.Codigo")
        + QStringLiteral(" WHERE situacao = 'A' And Recibos.dvencto BETWEEN #") + sqlData(p.de) + QStringLiteral("# AND #")
        + sqlData(p.ate) + u'#';
    if (!geral)
        sql += QStringLiteral(" And Recibos.codap = '") + codap + u'\'';
    return sql + QStringLiteral(" ORDER BY Recibos.codap, dvencto");
}

QStringList colunasCarta()
{
    return {QStringLiteral("codap"), QStringLiteral("nome"), QStringLiteral("codigo"), QStringLiteral("dvencto"),
            QStringLiteral("vtotal")};
}

QString localData(const QString &local, const QDate &data)
{
    return local + QStringLiteral(", ") + QString::number(data.day()) + QStringLiteral(" de ") + NomeMes(data.month())
        + QStringLiteral(" de ") + QString::number(data.year());
}

QString modeloCarta(const QString &path, const QString &sysPath)
{
    const QFileInfo f(path);
    static const QRegularExpression carta(QStringLiteral("^Carta.*\\.rpt$"), QRegularExpression::CaseInsensitiveOption);
    if (!f.isFile() || !carta.match(f.fileName()).hasMatch())
        return {};
    if (QDir(f.absolutePath()).canonicalPath() != QDir(sysPath).canonicalPath())
        return {};
    return f.fileName();
}

TituloEleitor leTitulo(Connection &con)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT tit0,tit1,vcba FROM Parametros WHERE codigo = 1"));
    if (rs.eof())
        return {};
    return {rs[QStringLiteral("tit0")].text(), rs[QStringLiteral("tit1")].text(), rs[QStringLiteral("vcba")].text()};
}

QString sqlGravaTitulo(const TituloEleitor &t)
{
    return QStringLiteral("Update Parametros Set tit0 = \"") + t.tit0 + QStringLiteral("\",tit1 = \"") + t.tit1
        + QStringLiteral("\",vcba = '") + t.vcba + QStringLiteral("' Where codigo = 1");
}

std::optional<QString> confereTitulo(Connection &con, const TituloEleitor &t, bool umApto, const QString &codap)
{
    if (t.tit0.trimmed().isEmpty())
        return QStringLiteral("O Campo Título é Obrigatório !");
    if (t.tit1.trimmed().isEmpty())
        return QStringLiteral("O Campo Título 1 é Obrigatório !");
    if (t.vcba == kEmptyDate || !isDateText(t.vcba))
        return QStringLiteral("O Campo Vencimento é Obrigatório !");
    if (umApto) {
        if (codap.trimmed().isEmpty())
            return QStringLiteral("O Campo Código Apartamento é Obrigatório !");
        if (!existeApto(con, codap))
            return QStringLiteral("Código de Apto é Inválido !");
    }
    return std::nullopt;
}

QString sqlDividaTitulo(const QString &codap, const QDate &vcba)
{
    return QStringLiteral("SELECT codigo FROM Recibos WHERE codap = '") + codap
        + QStringLiteral("'And situacao = 'A' And dvencto <= #") + sqlData(vcba) + u'#';
}

QString sqlContaDividaTitulo(const QString &codap, const QDate &vcba)
{
    return QStringLiteral("SELECT count(codigo) AS I FROM Recibos WHERE codap = '") + codap
        + QStringLiteral("' And situacao = 'A' And dvencto <= #") + sqlData(vcba) + u'#';
}

QString sqlListaDividaTitulo(const QString &codap, const QDate &vcba)
{
    return QStringLiteral("SELECT codigo,demis,dvencto,drecbto,codap,tipcob,vtotal FROM Recibos WHERE codap = '") + codap
        + QStringLiteral("' And situacao = 'A' And dvencto <= #") + sqlData(vcba) + QStringLiteral("# ORDER BY codigo");
}

QString sqlTitulo(bool umApto, const QString &codap)
{
    if (umApto)
        return QStringLiteral("SELECT codigo,nome,conjugepro FROM APTOS WHERE codigo = '") + codap + u'\'';
    return QStringLiteral("SELECT codigo,nome,conjugepro FROM APTOS    ");
}

QStringList colunasTitulo()
{
    return {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("conjugepro")};
}
