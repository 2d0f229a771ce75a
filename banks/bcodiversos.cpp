#include "banks/bcodiversos.h"

#include "core/conversions.h"
#include "core/session.h"

#include <QDate>
#include <QDir>
#include <QFile>

namespace {
QStringList lista(std::initializer_list<const char *> entradas)
{
    QStringList l;
    for (const char *e : entradas)
        l << QString::fromUtf8(e);
    return l;
}

bool soDigitos(const QString &t)
{
    if (t.isEmpty())
        return false;
    for (QChar c : t)
        if (!c.isDigit())
            return false;
    return true;
}

const QString kTevora = QStringLiteral(", caso você precise de outra carteira entre em contato com a Tevora ! ");
}

bool bancoComRemessa(const QString &banco)
{
    return !banco.isEmpty() && QStringLiteral("151 341 422").contains(banco);
}

QStringList especiesDoBanco(const QString &banco)
{
    if (banco == u"151")
        return lista({"01 Duplicata Mercantil", "02 Nota Promissória", "03 Nota de Seguro", "05 Recibo",
                      "07 Cobrança Direta", "08 Cobrança Personalizada", "10 Letra de Câmbio", "11 Nota de Crédito",
                      "12 Duplicatas de Serviço", "17 Dívida Ativa"});
    if (banco == u"341")
        return lista({"01 Duplicata Mercantil", "02 Nota Promissória", "03 Nota de Seguro", "04 Mensalidade Escolar",
                      "05 Recibo", "06 Contrato", "07 Cosseguros", "08 Duplicata de Serviço", "09 Letra de Câmbio",
                      "13 Nota de Débitos", "99 Diversos"});
    if (banco == u"409")
        return lista({"04 DS Duplicata de Serviço", "07 LC Letra de Câmbio Bco.353", "12 NP Nota Promissória",
                      "17 RC Recibo", "20 AP Apólice de Seguro", "30 LC Letra de Câmbio Bco.008",
                      "02 DM Duplicata Mercantil"});
    return lista({"01 Duplicata", "02 Nota Promissória", "03 Nota de Seguro", "04 Cobrança Seriada", "05 Recibo",
                  "10 Letras de Câmbio", "11 Nota de Débito", "12 Duplicata de Serviços", "99 Outros"});
}

QString especiePadrao(const QString &banco)
{
    return banco == u"409" ? QStringLiteral("17 RC Recibo") : QStringLiteral("05 Recibo");
}

QString codigoEspecie(const QString &banco, const QString &entrada)
{
    return banco == u"409" ? entrada.mid(3, 2) : entrada.left(2);
}

QString entradaDaEspecie(const QString &banco, const QString &codigo)
{
    for (const QString &e : especiesDoBanco(banco))
        if (!codigo.isEmpty() && codigoEspecie(banco, e) == codigo)
            return e;
    return especiePadrao(banco);
}

QString recusaCarteira(const QString &banco, const QString &carteiraMascarada)
{
    const QString dois = carteiraMascarada.left(2);
    // Judged once both places are typed: a wallet half typed is not yet a wallet.
    if (dois.size() < 2 || dois.contains(u'_'))
        return {};
    if (banco == u"237" && dois != u"06" && dois != u"09")
        return QStringLiteral("Esta versão somente emite apenas a carteira 06 ou 09") + kTevora;
    if (banco == u"001" && dois != u"17" && dois != u"18")
        return QStringLiteral("Esta versão somente emite apenas a carteira 17 ou 18 do Banco do Brasil") + kTevora;
    if (banco == u"104" && dois != u"00")
        return QStringLiteral("Esta versão somente emite apenas a carteira 00 (SR - Sem Registro) da Caixa Econômica "
                              "Federal")
               + kTevora;
    return {};
}

RecusaGravacao validaGravacao(const TelaBanco &t)
{
    if (t.banco == u"104") {
        if (t.carteira.left(2) != u"00")
            return {QStringLiteral("Esta versão somente emite apenas a carteira 00 (SR - Sem Registro) da Caixa "
                                   "Econômica Federal")
                        + kTevora,
                    QStringLiteral("mskCarteiraR")};
        if (t.convenio.size() != 3 || !soDigitos(t.convenio))
            return {QStringLiteral("O número de convênio da CEF possui 3 dígitos, a Agência 4 e o código cedente 8, "
                                   "verifique o manual ou ligue para Tevora ! "),
                    QStringLiteral("txtConvenioR")};
        if (t.cedente.size() != 8)
            return {QStringLiteral("O código de cedente da CEF tem 8 dígitos e não deve ser colocado o DV (Que seria "
                                   "o nono), verifique o manual da CEF ou ligue para Tevora ! "),
                    QStringLiteral("txtCodCedente")};
    }
    if (t.banco == u"409") {
        if (t.carteira != u"___")
            return {QStringLiteral("Deixe a carteira em branco, o sistema emite apenas carteira sem registro "
                                   "(Especial) do Unibanco")
                        + kTevora,
                    QStringLiteral("mskCarteiraR")};
        if (t.convenio.size() != 7 || !soDigitos(t.convenio))
            return {QStringLiteral("O número de referência do Unibanco (Ou Convênio) possui 7 dígitos e individualiza "
                                   "o cliente no banco, o erro ou omissão implica em crédito em conta indevida, entre "
                                   "em contato com o Unibanco ! "),
                    QStringLiteral("txtConvenioR")};
        if (t.agencia.size() != 4 || t.cedente.size() != 7)
            return {QStringLiteral("A agência do Unibanco possui 4 dígitos e o número da conta corrente 7 "),
                    QStringLiteral("txtCodAgR")};
    }
    return {};
}

QString sqlGravaParametrosBanco(const TelaBanco &t)
{
    const QList<QPair<const char *, QString>> colunas{
        {"RitauAg", t.agencia},      {"RBanco", t.banco},        {"RitauCc", t.cedente},   {"RitauCd", t.cedenteNome},
        {"RitauCgc", t.cgc},         {"RConvenio", t.convenio},  {"RitauCpf", t.cpf},      {"RitauCart", t.carteira},
        {"RitauNn", t.nn},           {"RitauEsp", t.especie},    {"Ritaui1", t.i1},        {"Ritaui2", t.i2},
        {"Instrubco1", t.instrucoes[0]}, {"Instrubco2", t.instrucoes[1]}, {"Instrubco3", t.instrucoes[2]},
        {"Instrubco4", t.instrucoes[3]}, {"Instrubco5", t.instrucoes[4]}, {"Instrubco6", t.instrucoes[5]}};
    QString sql = QStringLiteral("UPDATE Parametros Set ");
    for (int n = 0; n < colunas.size(); ++n) {
        sql += QString::fromLatin1(colunas[n].first) + QStringLiteral(" = '") + colunas[n].second;
        sql += n + 1 < colunas.size() ? QStringLiteral("',") : QStringLiteral("'");
    }
    return sql + QStringLiteral(" Where codigo = 1");
}

QString sqlGravaRBalRec(const QString &arqway, const QString &titulo)
{
    return QStringLiteral("UPDATE rBalRec SET arqway = '") + arqway + QStringLiteral("',") + QStringLiteral("Titulo = '")
           + titulo + QStringLiteral("'") + QStringLiteral(" Where codigo = 1");
}

QString sqlGravaInstrucoesAoSair(const TelaBanco &t)
{
    QString sql = QStringLiteral("UPDATE parametros SET instrubco1 = '") + t.instrucoes[0] + QStringLiteral("',");
    for (int n = 1; n < 5; ++n) {
        sql += QStringLiteral("instrubco%1 = '").arg(n + 1) + t.instrucoes[n];
        sql += n < 4 ? QStringLiteral("',") : QStringLiteral("'");
    }
    return sql + QStringLiteral(" Where codigo = 1");
}

QString nomeRemessaPadrao(int empat)
{
    return QStringLiteral("SANTR") + ZeroEsq(QString::number(empat), 3);
}

const QList<CampoSelecao> &camposSelecao()
{
    static const QList<CampoSelecao> campos{
        {QStringLiteral("Nr.Recibo"), QStringLiteral("Recibos.codigo"), TipoLimite::Texto},
        {QStringLiteral("Apartamento"), QStringLiteral("Recibos.codap"), TipoLimite::Texto},
        {QStringLiteral("Tipo Cobrança"), QStringLiteral("Recibos.tipcob"), TipoLimite::Texto},
        {QStringLiteral("Data Emissão"), QStringLiteral("Recibos.demis"), TipoLimite::Data},
        {QStringLiteral("Data Vencimento"), QStringLiteral("Recibos.dvencto"), TipoLimite::Data},
        {QStringLiteral("Data Recebimento"), QStringLiteral("Recibos.drecbto"), TipoLimite::Data},
        {QStringLiteral("Valor Líquido"), QStringLiteral("Recibos.vtotal"), TipoLimite::Numero},
        {QStringLiteral("Tipo de Recibo"), QStringLiteral("Recibos.tipbolbco"), TipoLimite::Texto},
    };
    return campos;
}

namespace {
QString dataJet(const QString &ddmmyyyy)
{
    const QDate d = dateFromText(ddmmyyyy);
    return d.isValid() ? d.toString(QStringLiteral("MM/dd/yyyy")) : ddmmyyyy;
}

// Receipt and unit codes are six digits: a number typed shorter is filled.
QString limiteTexto(const CampoSelecao &c, const QString &valor)
{
    const QString t = valor.trimmed();
    bool numero = !t.isEmpty() && t.size() <= 6;
    for (QChar ch : t)
        numero = numero && ch.isDigit();
    if (numero && (c.coluna == u"Recibos.codigo" || c.coluna == u"Recibos.codap"))
        return ZeroEsq(t, 6);
    return t;
}
}

QString whereSelecao(const FiltroSelecao &f)
{
    const QList<CampoSelecao> &campos = camposSelecao();
    const CampoSelecao &c = campos.value(f.campo, campos.first());
    QStringList partes;
    if (f.situacao == Situacao::Abertos)
        partes << QStringLiteral(" situacao = 'A' ");
    else if (f.situacao == Situacao::Baixados)
        partes << QStringLiteral(" situacao = 'B' ");
    // A field without limits selects on the other conditions alone.
    const bool semLimite = f.de.trimmed().isEmpty() || f.de == kEmptyDate;
    if (!semLimite) {
        const QString ate = (f.ate.trimmed().isEmpty() || f.ate == kEmptyDate) ? f.de : f.ate;
        switch (c.tipo) {
        case TipoLimite::Texto:
            partes << c.coluna + QStringLiteral(" >= '") + limiteTexto(c, f.de) + QStringLiteral("' AND ") + c.coluna
                          + QStringLiteral(" <= '") + limiteTexto(c, ate) + QStringLiteral("' ");
            break;
        case TipoLimite::Numero:
            partes << c.coluna + QStringLiteral(" >= ") + VirgulaPonto(f.de) + QStringLiteral(" AND ") + c.coluna
                          + QStringLiteral(" <= ") + VirgulaPonto(ate);
            break;
        case TipoLimite::Data:
            partes << c.coluna + QStringLiteral(" >= #") + dataJet(f.de) + QStringLiteral("# And ") + c.coluna
                          + QStringLiteral(" <= #") + dataJet(ate) + QStringLiteral("#");
            break;
        }
    }
    // An alteration of the receipt writes the empty number: it is no number either.
    if (!f.reemite)
        partes << QStringLiteral(" (isnull(recibos.nrbco) OR recibos.nrbco = '')");
    const QString ordem = campos.value(f.ordem, campos.first()).coluna;
    const QString where = partes.isEmpty() ? QString() : QStringLiteral(" WHERE ") + partes.join(QStringLiteral(" AND "));
    return where + QStringLiteral(" ORDER BY ") + ordem;
}

QString sqlContagemSelecao(const QString &where)
{
    return QStringLiteral("SELECT Count(codigo) As I FROM Recibos ") + where;
}

QString sqlListaSelecao(const QString &where)
{
    return QStringLiteral("SELECT Recibos.codigo,Recibos.demis,Recibos.dvencto,Recibos.drecbto,Recibos.codap,Aptos.nome,"
                          "Recibos.vtotal,Recibos.codbco,Recibos.demisbco FROM Recibos INNER JOIN Aptos ON "
                          "Recibos.codap = Aptos.Codigo")
           + where;
}

QString sqlSelecao(const QString &where)
{
    return QStringLiteral("SELECT Recibos.*,Aptos.nome FROM Recibos INNER JOIN Aptos ON Recibos.codap = Aptos.Codigo")
           + where;
}

QString caminhoTextoDemonstrativo(const QString &pasta, const QString &nome)
{
    const QString arquivo = nome.trimmed().contains(u'.') ? nome.trimmed() : nome.trimmed() + QStringLiteral(".txt");
    return QDir(pasta).filePath(arquivo);
}

bool escreveTextoDemonstrativo(const QString &caminho, const QStringList &linhasAdicionais)
{
    QFile f(caminho);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QByteArray texto;
    for (int n = 0; n < session.linhasDemonstrativo && n < int(session.demonstrativo.size()); ++n)
        texto += session.demonstrativo[size_t(n)].toUtf8() + "\r\n";
    for (const QString &l : linhasAdicionais)
        if (!l.trimmed().isEmpty())
            texto += l.toUtf8() + "\r\n";
    return f.write(texto) == texto.size();
}
