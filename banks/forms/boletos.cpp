#include "banks/forms/boletos.h"

#include "accounting/balancete.h"
#include "banks/demonstrativo.h"
#include "core/session.h"
#include "reporting/imprime.h"

#include <QHash>

namespace {
QString dataTexto(const Field &f)
{
    return f.isNull() ? QString() : f.toDate().toString(QStringLiteral("dd/MM/yyyy"));
}
}

namespace {
// The slip's data columns, in the order the templates read them.
QStringList colunasBoleto()
{
    QStringList c{QStringLiteral("Vencto"), QStringLiteral("NumDoc"), QStringLiteral("lindigbco"), QStringLiteral("barrabco"),
                  QStringLiteral("nrbco"), QStringLiteral("Valor"), QStringLiteral("DataDoc"), QStringLiteral("Codap"),
                  QStringLiteral("obs1"), QStringLiteral("obs2")};
    for (int i = 0; i < 10; ++i)
        c << QStringLiteral("item%1").arg(i) << QStringLiteral("evnt%1").arg(i) << QStringLiteral("refer%1").arg(i)
          << QStringLiteral("valor%1").arg(i);
    c << QStringLiteral("nome") << QStringLiteral("enderecopro") << QStringLiteral("numeropro")
      << QStringLiteral("complementopro") << QStringLiteral("bairropro") << QStringLiteral("cidadepro")
      << QStringLiteral("ufpro") << QStringLiteral("ceppro") << QStringLiteral("cpfpro") << QStringLiteral("codinterno");
    return c;
}
}

bool imprimeBoletosDoFiltro(Connection &con, const QString &filtro, const DadosBoleto &d)
{
    const QString sql = QStringLiteral("SELECT Aptos.codinterno, Aptos.Nome, Aptos.Enderecopro, Aptos.Numeropro, "
                                       "Aptos.Complementopro, Aptos.Bairropro, Aptos.Cidadepro, Aptos.Ufpro, Aptos.Ceppro, "
                                       "Aptos.Cpfpro, Recibos.*")
                        + QStringLiteral(" FROM recibos INNER JOIN Aptos ON recibos.codap = Aptos.Codigo") + filtro;
    Recordset par = con.Execute(QStringLiteral(
        "SELECT RitauCd,RitauAg,RitauCc,RitauCart,ritaunn,RitauEsp,Rconvenio FROM Parametros Where Codigo = 1"));
    ReportFormulas formulas{
        {QStringLiteral("Cedente"), par[QStringLiteral("RitauCd")].text()},
        {QStringLiteral("AgConta"), par[QStringLiteral("RitauAg")].text() + QStringLiteral("/") + par[QStringLiteral("RitauCc")].text()},
        {QStringLiteral("Carteira"), d.carteira},
        {QStringLiteral("EspecieDoc"), d.especie},
        {QStringLiteral("DataProc"), d.dataProc},
        {QStringLiteral("Titu"), d.titulo}};
    for (int n = 0; n < 6; ++n)
        formulas.append({QStringLiteral("Instru%1").arg(n + 1), d.instrucoes[size_t(n)]});
    for (int n = 0; n < int(session.demonstrativo.size()); ++n)
        formulas.append({QStringLiteral("Linha%1").arg(n, 3, 10, QChar(u'0')), session.demonstrativo[size_t(n)]});
    QHash<QString, QString> eventos;
    for (Recordset ev = con.Execute(QStringLiteral("SELECT codigo,nome FROM eventos")); !ev.eof(); ev.moveNext())
        eventos.insert(ev[QStringLiteral("codigo")].text(), ev[QStringLiteral("nome")].text().trimmed());
    Recordset rs;
    return ImprimeRelatorio(con, rs, sql, colunasBoleto(), QStringLiteral("BolRelItau.rpt"), d.titulo,
                            formulas, [&](const Recordset &r) {
        const auto data = [&](const char *c) { return dataTexto(r[QString::fromLatin1(c)]); };
        const QString nr = r[QStringLiteral("nrbco")].text();
        QStringList row{data("dvencto"), r[QStringLiteral("codigo")].text(), r[QStringLiteral("lindigbco")].text(),
                        r[QStringLiteral("barrabco")].text(),
                        nr.size() == 9 ? nr.left(8) + QStringLiteral("-") + nr.right(1) : nr,
                        r[QStringLiteral("vtotal")].text(), data("demis"), r[QStringLiteral("codap")].text(),
                        r[QStringLiteral("obs1")].text(), r[QStringLiteral("obs2")].text()};
        for (int i = 0; i < 10; ++i) {
            const QString item = r[QStringLiteral("item%1").arg(i)].text();
            row << item
                << (item.isEmpty() ? QString()
                                   : eventos.value(item) + QStringLiteral(" ") + r[QStringLiteral("comp%1").arg(i)].text())
                << r[QStringLiteral("refer%1").arg(i)].text() << r[QStringLiteral("valor%1").arg(i)].text();
        }
        for (const char *c : {"nome", "enderecopro", "numeropro", "complementopro", "bairropro", "cidadepro", "ufpro"})
            row << r[QString::fromLatin1(c)].text();
        const QString cep = r[QStringLiteral("ceppro")].text(), cpf = r[QStringLiteral("cpfpro")].text();
        row << (cep == u"_____-___" ? QString() : cep) << (cpf == u"___.___.___-__" ? QString() : cpf)
            << r[QStringLiteral("codinterno")].text();
        return row;
    });
}


int criaDemonstrativo(Connection &con, const QDate &mes, int modelo, const QString &titulo, const QStringList &extras,
                      bool colunasTexto, bool arquivo, const QString &arqway)
{
    con.Execute(QStringLiteral("DELETE FROM RBalRec"));
    QString sql = QStringLiteral("INSERT INTO RBalRec(mesbase,modelo,nlinhas,titulo,LinAdic1,LinAdic2,LinAdic3,LinAdic4");
    sql += colunasTexto ? QStringLiteral(",arqtexto,arqway)") : QStringLiteral(")");
    sql += QStringLiteral(" VALUES(#") + mes.toString(QStringLiteral("MM/yyyy")) + QStringLiteral("#,'")
           + QString::number(modelo) + QStringLiteral("',0,\"") + titulo + QStringLiteral("\"");
    for (int n = 0; n < 4; ++n)
        sql += QStringLiteral(",\"") + extras.value(n) + QStringLiteral("\"");
    if (colunasTexto)
        sql += (arquivo ? QStringLiteral(",'True','") : QStringLiteral(",'False','")) + arqway + QStringLiteral("'");
    con.Execute(sql + QStringLiteral(")"));
    int16_t &n = session.linhasDemonstrativo;
    if (arquivo) {
        Carrega_Texto(extras.value(0), extras.value(1), extras.value(2), extras.value(3));
    } else {
        // The statement reads the month's trial balance: it is filled first.
        Monta_Balancete(con, QString::number(mes.month()), QString::number(mes.year()));
        TotaisDemonstrativo totais;
        Monta_Demonstrativo(con, totais, modelo, QString::number(mes.month()), QString::number(mes.year()));
        // The extra lines follow after an empty line, as after a loaded text.
        if (n < int16_t(session.demonstrativo.size()))
            ++n;
        for (const QString &l : extras)
            if (!l.isEmpty() && n < int16_t(session.demonstrativo.size()))
                session.demonstrativo[size_t(n++)] = l;
    }
    con.Execute(QStringLiteral("UPDATE RBalRec SET nlinhas = ") + QString::number(n) + QStringLiteral(" Where codigo = 1"));
    return n;
}
