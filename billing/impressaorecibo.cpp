#include "billing/impressaorecibo.h"

#include "billing/recibo.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/extenso.h"
#include "core/session.h"

QStringList colunasRecibo()
{
    QStringList c{QStringLiteral("codigo"),   QStringLiteral("dvencto"), QStringLiteral("demis"),
                  QStringLiteral("codap"),    QStringLiteral("codint"),  QStringLiteral("nome"),
                  QStringLiteral("endereco"), QStringLiteral("numero"),  QStringLiteral("complemento"),
                  QStringLiteral("bairro"),   QStringLiteral("cidade"),  QStringLiteral("uf"),
                  QStringLiteral("cep")};
    for (const char *grupo : {"item", "descr", "refer", "valor"})
        for (int i = 0; i < kSlotsRecibo; ++i)
            c << QLatin1String(grupo) + QString::number(i);
    c << QStringLiteral("vlrtotal") << QStringLiteral("extenso1") << QStringLiteral("extenso2")
      << QStringLiteral("obs1") << QStringLiteral("obs2");
    return c;
}

// The total in words on the receipt's two lines. A total of zero or below has
// no words: its lines stay empty.
static void extensoDoTotal(Money total, QString *linha1, QString *linha2)
{
    if (total <= Money()) {
        linha1->clear();
        linha2->clear();
        return;
    }
    Extenso(formatMoney(total, QStringLiteral("0.00")));
    QuebraExtenso(37, 77);
    *linha1 = session.linhaExt1;
    *linha2 = session.linhaExt2;
}

QStringList linhaRecibo(Connection &con, const Recordset &rs)
{
    auto data = [&](const char *c) { return textoData(rs[QLatin1String(c)].toDate()); };
    const QString codap = rs[QStringLiteral("CodAp")].text();
    QStringList itens, descrs, refers, valores;
    for (int i = 0; i < kSlotsRecibo; ++i) {
        const QString n = QString::number(i);
        const Field &item = rs[QStringLiteral("item") + n];
        QString descr;
        if (!item.isNull() && item.text() != QLatin1String(" ")) {
            Recordset ev = con.Execute(QStringLiteral("SELECT nome FROM Eventos WHERE codigo = '") + item.text()
                                       + QStringLiteral("'"));
            if (!ev.eof()) {
                descr = ev[QStringLiteral("nome")].text() + QStringLiteral(" ");
                const QString comp = trimBlanks(rs[QStringLiteral("comp") + n].text());
                if (!comp.isEmpty())
                    descr += comp;
            }
        }
        itens << item.text();
        descrs << trimBlanks(descr);
        refers << doubleText(rs[QStringLiteral("refer") + n].toDouble());
        valores << moneyText(rs[QStringLiteral("valor") + n].toMoney());
    }
    QString ext1, ext2;
    const Money total = rs[QStringLiteral("vtotal")].toMoney();
    extensoDoTotal(total, &ext1, &ext2);

    Recordset ap = con.Execute(QStringLiteral("SELECT * FROM Aptos WHERE codigo = '") + codap + QStringLiteral("'"));
    auto apto = [&](const char *c) { return ap.eof() ? QString() : ap[QLatin1String(c)].text(); };

    QStringList linha{rs[QStringLiteral("codigo")].text(), data("dvencto"), data("demis"), codap,
                      apto("codinterno"), apto("nome"), apto("enderecopro"), apto("numeropro"),
                      apto("complementopro"), apto("bairropro"), apto("cidadepro"), apto("ufpro"), apto("ceppro")};
    linha << itens << descrs << refers << valores;
    linha << moneyText(total) << ext1 << ext2 << rs[QStringLiteral("obs1")].text() << rs[QStringLiteral("obs2")].text();
    return linha;
}

std::vector<QStringList> linhasRecibos(Connection &con, const QString &sql)
{
    std::vector<QStringList> linhas;
    Recordset rs;
    rs.Open(sql, con, 1, 2);  // read in full: the fill runs its own lookups on the same file
    while (!rs.eof()) {
        linhas.push_back(linhaRecibo(con, rs));
        rs.moveNext();
    }
    rs.Close();
    return linhas;
}

QList<QPair<QString, QString>> formulasRecibo(Connection &con)
{
    Recordset rs = con.Execute(QStringLiteral("SELECT fmsg,ftitu1,ftitu2 FROM Parametros WHERE Codigo = 1"));
    auto campo = [&](const char *c) { return rs.eof() ? QString() : rs[QLatin1String(c)].text(); };
    // No screen of the system writes the two heading lines: they print empty.
    return {{QStringLiteral("gLinha1"), QString()},
            {QStringLiteral("gLinha2"), QString()},
            {QStringLiteral("Msg"), campo("fmsg")},
            {QStringLiteral("TitVia"), campo("ftitu1")},
            {QStringLiteral("TitVia1"), campo("ftitu2")}};
}

QString sqlReciboPorNumero(const QString &numero)
{
    return QStringLiteral("SELECT * FROM Recibos WHERE codigo = '") + numero + QStringLiteral("'");
}

QString sqlReciboFaixa(const QString &primeiro, const QString &ultimo)
{
    return QStringLiteral("SELECT * FROM Recibos WHERE val(codigo) >= ") + primeiro
        + QStringLiteral(" AND val(codigo) <= ") + ultimo;
}
