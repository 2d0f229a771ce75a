#include "billing/filtro.h"

#include "core/conversions.h"

namespace {

struct Campo {
    const char *legenda;
    const char *coluna;
    char tipo;
};
const Campo kCampos[] = {
    {"Nr.Recibo", "codigo", 'S'},          {"Apartamento", "codap", 'S'},
    {"Tipo Cobrança", "TipCob", 'S'},      {"Data Emissão", "demis", 'D'},
    {"Data Vencimento", "dvencto", 'D'},   {"Data Recebimento", "drecbto", 'D'},
    {"Valor Líquido", "vtotal", 'N'},
};

const Campo *campo(const QString &legenda)
{
    for (const Campo &c : kCampos)
        if (legenda == QString::fromUtf8(c.legenda))
            return &c;
    return nullptr;
}

QString situacao(QChar s, const QString &coluna)
{
    if (s == u'A')
        return coluna + QStringLiteral(" = 'A'");
    if (s == u'B')
        return coluna + QStringLiteral(" = 'B'");
    return {};
}

// "dd/mm/yyyy" to "mm/dd/yyyy".
QString mesPrimeiro(const QString &data)
{
    return data.mid(3, 2) + u'/' + data.left(2) + u'/' + data.mid(6);
}

} // namespace

QStringList camposFiltro()
{
    QStringList l;
    for (const Campo &c : kCampos)
        l << QString::fromUtf8(c.legenda);
    return l;
}

QString colunaDoCampo(const QString &legenda)
{
    const Campo *c = campo(legenda);
    return c ? QString::fromLatin1(c->coluna) : QString();
}

QChar tipoDoCampo(const QString &legenda)
{
    const Campo *c = campo(legenda);
    return c ? QChar::fromLatin1(c->tipo) : QChar();
}

QString clausulaFiltro(const Filtro &f)
{
    QString s;
    const QString estado = situacao(f.situacao, QStringLiteral(" situacao"));
    bool algo = !estado.isEmpty();
    for (const CondicaoFiltro &c : f.condicoes)
        algo = algo || !c.campo.isEmpty();
    if (!algo)
        return s;
    s = QStringLiteral(" WHERE ") + estado;
    bool antes = !estado.isEmpty();
    for (const CondicaoFiltro &c : f.condicoes) {
        if (c.campo.isEmpty())
            continue;
        if (antes)
            s += QStringLiteral(" AND ");
        antes = true;
        const QString col = colunaDoCampo(c.campo);
        if (c.tipo == u'S')
            s += col + QStringLiteral(" >= '") + c.de + QStringLiteral("' AND ") + col + QStringLiteral(" <= '") + c.ate
                + QStringLiteral("' ");
        else if (c.tipo == u'N')
            s += col + QStringLiteral(" >= ") + c.de + QStringLiteral(" AND ") + col + QStringLiteral(" <= ") + c.ate;
        else
            s += col + QStringLiteral(" >= #") + c.de + QStringLiteral("# AND ") + col + QStringLiteral(" <= #") + c.ate
                + QStringLiteral("# ");
    }
    return s;
}

QString clausulaPesquisa(const Filtro &f)
{
    QString s;
    const QString estado = situacao(f.situacao, QStringLiteral(" situacao"));
    bool algo = !estado.isEmpty();
    for (const CondicaoFiltro &c : f.condicoes)
        algo = algo || !c.campo.isEmpty();
    if (!algo)
        return s;
    s = QStringLiteral(" WHERE ") + estado;
    bool antes = !estado.isEmpty();
    for (const CondicaoFiltro &c : f.condicoes) {
        if (c.campo.isEmpty())
            continue;
        if (antes)
            s += QStringLiteral(" AND ");
        antes = true;
        const QString col = colunaDoCampo(c.campo);
        if (c.tipo == u'S') {
            const bool numero = col == QLatin1String("codigo");
            const QString de = numero ? ZeroEsq(c.de, 6) : c.de, ate = numero ? ZeroEsq(c.ate, 6) : c.ate;
            s += col + QStringLiteral(" >= '") + de + QStringLiteral("' AND ") + col + QStringLiteral(" <= '") + ate
                + QStringLiteral("' ");
        } else if (c.tipo == u'N') {
            s += col + QStringLiteral(" >= ") + c.de + QStringLiteral(" AND ") + col + QStringLiteral(" <= ") + c.ate;
        } else {
            s += col + QStringLiteral(" >= #") + mesPrimeiro(c.de) + QStringLiteral("# And ") + col
                + QStringLiteral(" <= #") + mesPrimeiro(c.ate) + QStringLiteral("# ");
        }
    }
    return s;
}

QString clausulaImpressao(const Filtro &f)
{
    QString s = QStringLiteral("WHERE ");
    const QString estado = situacao(f.situacao, QStringLiteral("recibos.situacao"));
    s += estado;
    bool antes = !estado.isEmpty();
    for (const CondicaoFiltro &c : f.condicoes) {
        if (c.campo.isEmpty())
            continue;
        if (antes)
            s += QStringLiteral(" AND ");
        antes = true;
        const QString col = QStringLiteral("Recibos.") + colunaDoCampo(c.campo);
        if (c.tipo == u'S') {
            const bool numero = col == QLatin1String("Recibos.codigo");
            const QString de = numero ? ZeroEsq(c.de, 6) : c.de, ate = numero ? ZeroEsq(c.ate, 6) : c.ate;
            s += col + QStringLiteral(" >= '") + de + QStringLiteral("' AND ") + col + QStringLiteral(" <= '") + ate
                + QStringLiteral("'");
        } else if (c.tipo == u'N') {
            s += col + QStringLiteral(" >= ") + c.de + QStringLiteral(" AND ") + col + QStringLiteral(" <= ") + c.ate;
        } else {
            s += col + QStringLiteral(" >= #") + mesPrimeiro(c.de) + QStringLiteral("# And ") + col
                + QStringLiteral(" <= #") + mesPrimeiro(c.ate) + QStringLiteral("#");
        }
    }
    // All receipts and no condition: nothing to tell after WHERE.
    if (!antes)
        return {};
    return s;
}

QString ordemImpressao(const QString &legenda)
{
    const QString col = colunaDoCampo(legenda);
    if (col.isEmpty() || col == QLatin1String("codigo"))
        return QStringLiteral(" ORDER BY Recibos.codigo");
    if (col == QLatin1String("codap"))
        return QStringLiteral(" ORDER BY Recibos.codap, Recibos.codigo");
    if (col == QLatin1String("TipCob"))
        return QStringLiteral(" ORDER BY Recibos.tipcob");
    return QStringLiteral(" ORDER BY Recibos.") + col;
}

QString sqlImpressao(const Filtro &f)
{
    const QString clausula = clausulaImpressao(f);
    return QStringLiteral("SELECT Recibos.codigo,Recibos.demis,nrbco,dvencto,drecbto,vtotal,Recibos.tipcob,codap,Aptos.Nome "
                          "FROM Recibos INNER JOIN Aptos ON Recibos.codap = Aptos.Codigo")
        + (clausula.isEmpty() ? QString() : u' ' + clausula) + ordemImpressao(f.ordem);
}

QString sqlContaRecibos(const QString &clausula)
{
    return QStringLiteral("SELECT Count(codauto) As I FROM Recibos") + clausula;
}

QString sqlListaRecibos(const QString &clausula)
{
    return QStringLiteral("SELECT * FROM Recibos") + clausula + QStringLiteral(" ORDER BY codigo");
}

std::optional<QString> confereFiltro(const Filtro &f)
{
    for (int i = 0; i < 3; ++i) {
        const CondicaoFiltro &c = f.condicoes[size_t(i)];
        if (c.campo.isEmpty())
            continue;
        const QString n = QString::number(i + 1);
        bool bom = true;
        for (const QString &v : {c.de, c.ate}) {
            if (c.tipo == u'D')
                bom = bom && isDateText(v);
            else if (c.tipo == u'N') {
                bool ok = false;
                v.toDouble(&ok);
                bom = bom && ok;
            } else
                bom = bom && !v.trimmed().isEmpty() && !v.contains(u'\'');
        }
        if (!bom)
            return QStringLiteral("Informe os valores De e Até da condição %1 !").arg(n);
    }
    return std::nullopt;
}

QString sqlGravaFiltro(const Filtro &f)
{
    const QString clausula = clausulaFiltro(f);
    QString s = QStringLiteral("UPDATE Parametros Set ");
    for (int i = 0; i < 3; ++i)
        s += QStringLiteral("pplitem%1 = '").arg(i) + f.condicoes[size_t(i)].campo + QStringLiteral("',");
    for (int i = 0; i < 3; ++i) {
        const QChar t = f.condicoes[size_t(i)].tipo;
        s += QStringLiteral("ppltipcam%1 = '").arg(i) + (t.isNull() ? QString() : QString(t)) + QStringLiteral("',");
    }
    for (int i = 0; i < 3; ++i) {
        const CondicaoFiltro &c = f.condicoes[size_t(i)];
        if (c.tipo == u'N') {
            s += QStringLiteral("pplde%1 = ").arg(i) + c.de + u',';
            s += QStringLiteral("pplate%1 = ").arg(i) + c.ate + u',';
        } else {
            s += QStringLiteral("pplde%1 = '").arg(i) + c.de + QStringLiteral("',");
            s += QStringLiteral("pplate%1 = '").arg(i) + c.ate + QStringLiteral("',");
        }
    }
    s += QStringLiteral("ppltiprec = '") + f.situacao + QStringLiteral("',");
    s += QStringLiteral("pplordem0 = '") + f.ordem + QStringLiteral("',");
    s += QStringLiteral("ppfrase1 = \"") + sqlContaRecibos(clausula) + QStringLiteral("\",");
    s += QStringLiteral("ppfrase = \"") + sqlListaRecibos(clausula) + QStringLiteral("\"");
    s += QStringLiteral(" Where codigo = 1");
    return s;
}

void gravaFiltro(Connection &con, const Filtro &f)
{
    con.Execute(sqlGravaFiltro(f));
}

Filtro leFiltro(Connection &con)
{
    Filtro f;
    Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Parametros Where Codigo = 1"));
    if (rs.eof())
        return f;
    for (int i = 0; i < 3; ++i) {
        CondicaoFiltro &c = f.condicoes[size_t(i)];
        c.campo = rs[QStringLiteral("pplitem%1").arg(i)].text().trimmed();
        if (campo(c.campo) == nullptr)
            c.campo.clear();
        const QString t = rs[QStringLiteral("ppltipcam%1").arg(i)].text();
        c.tipo = c.campo.isEmpty() ? QChar() : (t.isEmpty() ? tipoDoCampo(c.campo) : t.at(0));
        c.de = rs[i == 2 ? QStringLiteral("pp1de2") : QStringLiteral("pplde%1").arg(i)].text();
        c.ate = rs[QStringLiteral("pplate%1").arg(i)].text();
    }
    const QString s = rs[QStringLiteral("ppltiprec")].text();
    f.situacao = s.isEmpty() ? QLatin1Char('A') : s.at(0);
    f.ordem = rs[QStringLiteral("pplordem0")].text();
    return f;
}

ListaRecibos listaSalva(Connection &con)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT ppfrase, ppfrase1 FROM Parametros Where Codigo = 1"));
    ListaRecibos l;
    if (!rs.eof() && !rs[QStringLiteral("ppfrase")].text().trimmed().isEmpty()) {
        l.lista = rs[QStringLiteral("ppfrase")].text();
        l.conta = rs[QStringLiteral("ppfrase1")].text();
    } else {
        l.lista = kListaPadrao;
        l.conta = kContaPadrao;
    }
    return l;
}
