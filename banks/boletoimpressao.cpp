#include "banks/boletoimpressao.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QHash>

namespace {
QString dataTexto(const Field &f)
{
    return f.isNull() ? QString() : formatDate(f.toDate(), QStringLiteral("dd/mm/yyyy"));
}

// The wallet the selection print keeps: 341 filled to 3, 104 "SR" or two
// blanks, every other bank filled to 2.
QString carteiraMantida(const QString &banco, const QString &carteira)
{
    const QString nua = QString(carteira).remove(u'_').trimmed();
    if (banco == u"341")
        return ZeroEsq(nua, 3);
    if (banco == u"104")
        return nua == u"00" ? QStringLiteral("SR") : QStringLiteral("  ");
    return ZeroEsq(nua.left(2), 2);
}
// No bank chosen, or one without a slip: the bank code's own message.
FimImpressaoBoleto semModelo()
{
    MsgBox(QStringLiteral("Programado apenas para os Bancos 001, 104, 151, 237, 341, 353, 409 e 422"), vbOKOnly,
           QStringLiteral("Atenção..."));
    return FimImpressaoBoleto::SemModelo;
}
} // namespace

void leParametrosImpressao(Connection &con, ParametrosImpressao &p)
{
    Recordset rs = con.Execute(QStringLiteral(
        "SELECT RitauCd,RitauAg,RitauCc,RitauCart,ritaunn,RitauEsp,Rconvenio FROM Parametros Where Codigo = 1"));
    if (rs.eof())
        return;
    p.cedente = rs["RitauCd"].text();
    p.agencia = rs["RitauAg"].text();
    p.conta = rs["RitauCc"].text();
    p.carteira = rs["RitauCart"].text();
    p.especie = rs["RitauEsp"].text();
    p.convenio = rs["Rconvenio"].text();
}

QString modeloBoleto(const QString &banco)
{
    static const QHash<QString, QString> modelos{
        {QStringLiteral("001"), QStringLiteral("BolRelBB.rpt")},
        {QStringLiteral("104"), QStringLiteral("BolRelCef.rpt")},
        {QStringLiteral("151"), QStringLiteral("BolRelNCx.rpt")},
        {QStringLiteral("237"), QStringLiteral("BolRelBradesco.rpt")},
        {QStringLiteral("341"), QStringLiteral("BolRelItau.rpt")},
        {QStringLiteral("353"), QStringLiteral("BolRelSantander.rpt")},
        {QStringLiteral("409"), QStringLiteral("BolRelUnibco.rpt")},
        {QStringLiteral("422"), QStringLiteral("BolRelSafra.rpt")},
    };
    return modelos.value(banco);
}

QString carteiraBoleto(const QString &banco, const QString &carteira)
{
    if (banco == u"409")
        return QStringLiteral("Especial");
    if (banco == u"353")
        return carteira == u"101" ? QStringLiteral("COBRANCA SIMPLES - ECR") : QStringLiteral("COBRANCA SIMPLES - CSR");
    return carteiraMantida(banco, carteira);
}

QString nrbcoImpresso(const QString &nrbco)
{
    return nrbco.size() == 9 ? nrbco.left(8) + u'-' + nrbco.right(1) : nrbco;
}

QList<QPair<QString, QString>> formulasBoleto(const ParametrosImpressao &p)
{
    QList<QPair<QString, QString>> f;
    const QString &b = p.banco;
    auto add = [&f](const char *name, const QString &value) { f.append({QString::fromLatin1(name), value}); };
    add("Cedente", p.cedente);
    QString agConta;
    if (b == u"104") {
        const QString digito = Modulo11Resto(p.agencia + p.convenio + p.conta);
        agConta = p.agencia + u'.' + p.convenio + u'.' + p.conta + u'-' + digito;
    } else if (b == u"409") {
        agConta = p.agencia + u'/' + p.conta.left(6) + u'-' + p.conta.right(1);
    } else if (b == u"422") {
        agConta = QStringLiteral("0") + p.agencia + QStringLiteral("/00") + p.conta.left(6) + u'-' + p.conta.right(1);
    } else {
        agConta = p.agencia + u'/' + p.conta;
    }
    add("AgConta", agConta);
    add("Carteira", carteiraBoleto(b, p.carteira));
    const QString especie = p.especie.isEmpty() ? QStringLiteral("DM") : p.especie;
    add("EspecieDoc", (b == u"001" || b == u"104" || b == u"151") ? QStringLiteral("RC") : especie);
    if (b == u"001")
        add("Rconvenio", p.agencia + u'/' + p.convenio);
    add("DataProc", p.dataProc.isValid() ? formatDate(p.dataProc, QStringLiteral("dd/mm/yyyy")) : QString());
    for (int i = 0; i < 6; ++i)
        f.append({QStringLiteral("Instru%1").arg(i + 1), p.instrucoes[size_t(i)]});
    f.append(formulasDemonstrativo());
    add("Titu", p.titulo);
    return f;
}

QList<QPair<QString, QString>> formulasDemonstrativo()
{
    QList<QPair<QString, QString>> f;
    for (int i = 0; i < int(session.demonstrativo.size()); ++i)
        f.append({QStringLiteral("Linha%1").arg(i, 3, 10, QChar(u'0')), session.demonstrativo[size_t(i)]});
    return f;
}

QStringList linhasDemonstrativo()
{
    qsizetype n = qsizetype(session.demonstrativo.size());
    while (n > 0 && session.demonstrativo[size_t(n - 1)].trimmed().isEmpty())
        --n;
    return QStringList(session.demonstrativo.begin(), session.demonstrativo.begin() + n);
}

const QStringList &colunasBoleto()
{
    static const QStringList colunas = [] {
        QStringList c{QStringLiteral("Vencto"), QStringLiteral("NumDoc"), QStringLiteral("lindigbco"),
                      QStringLiteral("barrabco"), QStringLiteral("nrbco"), QStringLiteral("Valor"),
                      QStringLiteral("DataDoc"), QStringLiteral("Codap"), QStringLiteral("obs1"),
                      QStringLiteral("obs2")};
        for (int i = 0; i < 10; ++i)
            c << QStringLiteral("item%1").arg(i) << QStringLiteral("evnt%1").arg(i) << QStringLiteral("refer%1").arg(i)
              << QStringLiteral("valor%1").arg(i);
        c << QStringLiteral("nome") << QStringLiteral("enderecopro") << QStringLiteral("numeropro")
          << QStringLiteral("complementopro") << QStringLiteral("bairropro") << QStringLiteral("cidadepro")
          << QStringLiteral("ufpro") << QStringLiteral("ceppro") << QStringLiteral("cpfpro")
          << QStringLiteral("codinterno") << QStringLiteral("@NossoNr");
        return c;
    }();
    return colunas;
}

QString sqlBoletos(const QString &filtro)
{
    return QStringLiteral("SELECT Aptos.codinterno, Aptos.Nome, Aptos.Enderecopro, Aptos.Numeropro, "
                          "Aptos.Complementopro, Aptos.Bairropro, Aptos.Cidadepro, Aptos.Ufpro, Aptos.Ceppro, "
                          "Aptos.Cpfpro, Recibos.*")
           + QStringLiteral(" FROM recibos INNER JOIN Aptos ON recibos.codap = Aptos.Codigo") + filtro;
}

QString filtroUmRecibo(const QString &codigo)
{
    return QStringLiteral(" WHERE recibos.situacao = 'A' AND recibos.codigo = '") + codigo
           + QStringLiteral("' ORDER BY recibos.codigo ");
}

ImpressaoBoletos montaBoletos(Connection &con, const ParametrosImpressao &p, const QString &filtro)
{
    ImpressaoBoletos out;
    out.modelo = modeloBoleto(p.banco);
    out.titulo = p.titulo;
    out.colunas = colunasBoleto();
    out.formulas = formulasBoleto(p);
    out.demonstrativo = linhasDemonstrativo();
    // 409's wallet is always blank and 353's number is told without it: the
    // number prints alone there.
    const QString carteiraNr =
        (p.banco == u"409" || p.banco == u"353") ? QString() : carteiraMantida(p.banco, p.carteira) + u'/';

    // Event names repeat on every receipt: each is read once.
    QHash<QString, QString> eventos;
    auto nomeEvento = [&](const QString &codigo) -> const QString & {
        auto it = eventos.find(codigo);
        if (it == eventos.end()) {
            Recordset ev = con.Execute(QStringLiteral("SELECT nome FROM eventos WHERE codigo = '") + codigo
                                       + QStringLiteral("'"));
            it = eventos.insert(codigo, ev.eof() ? QString() : ev["nome"].text().trimmed());
        }
        return *it;
    };

    for (Recordset rs = con.Execute(sqlBoletos(filtro)); !rs.eof(); rs.moveNext()) {
        QStringList row;
        row.reserve(out.colunas.size());
        const QString nrbco = nrbcoImpresso(rs["nrbco"].text());
        row << dataTexto(rs["dvencto"]) << rs["codigo"].text() << rs["lindigbco"].text() << rs["barrabco"].text()
            << nrbco << rs["vtotal"].text() << dataTexto(rs["demis"]) << rs["CodAp"].text() << rs["obs1"].text()
            << rs["obs2"].text();
        for (int i = 0; i < 10; ++i) {
            const QString item = rs[QStringLiteral("item%1").arg(i)].text();
            row << item << nomeEvento(item) + u' ' + rs[QStringLiteral("comp%1").arg(i)].text()
                << rs[QStringLiteral("refer%1").arg(i)].text() << rs[QStringLiteral("valor%1").arg(i)].text();
        }
        const QString cep = rs["Ceppro"].text();
        const QString cpf = rs["Cpfpro"].text();
        row << rs["Nome"].text() << rs["Enderecopro"].text() << rs["Numeropro"].text() << rs["Complementopro"].text()
            << rs["Bairropro"].text() << rs["Cidadepro"].text() << rs["Ufpro"].text()
            << (cep == u"_____-___" ? QString() : cep) << (cpf == u"___.___.___-__" ? QString() : cpf)
            << rs["codinterno"].text() << carteiraNr + nrbco;
        out.linhas.push_back(std::move(row));
    }
    return out;
}

FimImpressaoBoleto imprimeBoleto(Connection &con, const ParametrosImpressao &p, const QString &nrRecibo,
                                 ImpressaoBoletos &impressao)
{
    if (nrRecibo.trimmed().isEmpty()) {
        MsgBox(QStringLiteral("Você não especificou o Número do Recibo !"));
        return FimImpressaoBoleto::SemNumero;
    }
    const QString numero = ZeroEsq(nrRecibo, 6);
    Recordset rs = con.Execute(QStringLiteral("SELECT * FROM recibos WHERE codigo = '") + numero + QStringLiteral("'"));
    if (rs.eof()) {
        MsgBox(QStringLiteral("Recibo Não Localizado, verifique !"));
        return FimImpressaoBoleto::NaoLocalizado;
    }
    if (rs["barrabco"].text().isEmpty() || rs["nrbco"].text().isEmpty() || rs["lindigbco"].text().isEmpty()) {
        MsgBox(QStringLiteral("Não foi criado o arquivo de remessa ou não foi calculado o código de Barra !"),
               vbOKOnly, QStringLiteral("Atenção..."));
        return FimImpressaoBoleto::SemCodigoBarra;
    }
    if (modeloBoleto(p.banco).isEmpty())
        return semModelo();
    impressao = montaBoletos(con, p, filtroUmRecibo(numero));
    if (impressao.linhas.empty()) {
        MsgBox(QStringLiteral("Recibo selecionado não existe ou já foi baixado !"), vbOKOnly,
               QStringLiteral("Atenção..."));
        return FimImpressaoBoleto::NaoAberto;
    }
    return FimImpressaoBoleto::Pronto;
}

FimImpressaoBoleto imprimeSelecaoBoletos(Connection &con, const ParametrosImpressao &p, const QString &filtro,
                                         ImpressaoBoletos &impressao)
{
    if (filtro.trimmed().isEmpty()) {
        MsgBox(QStringLiteral("Não há grupo de recibos selecionados, utilize o botão [Selecionar Recibos] !"));
        return FimImpressaoBoleto::SemSelecao;
    }
    if (modeloBoleto(p.banco).isEmpty())
        return semModelo();
    impressao = montaBoletos(con, p, filtro);
    if (impressao.linhas.empty()) {
        MsgBox(QStringLiteral("Não há recibos na seleção estabelecida, selecione e clique [Selecionar] !"), vbOKOnly,
               QStringLiteral("Atenção !"));
        return FimImpressaoBoleto::SelecaoVazia;
    }
    return FimImpressaoBoleto::Pronto;
}

QStringList recibosSemBarraValida(const ImpressaoBoletos &impressao)
{
    const qsizetype barra = impressao.colunas.indexOf(QStringLiteral("barrabco"));
    const qsizetype numero = impressao.colunas.indexOf(QStringLiteral("NumDoc"));
    QStringList recibos;
    if (barra < 0 || numero < 0)
        return recibos;
    for (const QStringList &linha : impressao.linhas) {
        const QString &codigo = linha.value(barra);
        bool digitos = codigo.size() == 44;
        for (QChar c : codigo)
            digitos = digitos && c.isDigit();
        if (!digitos)
            recibos << linha.value(numero);
    }
    return recibos;
}
