// The templates shipped in reports/: each parses, and prints its data where
// an office expects it.
#include "reporting/renderer.h"

#include "reporthelpers.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace {

ReportTemplate shipped(const QString &name)
{
    return loadTemplate(sourceDir() + QStringLiteral("/reports/") + name);
}

ReportData withCommonFormulas(const QStringList &columns)
{
    ReportData d;
    d.columns = columns;
    d.setFormula(QStringLiteral("uEmpat"), QStringLiteral("12"));
    d.setFormula(QStringLiteral("uNempat"), QStringLiteral("Edifício Solar das Acácias"));
    d.setFormula(QStringLiteral("gClient"), QStringLiteral("Tevora Administradora").leftJustified(40, u' '));
    return d;
}

} // namespace

TEST(ShippedTemplates, RegisterListingsShowTheCondominiumTrimmedClientAndPages)
{
    ReportData bloc = withCommonFormulas({QStringLiteral("codgrupo"), QStringLiteral("descri")});
    for (int i = 1; i <= 60; ++i)
        bloc.rows.push_back({QStringLiteral("%1").arg(i, 2, 10, QChar(u'0')), QStringLiteral("Bloco Jacarandá %1").arg(i)});
    const ReportDocument b = renderReport(shipped(QStringLiteral("RBloc.rpt")), bloc);
    EXPECT_TRUE(b.log.isEmpty()) << qPrintable(b.log.join(u'\n'));
    ASSERT_EQ(b.pageCount(), 2);
    EXPECT_TRUE(findText(b, 0, QStringLiteral("Tevora Administradora")));   // gClient trimmed
    const QStringList pages = pdfPages(b);
    ASSERT_EQ(pages.size(), 2);
    for (int p = 0; p < 2; ++p) {
        EXPECT_TRUE(pages[p].contains(QStringLiteral("Relação de Blocos")));
        EXPECT_TRUE(pages[p].contains(QStringLiteral("Condomínio 012 - Edifício Solar das Acácias")));
        EXPECT_TRUE(pages[p].contains(QStringLiteral("Página %1 de 2").arg(p + 1)));
        EXPECT_TRUE(pages[p].contains(QStringLiteral("Emitido em ")));
    }
    EXPECT_TRUE(pages[1].contains(QStringLiteral("Bloco Jacarandá 60")));
    EXPECT_TRUE(pages[1].contains(QStringLiteral("Total de blocos e subgrupos: 60")));

    ReportData tp = withCommonFormulas({QStringLiteral("codigo"), QStringLiteral("descri"), QStringLiteral("rateio")});
    tp.rows = {{"01", "Padrão", "0,0125"}, {"02", "Cobertura", "0,035"}, {"03", "Loja", ""}};
    const QString t = pdfText(renderReport(shipped(QStringLiteral("RTpAp.rpt")), tp));
    EXPECT_TRUE(t.contains(QStringLiteral("Tipos de Apartamentos")));
    EXPECT_TRUE(t.contains(QStringLiteral("0,0350")));
    EXPECT_TRUE(t.contains(QStringLiteral("Soma dos coeficientes: 0,0475")));
    EXPECT_TRUE(t.contains(QStringLiteral("Tipos cadastrados: 3")));
}

TEST(ShippedTemplates, RegisterCardsOfUserAndLegalPerson)
{
    ReportData u = withCommonFormulas({"codigo", "nome", "data", "codcli", "nomecli", "imp", "Bdcon", "Bdadi", "Bdexc", "Bdalt",
                                       "Cfcon", "Cfadi", "Cfexc", "Cfalt", "Cfbai"});
    u.rows = {{"7", "Maria José", "14/03/2008", "12", "Edifício Solar", "J", "Verdadeiro", "Falso", "Falso", "Falso",
               "Verdadeiro", "Verdadeiro", "Verdadeiro", "Verdadeiro", "Falso"}};
    const ReportDocument ud = renderReport(shipped(QStringLiteral("Usuario.rpt")), u);
    EXPECT_TRUE(ud.log.isEmpty()) << qPrintable(ud.log.join(u'\n'));
    const QString ut = pdfText(ud);
    EXPECT_TRUE(ut.contains(QStringLiteral("Cadastro de Usuário")));
    EXPECT_TRUE(ut.contains(QStringLiteral("007")));
    EXPECT_TRUE(ut.contains(QStringLiteral("Jato de Tinta")));
    EXPECT_FALSE(ut.contains(QStringLiteral("Matricial")));
    EXPECT_TRUE(ut.contains(QStringLiteral("012 - Edifício Solar")));
    int sim = 0;
    for (const DrawOp &op : ud.pages[0].ops)
        sim += op.text == QLatin1String("Sim");
    EXPECT_EQ(sim, 5);

    ReportData j = withCommonFormulas({"codigo", "Nome", "endereco", "bairro", "cidade", "uf", "cep", "tipo", "numero", "complemento",
                                       "cnpj", "cpf", "inscest", "contato0", "setor0", "nascto0", "contato1", "setor1", "nascto1",
                                       "contato2", "setor2", "nascto2", "ddd", "fone0", "fone1", "fone2", "email", "hp", "fax", "obs"});
    j.rows = {{"15", "Imobiliária Paulista Ltda.", "Rua Augusta", "Consolação", "São Paulo", "SP", "01305-000", "0", "1508", "cj. 42",
               "12.345.678/0001-95", "", "110.042.490.114", "João da Silva", "Locação", "12/05/1970", "", "", "", "", "", "", "11",
               "3255-1200", "", "", "contato@imob.com.br", "www.imob.com.br", "", "Repasses até o dia 10."}};
    const ReportDocument jd = renderReport(shipped(QStringLiteral("CadJud.rpt")), j);
    EXPECT_TRUE(jd.log.isEmpty()) << qPrintable(jd.log.join(u'\n'));
    const QString jt = pdfText(jd);
    for (const char *s : {"Cadastro de Pessoa Jurídica", "Imobiliária Paulista Ltda.", "Rua Augusta, 1508 cj. 42", "12.345.678/0001-95",
                          "12/05/1970", "www.imob.com.br", "Repasses até o dia 10.", "Página 1 de 1"})
        EXPECT_TRUE(jt.contains(QString::fromUtf8(s))) << s;
    EXPECT_TRUE(findText(jd, 0, QStringLiteral("Imobiliária")));
}

TEST(ShippedTemplates, LabelsTwentyToASheetTwoAcross)
{
    ReportData d;
    d.columns = {"Codigo", "Nome", "Endereço", "Cidade", "UF", "CEP"};
    for (int i = 1; i <= 41; ++i)
        d.rows.push_back({QStringLiteral("%1").arg(i, 6, 10, QChar(u'0')), QStringLiteral("  Condômino %1  ").arg(i),
                          QStringLiteral("Rua das Acácias, %1 apto 2").arg(i), "São Paulo", "SP", "01415-000"});
    const ReportDocument doc = renderReport(shipped(QStringLiteral("EtiqNor.rpt")), d);
    EXPECT_TRUE(doc.log.isEmpty()) << qPrintable(doc.log.join(u'\n'));
    ASSERT_EQ(doc.pageCount(), 3);
    EXPECT_NEAR(doc.pageWidth(), 215.9, 0.01);
    EXPECT_TRUE(findText(doc, 0, QStringLiteral("Condômino 1")));
    EXPECT_TRUE(findText(doc, 0, QStringLiteral("Condômino 20")));
    EXPECT_TRUE(findText(doc, 1, QStringLiteral("Condômino 21")));
    EXPECT_TRUE(findText(doc, 2, QStringLiteral("Condômino 41")));
    const QStringList pages = pdfPages(doc);
    EXPECT_TRUE(pages[2].contains(QStringLiteral("Rua das Acácias, 41 apto 2")));
    EXPECT_TRUE(pages[0].contains(QStringLiteral("São Paulo - SP")));
}

TEST(ShippedTemplates, ReceiptPrintsTwoCopiesWithTheAmountInWords)
{
    QStringList cols = {"codigo", "dvencto", "demis", "codap", "codint", "nome", "endereco", "numero", "complemento", "bairro",
                        "cidade", "uf", "cep"};
    for (const char *k : {"item", "descr", "refer", "valor"})
        for (int i = 0; i < 10; ++i)
            cols << QString::fromLatin1(k) + QString::number(i);
    cols << "vlrtotal" << "extenso1" << "extenso2" << "obs1" << "obs2";
    ReportData d;
    d.columns = cols;
    QStringList row = {"004512", "10/03/2008", "25/02/2008", "000101", "A-11", "José Antônio", "Rua das Acácias", "120", "apto 11",
                       "Jardim Paulista", "São Paulo", "SP", "01415-000"};
    const QStringList items = {"001", "005", " ", " ", " ", " ", " ", " ", " ", " "};
    row << items;
    row << "Taxa de condomínio" << "Fundo de reserva" << "" << "" << "" << "" << "" << "" << "" << "";
    row << "03/2008" << "03/2008" << "0" << "0" << "0" << "0" << "0" << "0" << "0" << "0";
    row << "1450" << "45,5" << "0" << "0" << "0" << "0" << "0" << "0" << "0" << "0";
    row << "1495,5" << "(UM MIL QUATROCENTOS E NOVENTA E CINCO" << "REAIS E CINQUENTA CENTAVOS) *****" << "Obs um" << "";
    d.rows = {row};
    d.setFormula("uNempat", "Edifício Solar");
    d.setFormula("gClient", QStringLiteral("Tevora").leftJustified(40, u' '));
    d.setFormula("gLinha1", "Rua Vergueiro, 1000");
    d.setFormula("gLinha2", "");
    d.setFormula("Msg", "Mantenha seus dados atualizados.");
    d.setFormula("TitVia", "1ª via - Condômino");
    d.setFormula("TitVia1", "2ª via - Administradora");
    const ReportDocument doc = renderReport(shipped(QStringLiteral("ReciboL.rpt")), d);
    EXPECT_TRUE(doc.log.isEmpty()) << qPrintable(doc.log.join(u'\n'));
    ASSERT_EQ(doc.pageCount(), 1);
    const QString t = pdfText(doc);
    EXPECT_EQ(t.count(QStringLiteral("RECIBO Nº 004512")), 2);
    EXPECT_EQ(t.count(QStringLiteral("1.450,00")), 2);
    EXPECT_EQ(t.count(QStringLiteral("1.495,50")), 2);
    EXPECT_EQ(t.count(QStringLiteral("(UM MIL QUATROCENTOS E NOVENTA E CINCO")), 2);
    EXPECT_EQ(t.count(QStringLiteral("CENTAVOS) *****")), 2);
    EXPECT_EQ(t.count(QStringLiteral("Mantenha seus dados atualizados.")), 2);
    EXPECT_TRUE(t.contains(QStringLiteral("1ª via - Condômino")));
    EXPECT_TRUE(t.contains(QStringLiteral("2ª via - Administradora")));
    EXPECT_LT(t.indexOf(QStringLiteral("1ª via")), t.indexOf(QStringLiteral("2ª via")));
    // Unused slots print nothing, not zeros.
    EXPECT_FALSE(t.contains(QStringLiteral(" 0,00")));
}

TEST(ShippedTemplates, ItauSlipCarriesTheStatementTypedLineAndAReadableBarCode)
{
    QStringList cols = {"Vencto", "NumDoc", "lindigbco", "barrabco", "nrbco", "Valor", "DataDoc", "Codap", "obs1", "obs2"};
    for (int i = 0; i < 10; ++i)
        for (const char *k : {"item", "evnt", "refer", "valor"})
            cols << QString::fromLatin1(k) + QString::number(i);
    cols << "nome" << "enderecopro" << "numeropro" << "complementopro" << "bairropro" << "cidadepro" << "ufpro" << "ceppro"
         << "cpfpro" << "codinterno";
    ReportData d;
    d.columns = cols;
    const QStringList codes = {QStringLiteral("34191390000055737109000000012345671000000001"),
                               QStringLiteral("34195390000012000109000000012345681000000002")};
    for (int n = 0; n < 2; ++n) {
        QStringList row = {"10/03/2008", QStringLiteral("00451%1").arg(n), QStringLiteral("34191.09008 00000.12345%1").arg(n),
                           codes[n], "12345670", "557,37", "25/02/2008", "000101", "", ""};
        for (int i = 0; i < 10; ++i)
            row << (i == 0 ? "001" : " ") << (i == 0 ? "Taxa de condomínio" : "") << (i == 0 ? "03/2008" : "0") << (i == 0 ? "557,37" : "0");
        row << "José Antônio" << "Rua das Acácias" << "120" << "" << "Jardim" << "São Paulo" << "SP" << "" << "" << "A-11";
        d.rows.push_back(row);
    }
    for (const char *f : {"Cedente", "AgConta", "Carteira", "EspecieDoc", "NossoNr", "DataProc", "Instru1", "Instru2", "Instru3",
                          "Instru4", "Instru5", "Instru6", "Titu"})
        d.setFormula(QString::fromLatin1(f), QString::fromLatin1(f) == QLatin1String("Cedente") ? "Condomínio Solar" : "");
    // The statement's 122 lines fill both columns of its sub-report.
    SubreportData &demonstrativo = d.subreports["BalRecItau"];
    demonstrativo.columns = {"Linha"};
    for (int i = 0; i < 122; ++i)
        demonstrativo.rows.push_back({i == 1 ? "DEMONSTRATIVO MENSAL REFERENTE Fevereiro/2008"
                                      : i == 121 ? "Última linha do demonstrativo" : ""});
    d.setFormula("uEmpat", "12");
    d.setFormula("uNempat", "Solar");
    d.setFormula("gClient", "Tevora");
    const ReportDocument doc = renderReport(shipped(QStringLiteral("BolRelItau.rpt")), d);
    EXPECT_TRUE(doc.log.isEmpty()) << qPrintable(doc.log.join(u'\n'));
    ASSERT_EQ(doc.pageCount(), 2);
    const QStringList pages = pdfPages(doc);
    ASSERT_EQ(pages.size(), 2);
    for (int p = 0; p < 2; ++p) {
        EXPECT_TRUE(pages[p].contains(QStringLiteral("34191.09008 00000.12345%1").arg(p)));
        EXPECT_TRUE(pages[p].contains(QStringLiteral("DEMONSTRATIVO MENSAL REFERENTE Fevereiro/2008")));
        EXPECT_TRUE(pages[p].contains(QStringLiteral("Última linha do demonstrativo")));
        EXPECT_TRUE(pages[p].contains(QStringLiteral("Ficha de Compensação")));
        EXPECT_TRUE(pages[p].contains(QStringLiteral("557,37")));

        // Find the bars and read them back from the painted page.
        const DrawOp *bars = nullptr;
        for (const DrawOp &op : doc.pages[size_t(p)].ops)
            if (op.kind == DrawOp::Bars)
                bars = &op;
        ASSERT_TRUE(bars);
        EXPECT_NEAR(bars->bars.back().right() - bars->bars.front().left(), 103.0, 1e-6);
        EXPECT_NEAR(bars->rect.height(), 13.0, 1e-6);
        EXPECT_GE(bars->rect.left(), 10 + 2.5 - 1e-6);   // quiet zone inside the paper's margin
        const double dotsPerMm = 20;
        const QImage img = pageImage(doc, p, dotsPerMm);
        const int row = int((bars->rect.center().y()) * dotsPerMm);
        EXPECT_EQ(decodeInterleaved2of5(img, row, int((bars->rect.left() - 2.4) * dotsPerMm), int((bars->rect.right() + 2.4) * dotsPerMm)),
                  codes[p]);
    }
}
