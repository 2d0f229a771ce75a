#include "billing/manual.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/transaction.h"
#include "core/val.h"

namespace {

bool vazia(const QString &textoData)
{
    return bareText(textoData).trimmed().isEmpty();
}

QString dataOuNull(const char *coluna, const QString &texto)
{
    return vazia(texto) ? QLatin1String(coluna) + QStringLiteral(" = Null,")
                        : QLatin1String(coluna) + QStringLiteral(" = '") + texto + QStringLiteral("',");
}

} // namespace

SelecaoEmissao selecaoManual(const QString &fsempr, QChar fordem, const QString &fnemis, const QDate &fdemis)
{
    SelecaoEmissao s;
    const QString colunas = QStringLiteral("SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto,nemis,demis,nrecibo ");
    if (fsempr == QLatin1String("T")) {
        s.lista = colunas + QStringLiteral("FROM Aptos WHERE situ <> 'I' ");
        s.contagem = QStringLiteral("SELECT Count(codigo) As I FROM Aptos WHERE situ <> 'I'");
    } else {
        s.lista = colunas + QStringLiteral("FROM Aptos WHERE situ = '") + fsempr + QStringLiteral("' ");
        s.contagem = QStringLiteral("SELECT Count(codigo) As I FROM Aptos WHERE situ = '") + fsempr + QStringLiteral("' ");
    }
    // Apartments that already got a receipt of this emission stay out.
    const QString jaEmitidos = QStringLiteral(" AND NOT(nemis = '") + fnemis + QStringLiteral("' AND demis = #")
        + formatDate(fdemis, QStringLiteral("mm/dd/yyyy")) + QStringLiteral("#)");
    s.lista += jaEmitidos;
    s.contagem += jaEmitidos;
    s.lista += fordem == QLatin1Char('A') ? QStringLiteral(" ORDER BY nome") : QStringLiteral(" ORDER BY codigo");
    return s;
}

QStringList codigosDaSelecao(Connection &con, const SelecaoEmissao &s)
{
    QStringList codigos;
    for (Recordset rs = con.Execute(s.lista); !rs.eof(); rs.moveNext())
        codigos << rs[QStringLiteral("codigo")].text();
    return codigos;
}

AptoRecibo leAptoRecibo(Connection &con, const QString &codigo, const QString &fmvcto)
{
    AptoRecibo a;
    Recordset rs = con.Execute(
        QStringLiteral("SELECT codauto,codigo,nome,tipcob,tipbolbco,situ,honor,honcb,honFr,refer,diavcto FROM Aptos "
                       "WHERE codigo = '")
        + codigo + QStringLiteral("'"));
    if (rs.eof())
        return a;
    a.achado = true;
    a.codigo = ZeroEsq(rs[QStringLiteral("codigo")].text(), 6);
    a.nome = rs[QStringLiteral("nome")].text();
    const Field &situ = rs[QStringLiteral("situ")];
    if (situ.isNull() || situ.text() == QLatin1String("A"))
        a.situacao = QStringLiteral("Ativo");
    else if (situ.text() == QLatin1String("I"))
        a.situacao = QStringLiteral("Inativo");
    else
        a.situacao = situ.text();
    a.honor = rs[QStringLiteral("honor")].toMoney();
    a.honcb = rs[QStringLiteral("honcb")].toMoney();
    a.honfr = rs[QStringLiteral("honFr")].toMoney();
    a.refer = rs[QStringLiteral("refer")].toDouble();
    a.vencto = dataVencimento(rs[QStringLiteral("diavcto")], fmvcto);
    a.tipcob = rs[QStringLiteral("tipcob")].isNull() ? QStringLiteral("1") : rs[QStringLiteral("tipcob")].text();
    a.tipbolbco = rs[QStringLiteral("tipbolbco")].text();
    return a;
}

Proposta propoeItens(const ParametrosEmissao &p, const AptoRecibo &a)
{
    Proposta r;
    auto linha = [&](const QString &cod, const QString &comp, const QString &ref, Money valor) {
        r.linhas.push_back({cod, comp, ref, moneyText(valor)});
    };
    if (p.fhonor) {
        if (val(p.fEvTc) > 0 && a.honor > Money()) {
            // A unit of situ 1, 2 or 3 pays its reference times that situ's
            // unit value. Any other situation ("Inativo" reached in the
            // selective order) has no unit value and pays the fee as it stands.
            const int k = int(val(a.situacao));
            if (a.situacao == QLatin1String("Ativo") || k < 1 || k > 3)
                linha(ZeroEsq(p.fEvTc, 3), p.fCpTc, QStringLiteral(" "), a.honor);
            else
                linha(ZeroEsq(p.fEvTc, 3), p.fCpTc, formatNumber(a.refer, QStringLiteral("###0.0000")),
                      valorComReferencia(a.refer, p.fvref[size_t(k - 1)]));
            r.total += a.honor;
        }
        if (val(p.fEvCb) > 0 && a.honcb > Money()) {
            linha(ZeroEsq(p.fEvCb, 3), p.fCpCb, QStringLiteral(" "), a.honcb);
            r.total += a.honcb;
        }
        if (val(p.fEvFr) > 0 && a.honfr > Money()) {
            linha(ZeroEsq(p.fEvFr, 3), p.fCpfr, QStringLiteral(" "), a.honfr);
            r.total += a.honfr;
        }
    }
    for (size_t i = 0; i < 4; ++i) {
        // Fixed-event values are single precision, as the automatic run takes them.
        const Money v = Money::fromDouble(double(float(p.fvlev[i])));
        if (v.isZero() || !(val(p.fevnt[i]) > 0))
            continue;
        linha(p.fevnt[i], p.fcpev[i], QStringLiteral(" "), v);
        r.total += v;
    }
    return r;
}

QString sqlInsereRecibo(const ReciboManual &r, const std::vector<ItemRecibo> &itens, const TotaisRecibo &t)
{
    QString colunas = QStringLiteral("INSERT INTO Recibos (codigo,codap,nemis,demis,dvencto,drecbto,")
        + QStringLiteral("Tipcob,Tipbolbco,situacao,nrbco,");
    QString valores = QStringLiteral(" VALUES('") + r.numero + QStringLiteral("','") + r.codap + QStringLiteral("',\"")
        + r.nemis + QStringLiteral("\",'") + r.demis + QStringLiteral("',");
    valores += vazia(r.dvencto) ? QStringLiteral("Null,") : QLatin1Char('\'') + r.dvencto + QStringLiteral("',");
    valores += vazia(r.drecbto) ? QStringLiteral("Null,") : QLatin1Char('\'') + r.drecbto + QStringLiteral("',");
    valores += QLatin1Char('\'') + r.tipcob + QStringLiteral("','") + r.tipbolbco + QStringLiteral("','A','',");
    for (size_t i = 0; i < itens.size(); ++i) {
        colunas += QStringLiteral("item%1,comp%1,refer%1,valor%1,").arg(i);
        const ItemRecibo &it = itens[i];
        valores += QLatin1Char('\'') + ZeroEsq(it.item, 3) + QStringLiteral("',\"") + it.comp + QStringLiteral("\",'")
            + doubleText(it.refer) + QStringLiteral("','") + textoValor(it.valor) + QStringLiteral("',");
    }
    colunas += QStringLiteral("vtoth,vtotr,vtott,vtotd,vtotal,obs1,obs2)");
    for (Money v : {t.vtoth, t.vtotr, t.vtott, t.vtotd, t.vtotal})
        valores += QLatin1Char('\'') + textoTotalInsert(v) + QStringLiteral("',");
    valores += QLatin1Char('"') + r.obs1.trimmed() + QStringLiteral("\",\"") + r.obs2.trimmed() + QStringLiteral("\")");
    return colunas + valores;
}

QString sqlRetificaRecibo(const ReciboManual &r, const std::vector<ItemRecibo> &itens, const TotaisRecibo &t)
{
    QString s = QStringLiteral("UPDATE Recibos Set codap = '") + r.codap + QStringLiteral("',");
    s += QStringLiteral("nemis = \"") + r.nemis + QStringLiteral("\",");
    s += QStringLiteral("demis = '") + r.demis + QStringLiteral("',");
    s += dataOuNull("dvencto", r.dvencto);
    s += dataOuNull("drecbto", r.drecbto);
    s += QStringLiteral("Tipcob = '") + r.tipcob + QStringLiteral("',");
    s += QStringLiteral("Tipbolbco = '") + r.tipbolbco + QStringLiteral("',");
    s += sqlItensTotais(itens, t);
    s += QStringLiteral(" Where codigo = '") + r.numero + QStringLiteral("'");
    return s;
}

QString sqlMarcaApto(const QString &fnemis, const QString &fdemis, const QString &proximo, const QString &codap)
{
    return QStringLiteral("UPDATE aptos SET nemis = '") + fnemis + QStringLiteral("',") + QStringLiteral("demis = '")
        + fdemis + QStringLiteral("',") + QStringLiteral("nrecibo = '") + proximo + QStringLiteral("'")
        + QStringLiteral(" Where codigo = '") + codap + QStringLiteral("'");
}

QString sqlMudaApto(const QString &codap, const QDate &vencto, const QString &tipcob, const QString &tipbolbco,
                    const QString &situacao, Money honor, double refer, Money honcb, Money honfr)
{
    QString s = QStringLiteral("Update Aptos Set diavcto = '") + formatDate(vencto, QStringLiteral("dd"))
        + QStringLiteral("',");
    s += QStringLiteral("Tipcob = '") + tipcob + QStringLiteral("',");
    s += QStringLiteral("Tipbolbco = '") + tipbolbco + QStringLiteral("',");
    s += situacao == QLatin1String("Ativo") ? QStringLiteral("situ = 'A',")
                                             : QStringLiteral("situ = '") + situacao.trimmed() + QStringLiteral("',");
    s += QStringLiteral("honor = '") + moneyText(honor) + QStringLiteral("',");
    s += QStringLiteral("refer = '") + doubleText(refer) + QStringLiteral("',");
    s += QStringLiteral("honcb = '") + moneyText(honcb) + QStringLiteral("',");
    s += QStringLiteral("honfr = '") + moneyText(honfr) + QStringLiteral("'");
    s += QStringLiteral(" Where codigo = '") + codap + QStringLiteral("'");
    return s;
}

GravacaoManual gravaReciboManual(Connection &con, const ReciboManual &r, const std::vector<LinhaGrade> &linhas,
                                 bool novo, const QString &proximo)
{
    GravacaoManual g;
    g.itens = ajustaGrade(linhas);
    if (!g.itens.empty())
        g.totais = calculaTotais(con, g.itens);
    g.erros = confereRecibo(g.itens.size(), g.totais, r.dvencto, r.tipcob);
    if (!g.erros.empty())
        return g;
    // The receipt and the apartment's marks are one step.
    Transaction par(con);
    if (novo) {
        con.Execute(sqlInsereRecibo(r, g.itens, g.totais));
        con.Execute(sqlMarcaApto(r.nemis, r.demis, proximo, r.codap));
    } else {
        con.Execute(sqlRetificaRecibo(r, g.itens, g.totais));
    }
    par.commit();
    return g;
}
