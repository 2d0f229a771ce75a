// Letters, voter's cards and the billing reports: the sums of the work table
// Conarec and of the report by place of collection, the checks of debt, and
// the faults of the print job that reads Conarec from its file.
#include "billing/cartas.h"
#include "billing/forms/frmRCondRec.h"
#include "billing/relatorios.h"
#include "condominio.h"
#include "core/conversions.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "support/scriptedprompter.h"

#include <QCheckBox>
#include <QFile>
#include <QPushButton>
#include <gtest/gtest.h>

namespace {

// A receipt with its totals by type; vtotal is their sum.
void recibo(Condominio &c, const char *codigo, int apto, char situacao, const char *dvencto, const char *drecbto,
            double h, double r = 0, double t = 0, double d = 0)
{
    c.con.Execute(QStringLiteral("INSERT INTO Recibos(codigo,codap,demis,dvencto,drecbto,situacao,tipcob,vtoth,vtotr,vtott,"
                                 "vtotd,vtotal) VALUES('%1','%2','01/03/2008','%3',%4,'%5','1','%6','%7','%8','%9','%10')")
                      .arg(QLatin1String(codigo), QStringLiteral("%1").arg(apto, 6, 10, QLatin1Char('0')),
                           QLatin1String(dvencto),
                           drecbto ? QStringLiteral("'%1'").arg(QLatin1String(drecbto)) : QStringLiteral("Null"),
                           QChar::fromLatin1(situacao))
                      .arg(h)
                      .arg(r)
                      .arg(t)
                      .arg(d)
                      .arg(h + r + t + d));
}

Money conarec(Condominio &c, int apto)
{
    return c.dinheiro(QStringLiteral("SELECT VTotal FROM Conarec WHERE CodAp = '%1'").arg(apto, 6, 10, QLatin1Char('0')),
                      "VTotal");
}

} // namespace

TEST(Conarec, SumsTheChosenTypesByUnitAndTheDiscountInWholeUnits)
{
    Condominio c;
    c.apto(10304, QStringLiteral("Ana"), 300);
    c.apto(20101, QStringLiteral("Bia"), 300);
    recibo(c, "000001", 10304, 'A', "10/03/2008", nullptr, 300, 30, 25, -10.6);
    recibo(c, "000002", 10304, 'A', "10/04/2008", nullptr, 300, 30);
    recibo(c, "000003", 20101, 'B', "10/03/2008", "20/03/2008", 200, 20);
    recibo(c, "000004", 20101, 'B', "10/03/2008", "05/03/2008", 999);

    FiltroConarec f;
    f.tipos = {true, true, true, true};
    EXPECT_EQ(encheConarec(c.con, f), 1);
    EXPECT_EQ(conarec(c, 10304), reais(674.4));  // the receipts' total
    EXPECT_EQ(c.valor(QStringLiteral("SELECT Entrada FROM Conarec"), "Entrada"), QStringLiteral("03"));
    f.tipos = {false, false, false, true};
    encheConarec(c.con, f);
    EXPECT_EQ(conarec(c, 10304), reais(-11));
    f.tipos = {true, false, true, false};
    encheConarec(c.con, f);
    EXPECT_EQ(conarec(c, 10304), reais(625));

    // Settled after 15/03 (only 000003), with the open ones, fee only.
    f.situacao = SituacaoConarec::BaixadosApos;
    f.baixaApos = QDate(2008, 3, 15);
    f.tipos = {true, false, false, false};
    EXPECT_EQ(encheConarec(c.con, f), 1);
    EXPECT_EQ(conarec(c, 20101), reais(200));
    f.comAbertos = true;
    EXPECT_EQ(encheConarec(c.con, f), 2);
    EXPECT_EQ(conarec(c, 10304), reais(600));

    // Nothing found: the table keeps what the last run wrote.
    f.de = f.ate = QDate(2007, 1, 1);
    EXPECT_EQ(encheConarec(c.con, f), 0);
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(CodAp) As I FROM Conarec")), 2);

    // By place of collection the discount keeps its cents; a type not chosen is blank.
    Recordset rs = c.con.Execute(sqlConCob(QStringLiteral("1"), u'A'));
    ASSERT_FALSE(rs.eof());
    EXPECT_EQ(linhaConCob(rs, {true, false, false, true}),
              (QStringList{"010304", "Ana", "600", "", "", "-10,6", "589,4"}));
}

// The checks of the letters and the voter's cards, each for what calls it,
// and what their forms keep for the next time: cartas.hd.
TEST(CartaCobranca, ThePeriodTakesWholeMonths)
{
    Condominio c;
    c.apto(101, QStringLiteral("Ana"), 300);
    recibo(c, "000001", 101, 'A', "01/02/2008", nullptr, 300);
    recibo(c, "000002", 101, 'A', "29/02/2008", nullptr, 300);
    recibo(c, "000003", 101, 'A', "01/03/2008", nullptr, 300);

    // The first and the last day of the period count (2008 is a leap year).
    const CartaCobranca carta{QStringLiteral("Aviso"), QStringLiteral("Santos"), QStringLiteral("02/2008"),
                              QStringLiteral("02/2008")};
    int n = 0;
    for (Recordset rs = c.con.Execute(sqlCarta(*periodoCarta(carta), true, QString())); !rs.eof(); rs.moveNext())
        ++n;
    EXPECT_EQ(n, 2);
    EXPECT_EQ(localData(QStringLiteral("Santos"), QDate(2008, 4, 5)), QStringLiteral("Santos, 5 de Abril de 2008"));
}

TEST(TituloEleitor, AUnitInDebtUpToTheDateCannotVote)
{
    Condominio c;
    c.apto(101, QStringLiteral("Ana"), 300);
    recibo(c, "000001", 101, 'B', "10/03/2008", "20/03/2008", 300);  // settled after the date
    const QDate dia(2008, 3, 10);
    auto emDebito = [&](const QDate &d) { return !c.con.Execute(sqlDividaTitulo(QStringLiteral("000101"), d)).eof(); };
    EXPECT_FALSE(emDebito(dia));
    recibo(c, "000002", 101, 'A', "10/03/2008", nullptr, 300);      // due on the very day
    EXPECT_TRUE(emDebito(dia));
    EXPECT_FALSE(emDebito(dia.addDays(-1)));
    EXPECT_EQ(c.conta(sqlContaDividaTitulo(QStringLiteral("000101"), dia)), 1);
}

// The direct road of frmRCondRec, each fault for what calls it; in another
// condominium the form does not open.
TEST(FrmRCondRec, PrintJobFaultsAndTheGuardOfCondominiumOne)
{
    Condominio c;
    c.apto(10304, QStringLiteral("Ana"), 300);
    recibo(c, "000001", 10304, 'A', "10/03/2008", nullptr, 300, 30, 25, -10.6);
    std::shared_ptr<const ReportDocument> mostrado;
    const ReportViewer antes = setReportViewer([&](std::shared_ptr<const ReportDocument> d) { mostrado = d; });
    ScriptedPrompter p;
    auto imprime = [&] {
        frmRCondRec form;
        form.findChild<QCheckBox *>(QStringLiteral("chkD"))->setChecked(true);
        form.cmdImprimir_Click();
    };

    imprime();  // the fixture's program directory has no templates
    EXPECT_EQ(p.last().text, QStringLiteral("Arquivo Rpt não encontrado!"));
    QFile modelo(c.dir.file(QStringLiteral("Conarec.rpt")));
    ASSERT_TRUE(modelo.open(QIODevice::WriteOnly));
    modelo.write("source \"Con001.mdb\" \"SELECT * FROM Nada\"\nband detail height=5\n  text 0 0 10 5 \"{CodAp}\"\nend\n");
    modelo.close();
    imprime();
    EXPECT_EQ(p.last().text, QStringLiteral("Erro ao Iniciar a Impressão!"));
    ASSERT_TRUE(QFile::remove(modelo.fileName()));
    ASSERT_TRUE(QFile::copy(builtProgramDir() + QStringLiteral("Conarec.rpt"), modelo.fileName()));
    setReportViewer({});
    imprime();
    EXPECT_EQ(p.last().text, QStringLiteral("Definição de Janela com Erro !"));
    setReportViewer([&](std::shared_ptr<const ReportDocument> d) { mostrado = d; });
    const size_t avisos = p.calls.size();
    imprime();
    EXPECT_EQ(p.calls.size(), avisos);
    ASSERT_TRUE(mostrado);
    EXPECT_EQ(mostrado->title, QStringLiteral("Condomínio a Receber por Entrada"));
    EXPECT_EQ(conarec(c, 10304), reais(-11));

    c.dir.makeCondominium(2);
    c.dir.useInSession(2);
    frmRCondRec outro;
    EXPECT_TRUE(descarregado(outro));
    setReportViewer(antes);
}
