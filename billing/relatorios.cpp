#include "billing/relatorios.h"

#include "billing/recibo.h"
#include "core/conversions.h"
#include "core/transaction.h"

namespace {

QString sqlData(const QDate &d)
{
    return formatDate(d, QStringLiteral("mm/dd/yyyy"));
}

bool temPeriodo(const QDate &de, const QDate &ate)
{
    return de.isValid() && ate.isValid();
}

// The sums by unit of the two reports that add types; `totd` is the only
// difference between them.
QString somasPorUnidade(const QString &totd)
{
    return QStringLiteral("ROUND(Sum(vtoth),2) As toth,ROUND(Sum(vtotr),2) As totr,ROUND(Sum(vtott),2) As tott,")
        + totd + QStringLiteral(" As totd,ROUND(Sum(vtotal),2) As total,Aptos.Nome FROM Recibos INNER JOIN Aptos ON Recibos.codap = Aptos.Codigo");
}

const QString kPorUnidade = QStringLiteral(" GROUP BY codap,Aptos.Nome ORDER BY codap");

} // namespace

QString nomesDosTipos(const TiposTotal &tipos)
{
    QStringList nomes;
    if (tipos.h)
        nomes << QStringLiteral("Taxa Condominial");
    if (tipos.r)
        nomes << QStringLiteral("Receita");
    if (tipos.t)
        nomes << QStringLiteral("Terceiros");
    if (tipos.d)
        nomes << QStringLiteral("Desconto");
    return nomes.join(QStringLiteral(", "));
}

Money valorDosTipos(const Recordset &rs, const TiposTotal &tipos)
{
    if (tipos.todos())
        return rs[QStringLiteral("total")].toMoney();
    Money v;
    if (tipos.h)
        v += rs[QStringLiteral("toth")].toMoney();
    if (tipos.r)
        v += rs[QStringLiteral("totr")].toMoney();
    if (tipos.t)
        v += rs[QStringLiteral("tott")].toMoney();
    if (tipos.d)
        v += rs[QStringLiteral("totd")].toMoney();
    return v;
}

QString sqlConarec(const FiltroConarec &f)
{
    QString sql = QStringLiteral("SELECT Left(Right(CodAp, 4), 2) As Entrada,codap,")
        + somasPorUnidade(QStringLiteral("ROUND(Sum(vtotd))"));
    QString liga = QStringLiteral(" WHERE ");
    if (temPeriodo(f.de, f.ate)) {
        sql += QStringLiteral(" WHERE (Recibos.demis BETWEEN #") + sqlData(f.de) + QStringLiteral("# AND #") + sqlData(f.ate)
            + QStringLiteral("#)");
        liga = QStringLiteral(" AND ");
    }
    switch (f.situacao) {
    case SituacaoConarec::Abertos:
        sql += liga + QStringLiteral("situacao = 'A'");
        break;
    case SituacaoConarec::Baixados:
        sql += liga + QStringLiteral("situacao = 'B'");
        break;
    case SituacaoConarec::BaixadosApos:
        sql += liga + QStringLiteral("(drecbto > #") + sqlData(f.baixaApos)
            + (f.comAbertos ? QStringLiteral("# OR drecbto Is Null)") : QStringLiteral("#) AND situacao = 'B'"));
        break;
    }
    return sql + kPorUnidade;
}

QString sqlInsereConarec(const QString &entrada, const QString &codap, const QString &nome, Money valor)
{
    return QStringLiteral("Insert Into ConaRec(Entrada,CodAp,Nome,VTotal) Values('") + entrada + QStringLiteral("','")
        + codap + QStringLiteral("',\"") + nome + QStringLiteral("\",'") + textoValor(valor) + QStringLiteral("')");
}

long encheConarec(Connection &con, const FiltroConarec &f)
{
    Recordset rs;
    rs.Open(sqlConarec(f), con, 1, 2);
    if (rs.eof())
        return 0;
    Transaction passo(con);
    con.Execute(QStringLiteral("DELETE FROM Conarec"));
    long n = 0;
    for (; !rs.eof(); rs.moveNext(), ++n)
        con.Execute(sqlInsereConarec(rs[QStringLiteral("Entrada")].text(), rs[QStringLiteral("codap")].text(),
                                     rs[QStringLiteral("Nome")].text(), valorDosTipos(rs, f.tipos)));
    passo.commit();
    return n;
}

QString periodoConarec(const FiltroConarec &f)
{
    if (!temPeriodo(f.de, f.ate))
        return {};
    return QStringLiteral("Período de ") + textoData(f.de) + QStringLiteral(" à ") + textoData(f.ate);
}

QString tituloConarec(const FiltroConarec &f)
{
    QString s;
    if (f.situacao == SituacaoConarec::BaixadosApos)
        s = QStringLiteral("Recibos Baixados após ") + textoData(f.baixaApos)
            + (f.comAbertos ? QStringLiteral(" e em Aberto") : QString());
    else
        s = tituloSituacao(f.situacao == SituacaoConarec::Abertos ? u'A' : u'B');
    return s + QStringLiteral(" - ") + nomesDosTipos(f.tipos);
}

bool arquivoDoConarec(const QString &arqAtivo)
{
    return arqAtivo.right(10) == QLatin1String("Con001.mdb");
}

QString sqlConCob(const QString &local, QChar situacao)
{
    return QStringLiteral("SELECT codap,") + somasPorUnidade(QStringLiteral("ROUND(Sum(vtotd),2)"))
        + QStringLiteral(" WHERE Recibos.tipcob = '") + local + u'\''
        + (situacao == u'B' ? QStringLiteral(" AND situacao = 'B'") : QStringLiteral(" AND situacao = 'A'")) + kPorUnidade;
}

QStringList colunasConCob()
{
    return {QStringLiteral("Apto"), QStringLiteral("Nome"), QStringLiteral("toth"), QStringLiteral("totr"),
            QStringLiteral("tott"), QStringLiteral("totd"), QStringLiteral("Total")};
}

QStringList linhaConCob(const Recordset &rs, const TiposTotal &tipos)
{
    auto soma = [&](bool marcado, const char *coluna) {
        return marcado ? rs[QString::fromLatin1(coluna)].text() : QString();
    };
    return {rs[QStringLiteral("codap")].text(), rs[QStringLiteral("Nome")].text(), soma(tipos.h, "toth"),
            soma(tipos.r, "totr"), soma(tipos.t, "tott"), soma(tipos.d, "totd"), moneyText(valorDosTipos(rs, tipos))};
}

QList<QPair<QString, QString>> formulasTipos(const TiposTotal &tipos)
{
    auto sn = [](bool b) { return b ? QStringLiteral("S") : QStringLiteral("N"); };
    return {{QStringLiteral("TipoH"), sn(tipos.h)}, {QStringLiteral("TipoR"), sn(tipos.r)},
            {QStringLiteral("TipoT"), sn(tipos.t)}, {QStringLiteral("TipoD"), sn(tipos.d)}};
}

QString sqlConBanco(const QDate &de, const QDate &ate, QChar situacao, const QString &banco)
{
    QString sql = QStringLiteral("SELECT recibos.codigo,demisbco,codbco,vtotal,dvencto,drecbto,codap,Aptos.Nome FROM Recibos "
                                 "INNER JOIN Aptos ON Recibos.codap = Aptos.Codigo");
    if (temPeriodo(de, ate)) {
        sql += QStringLiteral(" WHERE (Recibos.demisbco BETWEEN #") + sqlData(de) + QStringLiteral("# AND #") + sqlData(ate)
            + QStringLiteral("#)");
        if (situacao == u'A')
            sql += QStringLiteral(" AND situacao = 'A'");
        else if (situacao == u'B')
            sql += QStringLiteral(" AND situacao = 'B'");
        sql += QStringLiteral(" AND codbco = '");
    } else if (situacao == u'A') {
        sql += QStringLiteral(" WHERE situacao = 'A' AND codbco = '");
    } else if (situacao == u'B') {
        sql += QStringLiteral(" WHERE situacao = 'B' AND codbco = '");
    } else {
        sql += QStringLiteral(" WHERE codbco = '");
    }
    return sql + banco + QStringLiteral("' ORDER BY recibos.codigo");
}

QStringList colunasConBanco()
{
    return {QStringLiteral("codigo"), QStringLiteral("demisbco"), QStringLiteral("codbco"), QStringLiteral("vtotal"),
            QStringLiteral("dvencto"), QStringLiteral("drecbto"), QStringLiteral("CodAp"), QStringLiteral("Nome")};
}

QStringList ordensAnual()
{
    return {QStringLiteral("Recibo"), QStringLiteral("Emissão"), QStringLiteral("Apartamento")};
}

QString sqlRAnual(const QString &ano, QChar situacao, const QString &ordem)
{
    QString sql = QStringLiteral("SELECT Recibos.codigo,Recibos.demis,dvencto,drecbto,vtotal,Recibos.tipcob,codap,Aptos.Nome "
                                 "FROM Recibos INNER JOIN Aptos ON Recibos.codap = Aptos.Codigo");
    if (situacao == u'A')
        sql += QStringLiteral(" WHERE Recibos.situacao = 'A' And Recibos.demis >= #01/01/");
    else if (situacao == u'B')
        sql += QStringLiteral(" WHERE Recibos.situacao = 'B' And Recibos.demis >= #01/01/");
    else
        sql += QStringLiteral(" WHERE Recibos.demis >= #01/01/");
    sql += ano + QStringLiteral("# And Recibos.demis <= #12/31/") + ano + u'#';
    if (ordem == QLatin1String("Emissão"))
        return sql + QStringLiteral(" ORDER BY Recibos.demis");
    if (ordem == QLatin1String("Apartamento"))
        return sql + QStringLiteral(" ORDER BY Aptos.codigo");
    return sql + QStringLiteral(" ORDER BY Recibos.codigo");
}

QStringList colunasRAnual()
{
    return {QStringLiteral("codigo"), QStringLiteral("demis"), QStringLiteral("dvencto"), QStringLiteral("drecbto"),
            QStringLiteral("vtotal"), QStringLiteral("tipcob"), QStringLiteral("CodAp"), QStringLiteral("Nome")};
}

QString tituloSituacao(QChar situacao)
{
    if (situacao == u'A')
        return QStringLiteral("Recibos em Aberto");
    if (situacao == u'B')
        return QStringLiteral("Recibos Baixados");
    return QStringLiteral("Todos os Recibos");
}
