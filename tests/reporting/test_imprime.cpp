#include "reporting/imprime.h"

#include "reporthelpers.h"
#include "support/fixtures.h"

#include <QFile>
#include <QGuiApplication>
#include <gtest/gtest.h>

namespace {

// Captures what the printing routine hands to the viewer.
struct Viewer {
    std::vector<std::shared_ptr<const ReportDocument>> shown;
    Viewer()
    {
        setReportViewer([this](std::shared_ptr<const ReportDocument> d) { shown.push_back(std::move(d)); });
    }
    ~Viewer() { setReportViewer({}); }
};

class ImprimeRelatorioTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        dir.makeCondominium(1);
        dir.useInSession(1);
        session.nomeEmp = QStringLiteral("Edifício Solar");
        session.nomeCliente = QStringLiteral("Tevora Administradora").leftJustified(40, u' ');
        for (const char *name : {"RBloc.rpt", "RTpAp.rpt"})
            ASSERT_TRUE(QFile::copy(sourceDir() + QStringLiteral("reports/") + QString::fromLatin1(name), dir.file(QString::fromLatin1(name))));
        con.Open(session.conAtiva);
    }
    void TearDown() override { con.Close(); }

    TempProgramDir dir;
    Connection con;
    Recordset rs;
    Viewer viewer;
};

} // namespace

TEST_F(ImprimeRelatorioTest, AnEmptyListEndsQuietlyWithThePointerRestored)
{
    EXPECT_FALSE(ImprimeRelatorio(con, rs, QStringLiteral("SELECT codgrupo,descri FROM Grupos"),
                                  {QStringLiteral("codgrupo"), QStringLiteral("descri")}, QStringLiteral("RBloc.rpt"),
                                  QStringLiteral("Relação de Blocos")));
    EXPECT_TRUE(viewer.shown.empty());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    // Nothing is looked up when there is nothing to print: not even a missing template.
    EXPECT_FALSE(ImprimeRelatorio(con, rs, QStringLiteral("SELECT codgrupo,descri FROM Grupos"), {QStringLiteral("codgrupo")},
                                  QStringLiteral("NaoExiste.rpt"), QStringLiteral("x")));
}

TEST_F(ImprimeRelatorioTest, RowsBecomeTextWithNullEmptyAndTheCommonFormulas)
{
    con.Execute(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('01',True,\"Bloco Jacarandá\")"));
    con.Execute(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo) VALUES('0101',False)"));
    rs.Open(QStringLiteral("SELECT * FROM Grupos"), con, 1, 2);   // an open recordset is closed first
    ASSERT_TRUE(ImprimeRelatorio(con, rs, QStringLiteral("SELECT codgrupo,descri FROM Grupos ORDER BY codgrupo"),
                                 {QStringLiteral("codgrupo"), QStringLiteral("descri")}, QStringLiteral("RBloc.rpt"),
                                 QStringLiteral("Relação de Blocos")));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    ASSERT_EQ(viewer.shown.size(), 1u);
    const ReportDocument &doc = *viewer.shown[0];
    EXPECT_EQ(doc.title, QStringLiteral("Relação de Blocos"));
    EXPECT_TRUE(doc.log.isEmpty()) << qPrintable(doc.log.join(u'\n'));
    const QStringList t = pageTexts(doc);
    EXPECT_TRUE(t.contains(QStringLiteral("Bloco Jacarandá")));
    EXPECT_TRUE(t.contains(QStringLiteral("0101")));
    EXPECT_TRUE(t.contains(QStringLiteral("Condomínio 001 - Edifício Solar")));
    EXPECT_TRUE(t.contains(QStringLiteral("Tevora Administradora")));
    EXPECT_TRUE(t.contains(QStringLiteral("Total de blocos e subgrupos: 2")));
    EXPECT_EQ(lastReport(), viewer.shown[0]);

    // A form's own rows and formulas; a number column arrives as the data store's text.
    con.Execute(QStringLiteral("INSERT INTO TpAp(codigo,descri,rateio) VALUES('01',\"Padrão\",0.0125)"));
    con.Execute(QStringLiteral("INSERT INTO TpAp(codigo,descri,rateio) VALUES('02',\"Cobertura\",0.035)"));
    ASSERT_TRUE(ImprimeRelatorio(
        con, rs, QStringLiteral("SELECT codigo,descri,rateio FROM TpAp"),
        {QStringLiteral("codigo"), QStringLiteral("descri"), QStringLiteral("rateio")}, QStringLiteral("RTpAp.rpt"),
        QStringLiteral("Tipos de Apartamentos"), {{QStringLiteral("uNempat"), QStringLiteral("Outro Nome")}},
        [](const Recordset &r) {
            return QStringList{r[QStringLiteral("codigo")].text(), r[QStringLiteral("descri")].text().toUpper(),
                               r[QStringLiteral("rateio")].text()};
        }));
    ASSERT_EQ(viewer.shown.size(), 2u);
    const QStringList t2 = pageTexts(*viewer.shown[1]);
    EXPECT_TRUE(t2.contains(QStringLiteral("COBERTURA")));
    EXPECT_TRUE(t2.contains(QStringLiteral("0,0350")));
    EXPECT_TRUE(t2.contains(QStringLiteral("Soma dos coeficientes: 0,0475")));
    EXPECT_TRUE(t2.contains(QStringLiteral("Condomínio 001 - Outro Nome")));   // the form's formula wins
}

TEST_F(ImprimeRelatorioTest, AMissingTemplateIsAnErrorThatNamesIt)
{
    con.Execute(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('01',True,\"A\")"));
    try {
        ImprimeRelatorio(con, rs, QStringLiteral("SELECT codgrupo,descri FROM Grupos"), {QStringLiteral("codgrupo")},
                         QStringLiteral("Sumiu.rpt"), QStringLiteral("x"));
        ADD_FAILURE() << "a missing template must stop the print";
    } catch (const TemplateError &e) {
        EXPECT_TRUE(e.message().contains(QStringLiteral("Sumiu.rpt")));
    }
    EXPECT_TRUE(viewer.shown.empty());
}

TEST(ModeloPorImpressora, OnlyMTakesTheMatrixTemplate)
{
    EXPECT_EQ(modeloPorImpressora(QStringLiteral("Recibo"), QStringLiteral("M")), QStringLiteral("ReciboM.rpt"));
    for (const char *letter : {"L", "J", "S", ""})
        EXPECT_EQ(modeloPorImpressora(QStringLiteral("Recibo"), QString::fromLatin1(letter)), QStringLiteral("ReciboL.rpt")) << letter;
    EXPECT_EQ(modeloPorImpressora(QStringLiteral("RRazao01_"), QStringLiteral("M")), QStringLiteral("RRazao01_M.rpt"));
    EXPECT_EQ(modeloPorImpressora(QStringLiteral("RRazao01_"), QStringLiteral("S")), QStringLiteral("RRazao01_L.rpt"));
}
