#include "banks/calcbarra.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/transaction.h"

QString updateRecibosBanco(const QDate &dataGeracao, const Boleto &b, const QString &banco, const QString &codigo)
{
    return QStringLiteral("UPDATE Recibos SET demisbco = '") + formatDate(dataGeracao, QStringLiteral("dd/mm/yyyy"))
           + QStringLiteral("',") + QStringLiteral("barrabco = '") + b.barra + QStringLiteral("', lindigbco = '")
           + b.linha + QStringLiteral("',") + QStringLiteral("nrbco = '") + b.nrbco + QStringLiteral("',")
           + QStringLiteral("codbco = '") + banco + QStringLiteral("' WHERE codigo = '") + codigo
           + QStringLiteral("'");
}

namespace {
ReciboBanco reciboDaLinha(const Recordset &rs)
{
    return ReciboBanco{rs["codigo"].text(), rs["vtotal"].toMoney(), rs["dvencto"].toDate()};
}
} // namespace

FimCalcBarra cmdCalcBarraG(Connection &con, FormCalcBarra &form)
{
    const QString banco = form.parametros.banco;
    // A test of occurrence in the list, as the form has always made it.
    if (!QStringLiteral("001 104 237 353 409").contains(banco)) {
        MsgBox(QStringLiteral("Este Banco utiliza emissão de Remessa !"), vbOKOnly, QStringLiteral("Atenção !!"));
        return FimCalcBarra::BancoComRemessa;
    }
    if (form.selecao.isEmpty()) {
        MsgBox(QStringLiteral("Falta especificar os recibos da remessa, use o botão [Selecionar] !"));
        return FimCalcBarra::FaltaSelecao;
    }
    Recordset rs = con.Execute(form.selecao);
    if (rs.eof()) {
        MsgBox(QStringLiteral("Não há registros para esta condição !"), vbOKOnly, QStringLiteral("Atenção !"));
        return FimCalcBarra::SemRegistros;
    }
    form.carteira = ZeroEsq(form.parametros.carteiraNua(), 3);
    form.contagem = 0;

    for (; !rs.eof(); rs.moveNext()) {
        const QString cod = ZeroEsq(rs["codigo"].text(), 6);
        // The receipt is read and written back as one step.
        Transaction passo(con);
        Recordset recibo = con.Execute(QStringLiteral("SELECT * FROM recibos WHERE codigo = '") + cod
                                       + QStringLiteral("'"));
        if (recibo.eof())
            throw RunFailure(QStringLiteral("Nenhum registro atual (recibo ") + cod + QStringLiteral(")"));
        const ReciboBanco r = reciboDaLinha(recibo);

        if (banco == u"353")
            return FimCalcBarra::Banco353;
        if (banco == u"001" || banco == u"104" || banco == u"237" || banco == u"409") {
            const Boleto b = calculaBoleto(banco, r, form.parametros);
            if (!b.recusa.isEmpty()) {
                MsgBox(b.recusa);
                return FimCalcBarra::Recusado;
            }
            form.trabalho = b;
        } else {
            // A code that passed the occurrence test without being a bank (an
            // empty one above all) has no rule: the working fields keep what
            // they held, as on the form.
            completaBoleto(form.trabalho, banco, r);
        }
        con.Execute(updateRecibosBanco(form.dataGeracao, form.trabalho, banco, rs["codigo"].text()));
        passo.commit();
        ++form.contagem;
        if (form.progresso)
            form.progresso(form.contagem, int(rs.recordCount()));
    }
    MsgBox(QStringLiteral("Código de Barra e Linha Digitável Calculada, Seleção liberada para Impressão !"), vbOKOnly,
           QStringLiteral("Atenção"));
    return FimCalcBarra::Calculado;
}

FimCalcBarra cmdCalcBarra(Connection &con, FormCalcBarra &form, const QString &nrRecibo)
{
    const QString numero = ZeroEsq(nrRecibo, 6);
    form.selecao = QStringLiteral("SELECT * FROM recibos WHERE codigo = '") + numero + QStringLiteral("'");
    return cmdCalcBarraG(con, form);
}

ParametrosGravados leParametrosBanco(Connection &con)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Parametros WHERE codigo = 1"));
    ParametrosGravados g;
    if (rs.eof())
        return g;
    g.rbanco = rs["RBanco"].text();
    g.ritauag = rs["RitauAg"].text();
    g.ritaucc = rs["RitauCc"].text();
    g.ritaucd = rs["RitauCd"].text();
    g.ritaucgc = rs["RitauCgc"].text();
    g.ritaucpf = rs["RitauCpf"].text();
    g.rconvenio = rs["RConvenio"].text();
    g.ritaucart = rs["RitauCart"].text();
    g.ritaunn = rs["RitauNn"].text();
    g.ritauespNulo = rs["RitauEsp"].isNull();
    g.ritauesp = rs["RitauEsp"].text();
    g.ritaui1 = rs["Ritaui1"].text();
    g.ritaui2 = rs["Ritaui2"].text();
    return g;
}

QString textoMascaraCarteira(const QString &stored)
{
    return stored.left(3).leftJustified(3, u'_');
}

ParametrosBanco parametrosDoForm(const ParametrosGravados &g)
{
    ParametrosBanco p;
    p.banco = g.rbanco;
    p.agencia = g.ritauag;
    p.cedente = g.ritaucc;
    p.convenio = g.rconvenio;
    p.carteira = textoMascaraCarteira(g.ritaucart);
    return p;
}

QString selecaoPadraoBanco()
{
    return QStringLiteral("SELECT * FROM Recibos WHERE situacao = 'A' AND (nrbco = '' OR nrbco IS NULL) "
                          "ORDER BY codigo");
}
