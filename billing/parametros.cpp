#include "billing/parametros.h"

#include "billing/direitos.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"

QChar ordemDaLegenda(const QString &legenda)
{
    if (legenda == QStringLiteral("Alfabética"))
        return QLatin1Char('A');
    if (legenda == QStringLiteral("Numérica"))
        return QLatin1Char('N');
    return QLatin1Char('S');
}

QString legendaDaOrdem(QChar ordem)
{
    if (ordem == QLatin1Char('A'))
        return QStringLiteral("Alfabética");
    if (ordem == QLatin1Char('N'))
        return QStringLiteral("Numérica");
    return QStringLiteral("Seletiva");
}

QString selecaoDaLegenda(const QString &legenda)
{
    if (legenda == QStringLiteral("Todos"))
        return QStringLiteral("T");
    if (legenda == QStringLiteral("Ativos"))
        return QStringLiteral("A");
    return legenda;
}

QString legendaDaSelecao(const QString &fsempr)
{
    if (fsempr == QLatin1String("T"))
        return QStringLiteral("Todos");
    if (fsempr == QLatin1String("A"))
        return QStringLiteral("Ativos");
    if (fsempr == QLatin1String("I"))
        return QStringLiteral("Inativos");
    return fsempr;
}

bool guardaOpcoes(bool eAutomatica, QChar ordem, bool retificacao)
{
    if ((eAutomatica && ordem == QLatin1Char('S')) || (eAutomatica && retificacao)) {
        MsgBox(kMsgOpcoesInvalidas, vbExclamation, QStringLiteral("Atenção..."));
        return false;
    }
    return true;
}

std::optional<ErroGravacao> confereUltimoRecibo(Connection &con, const QString &nrRecibo)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT MAX(codigo) as maxcod FROM Recibos"));
    if (rs.eof() || rs[QStringLiteral("maxcod")].isNull())
        return std::nullopt;
    const QString maxcod = rs[QStringLiteral("maxcod")].text();
    if (val(nrRecibo) < val(maxcod))
        return ErroGravacao{kAlertaDeErro, QStringLiteral("O número do maior recibo cadastrado é ") + maxcod
                                               + QStringLiteral(" e você informou como recibo anterior o nr. ")
                                               + nrRecibo};
    return std::nullopt;
}

bool confereEventoFixo(Connection &con, const QString &codigo)
{
    if (!(val(codigo) > 0))
        return true;
    Recordset rs = con.Execute(QStringLiteral("SELECT tipo FROM eventos WHERE codigo = '") + codigo + QStringLiteral("'"));
    if (!rs.eof())
        return true;
    MsgBox(QStringLiteral("Evento Não Cadastrado, digite um código válido ou deixe o campo vazio"), vbExclamation,
           QStringLiteral("Erro"));
    return false;
}

bool direitoDeIniciar(bool retificacao, const QString &usuario)
{
    if (!retificacao && !temDireito(QStringLiteral("cfadi"), usuario)) {
        MsgBox(QStringLiteral("Usuário não autorizado a emitir recibos !"), vbExclamation, QStringLiteral("Atenção..."));
        return false;
    }
    if (retificacao && !temDireito(QStringLiteral("Cfalt"), usuario)) {
        MsgBox(QStringLiteral("Usuário não autorizado a retificar recibos !"), vbExclamation,
               QStringLiteral("Atenção..."));
        return false;
    }
    return true;
}

static QString booleano(const char *coluna, bool v)
{
    return QLatin1String(coluna) + (v ? QStringLiteral(" = True,") : QStringLiteral(" = False,"));
}

static bool vazia(const QString &textoData)
{
    return bareText(textoData).trimmed().isEmpty();
}

QString sqlGravaParametros(const ParametrosEmissao &p)
{
    QString s = QStringLiteral("UPDATE Parametros Set fnemis = '") + p.fnemis + QStringLiteral("',");
    s += vazia(p.fdemis) ? QStringLiteral("fdemis = null,") : QStringLiteral("fdemis = '") + p.fdemis + QStringLiteral("',");
    s += vazia(p.fmvcto) ? QStringLiteral("fmvcto = null,") : QStringLiteral("fmvcto = '") + p.fmvcto + QStringLiteral("',");
    s += QStringLiteral("fnreci = '") + p.fnreci + QStringLiteral("',");
    if (p.fordem == QLatin1Char('A'))
        s += QStringLiteral("fordem = 'A',");
    else if (p.fordem == QLatin1Char('N'))
        s += QStringLiteral("fordem = 'N',");
    else
        s += QStringLiteral("fordem = 'S',");
    if (p.fsempr == QLatin1String("T"))
        s += QStringLiteral("fsempr = 'T',");
    else if (p.fsempr == QLatin1String("A"))
        s += QStringLiteral("fsempr = 'A',");
    else
        s += QStringLiteral("fsempr = '") + p.fsempr + QStringLiteral("',");
    s += QStringLiteral("fpimpr = '") + doubleText(p.fpimpr) + QStringLiteral("',");
    s += QStringLiteral("ftitu1 = \"") + p.ftitu1 + QStringLiteral("\",");
    s += QStringLiteral("ftitu2 = \"") + p.ftitu2 + QStringLiteral("\",");
    for (int i = 0; i < 3; ++i)
        s += QStringLiteral("fvref%1 = '").arg(i + 1) + moneyText(p.fvref[size_t(i)]) + QStringLiteral("',");
    s += booleano("fretit", p.fretit);
    s += booleano("fspool", p.fspool);
    s += booleano("fautom", p.fautom);
    s += booleano("fhonor", p.fhonor);
    s += booleano("fpdigi", p.fpdigi);
    for (int i = 0; i < 4; ++i)
        s += QStringLiteral("fevnt%1 = '").arg(i + 1) + p.fevnt[size_t(i)] + QStringLiteral("',");
    for (int i = 0; i < 4; ++i)
        s += QStringLiteral("fvlev%1 = '").arg(i + 1) + doubleText(p.fvlev[size_t(i)]) + QStringLiteral("',");
    for (int i = 0; i < 4; ++i)
        s += QStringLiteral("fcpev%1 = '").arg(i + 1) + p.fcpev[size_t(i)] + QStringLiteral("',");
    s += QStringLiteral("fEvTc = '") + p.fEvTc + QStringLiteral("',");
    s += QStringLiteral("fCpTc = '") + p.fCpTc + QStringLiteral("',");
    s += QStringLiteral("fEvCb = '") + p.fEvCb + QStringLiteral("',");
    s += QStringLiteral("fCpCb = '") + p.fCpCb + QStringLiteral("',");
    s += QStringLiteral("fEvFr = '") + p.fEvFr + QStringLiteral("',");
    s += QStringLiteral("fCpfr = '") + p.fCpfr + QStringLiteral("',");
    s += QStringLiteral("fmsg = \"") + p.fmsg + QStringLiteral("\"");
    s += QStringLiteral(" Where codigo = 1");
    return s;
}

std::vector<ErroGravacao> gravaParametros(Connection &con, const ParametrosEmissao &p)
{
    if (auto erro = confereUltimoRecibo(con, p.fnreci))
        return {*erro};
    con.Execute(sqlGravaParametros(p));
    return {};
}

// A date column read back in the form of its field; a column kept as text
// is shown as it stands.
static QString dataComoCampo(const Field &f, const QString &formato, const QString &vazio)
{
    if (f.isNull())
        return vazio;
    if (f.kind() == ColumnKind::Date) {
        const QDate d = f.toDate();
        return d.isValid() ? formatDate(d, formato) : vazio;
    }
    const QString t = f.text().trimmed();
    return t.isEmpty() ? vazio : t;
}

ParametrosEmissao leParametros(Connection &con)
{
    ParametrosEmissao p;
    Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Parametros Where Codigo = 1"));
    if (rs.eof())
        return p;
    auto texto = [&](const char *c) { return rs[QLatin1String(c)].text(); };
    p.fnemis = texto("fnemis");
    p.fdemis = dataComoCampo(rs[QStringLiteral("fdemis")], QStringLiteral("dd/mm/yyyy"), kEmptyDate);
    p.fmvcto = dataComoCampo(rs[QStringLiteral("fmvcto")], QStringLiteral("mm/yyyy"), kEmptyMonthYear);
    p.fnreci = val(texto("fnreci")) == 0 ? QStringLiteral("000000") : texto("fnreci");
    const QString ordem = texto("fordem");
    p.fordem = ordem.isEmpty() ? QLatin1Char('N') : ordem.at(0);
    p.fsempr = texto("fsempr");
    p.fpimpr = rs[QStringLiteral("fpimpr")].toDouble();
    p.ftitu1 = texto("ftitu1");
    p.ftitu2 = texto("ftitu2");
    for (int i = 0; i < 3; ++i)
        p.fvref[size_t(i)] = rs[QStringLiteral("fvref%1").arg(i + 1)].toMoney();
    p.fretit = rs[QStringLiteral("fretit")].toBool();
    p.fspool = rs[QStringLiteral("fspool")].toBool();
    p.fautom = rs[QStringLiteral("fautom")].toBool();
    p.fhonor = rs[QStringLiteral("fhonor")].toBool();
    p.fpdigi = rs[QStringLiteral("fpdigi")].toBool();
    for (int i = 0; i < 4; ++i) {
        p.fevnt[size_t(i)] = rs[QStringLiteral("fevnt%1").arg(i + 1)].text();
        p.fvlev[size_t(i)] = rs[QStringLiteral("fvlev%1").arg(i + 1)].toDouble();
        p.fcpev[size_t(i)] = rs[QStringLiteral("fcpev%1").arg(i + 1)].text();
    }
    // The fee event codes are shown padded to three digits.
    auto evento = [&](const char *c) {
        const QString t = texto(c).trimmed();
        return val(t) > 0 ? ZeroEsq(t, 3) : t;
    };
    p.fEvTc = evento("fEvTc");
    p.fCpTc = texto("fCpTc");
    p.fEvCb = evento("fEvCb");
    p.fCpCb = texto("fCpCb");
    p.fEvFr = evento("fEvFr");
    p.fCpfr = texto("fCpfr");
    p.fmsg = texto("fmsg");
    return p;
}
