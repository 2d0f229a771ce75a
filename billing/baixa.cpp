#include "billing/baixa.h"

#include "billing/direitos.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/transaction.h"

static const QString kAtencao = QStringLiteral("Atenção...");

QString sqlBaixa(const QString &numero, const QString &drecbto, const QString &usuario, qint32 valido)
{
    return QStringLiteral("Update Recibos Set situacao = 'B',") + QStringLiteral("drecbto = '") + drecbto
        + QStringLiteral("',") + QStringLiteral("Usubx = '") + usuario + QStringLiteral("',")
        + QStringLiteral("valido = '") + QString::number(valido) + QStringLiteral("'")
        + QStringLiteral(" Where codigo = '") + numero + QStringLiteral("'");
}

QString sqlDesfazBaixa(const QString &numero)
{
    return QStringLiteral("Update Recibos Set situacao = 'A',") + QStringLiteral("drecbto = null,")
        + QStringLiteral("Usubx = '',") + QStringLiteral("valido = 0") + QStringLiteral(" Where codigo = '") + numero
        + QStringLiteral("'");
}

QString sqlExclui(const QString &numero)
{
    return QStringLiteral("DELETE FROM Recibos WHERE codigo = '") + numero + QStringLiteral("'");
}

Baixa baixaRecibo(Connection &con, const QString &numero, const QString &original, const QString &drecbto,
                  const QString &tipcob, const QString &usuario)
{
    Baixa b;
    if (drecbto == original)
        return b;
    // A receipt settled already says by whom and when, and is settled again
    // only on a Yes that is not the default answer.
    Recordset atual = con.Execute(QStringLiteral("SELECT situacao, drecbto, Usubx FROM Recibos WHERE codigo = '") + numero
                                  + QStringLiteral("'"));
    const bool baixado = !atual.eof() && atual[QStringLiteral("situacao")].text() == QLatin1String("B");
    const bool pergunta = baixado && drecbto != kEmptyDate
        ? MsgBox(kMsgJaBaixado.arg(textoData(atual[QStringLiteral("drecbto")].toDate()),
                                   atual[QStringLiteral("Usubx")].text()),
                 vbYesNo + vbExclamation + vbDefaultButton2, kAtencao) == vbYes
        : MsgBox(QStringLiteral("Deseja Realmente Baixar Este Recibo  ?"), vbYesNo + vbQuestion, kAtencao) == vbYes;
    if (!pergunta) {
        b.resultado = ResultadoBaixa::Restaurar;
        return b;
    }
    if (!temDireito(QStringLiteral("Cfbai"), usuario)) {
        MsgBox(kMsgBaixaSemDireito, vbExclamation, kAtencao);
        b.resultado = ResultadoBaixa::Restaurar;
        return b;
    }
    if (drecbto == kEmptyDate || !isDateText(drecbto))
        b.erros.push_back({kErroFatal, kMsgBaixaSemData});
    if (tipcob.isEmpty())
        b.erros.push_back({kErroFatal, kMsgBaixaSemCobranca});
    if (!b.erros.empty()) {
        b.resultado = ResultadoBaixa::ComErros;
        return b;
    }
    b.valido = carimboValido(numero, dateFromText(drecbto), usuario);
    con.Execute(sqlBaixa(numero, drecbto, usuario, b.valido));
    b.resultado = ResultadoBaixa::Baixado;
    return b;
}

static bool vazia(const QString &data)
{
    return data == kEmptyDate || data.trimmed().isEmpty();
}

QString sqlAltera(const ReciboEditado &r, const std::vector<ItemRecibo> &itens, const TotaisRecibo &t)
{
    QString s = QStringLiteral("Update Recibos Set codap = '") + r.codap + QStringLiteral("',");
    s += QStringLiteral("nemis = \"") + r.nemis + QStringLiteral("\",");
    s += vazia(r.demis) ? QStringLiteral("demis = Null,") : QStringLiteral("demis = '") + r.demis + QStringLiteral("',");
    s += QStringLiteral("obs1 = \"") + r.obs1 + QStringLiteral("\",");
    s += QStringLiteral("obs2 = \"") + r.obs2 + QStringLiteral("\",");
    s += vazia(r.dvencto) ? QStringLiteral("dvencto = Null,")
                          : QStringLiteral("dvencto = '") + r.dvencto + QStringLiteral("',");
    s += QStringLiteral("Tipcob = '") + r.tipcob + QStringLiteral("',");
    s += QStringLiteral("Tipbolbco = '") + r.tipbolbco + QStringLiteral("',");
    s += QStringLiteral("nrbco = '") + r.nrbco + QStringLiteral("',");
    s += sqlItensTotais(itens, t);
    s += QStringLiteral(" Where codigo = '") + r.codigo + QStringLiteral("'");
    return s;
}

Alteracao alteraRecibo(Connection &con, const ReciboEditado &r, const QString &usuario, int codUsuario,
                       bool silenciosa)
{
    Alteracao a;
    if (!silenciosa
        && MsgBox(QStringLiteral("Deseja Realmente Alterar Este Registro ?"), vbYesNo + vbQuestion, kAtencao) != vbYes)
        return a;
    if (!temDireito(QStringLiteral("Cfalt"), usuario)) {
        if (!silenciosa)
            MsgBox(kMsgAlteraSemDireito, vbExclamation, kAtencao);
        return a;
    }
    const std::vector<ItemRecibo> itens = ajustaGrade(r.linhas);
    if (!itens.empty())
        a.totais = calculaTotais(con, itens);
    a.erros = confereRecibo(itens.size(), a.totais, r.dvencto, r.tipcob);
    if (!a.erros.empty())
        return a;
    // The change and the undoing of the settlement are one step.
    Transaction par(con);
    con.Execute(sqlAltera(r, itens, a.totais));
    if (r.drecbto == kEmptyDate && codUsuario == kCodigoDesfazBaixa) {
        con.Execute(sqlDesfazBaixa(r.codigo));
        a.baixaDesfeita = true;
    }
    par.commit();
    a.gravado = true;
    return a;
}

bool excluiRecibo(Connection &con, const QString &numero, const QString &usuario)
{
    if (MsgBox(QStringLiteral("Deseja Realmente Excluir Este Registro ?"), vbYesNo + vbQuestion, kAtencao) != vbYes)
        return false;
    if (!temDireito(QStringLiteral("cfexc"), usuario)) {
        MsgBox(kMsgExcluiSemDireito, vbExclamation, kAtencao);
        return false;
    }
    con.Execute(sqlExclui(numero));
    return true;
}

bool leReciboEditado(Connection &con, const QString &numero, ReciboEditado *r)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT * FROM recibos WHERE Codigo = '") + numero + QStringLiteral("'"));
    if (rs.eof())
        return false;
    auto data = [&](const char *c) {
        const QDate d = rs[QLatin1String(c)].toDate();
        return d.isValid() ? textoData(d) : kEmptyDate;
    };
    auto texto = [&](const char *c) { return rs[QLatin1String(c)].text(); };
    *r = ReciboEditado{};
    r->codigo = texto("codigo");
    r->codap = texto("codap");
    r->nemis = texto("nemis");
    r->demis = data("demis");
    r->dvencto = data("dvencto");
    r->drecbto = data("drecbto");
    r->tipcob = texto("tipcob");
    r->tipbolbco = texto("tipbolbco");
    r->nrbco = texto("nrbco");
    r->obs1 = texto("obs1");
    r->obs2 = texto("obs2");
    for (int i = 0; i < kSlotsRecibo; ++i) {
        const Money valor = rs[QStringLiteral("valor%1").arg(i)].toMoney();
        if (valor.isZero())
            break;
        r->linhas.push_back({rs[QStringLiteral("item%1").arg(i)].text(), rs[QStringLiteral("comp%1").arg(i)].text(),
                             doubleText(rs[QStringLiteral("refer%1").arg(i)].toDouble()), moneyText(valor)});
    }
    return true;
}
